#pragma once

#include <QAbstractButton>

namespace kesta {

// A text like a link. Pressed by mouse, Space or Return it sends a hit and, where it has one, its command.
class ClickableText : public QAbstractButton {
    Q_OBJECT

public:
    explicit ClickableText(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace kesta
