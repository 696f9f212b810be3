#pragma once

#include <QStringList>
#include <QWidget>

namespace kesta {

struct Alert;

// What a caution alert looks like: mark, title, message, buttons. Return presses the first button, Escape the cancel
// button.
class AlertWindow : public QWidget {
    Q_OBJECT

public:
    explicit AlertWindow(const Alert& alert);

    int run(); // the position of the pressed button, from 0

private:
    QWidget* makeTexts(const Alert& alert);
    QWidget* makeButtons(const Alert& alert);

    int pressed_;
};

} // namespace kesta
