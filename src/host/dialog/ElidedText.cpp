#include "host/dialog/ElidedText.h"

#include <QEvent>
#include <QTextDocument>

namespace kesta::host {

ElidedText::ElidedText(QLabel& label) : QObject(&label), label_(label)
{
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(false);
    label.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    label.installEventFilter(this);
}

void ElidedText::setText(const QString& text)
{
    text_ = text;
    label_.setAccessibleName(text); // the whole of it
    elide();
}

void ElidedText::elide()
{
    const QString shown = label_.fontMetrics().elidedText(text_, Qt::ElideRight, label_.contentsRect().width());
    if (shown != label_.text())
        label_.setText(shown);
    const QString tip = Qt::mightBeRichText(text_) ? Qt::convertFromPlainText(text_) : text_; // names are no markup
    label_.setToolTip(shown == text_ ? QString() : tip);
}

bool ElidedText::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        elide();
    return false;
}

} // namespace kesta::host
