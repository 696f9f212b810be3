#pragma once

#include <QLabel>
#include <QObject>

namespace kesta::host {

// Keeps a label on one line however long its text is: cut off with dots, whole in its tool tip and for screen readers.
class ElidedText : public QObject {
public:
    explicit ElidedText(QLabel& label); // owned by the label

    void setText(const QString& text);
    QString text() const { return text_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void elide();

    QLabel& label_;
    QString text_;
};

} // namespace kesta::host
