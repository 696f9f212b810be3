#include "toolkit/controls/ClickableText.h"

#include "toolkit/controls/AccessibleControls.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace kesta {
namespace {

constexpr int kFocusRoom = 3; // points around the text for the focus ring

} // namespace

ClickableText::ClickableText(QWidget* parent) : QAbstractButton(parent)
{
    InstallAccessibleControls();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize ClickableText::sizeHint() const
{
    return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(2 * kFocusRoom, 2 * kFocusRoom);
}

void ClickableText::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void ClickableText::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    const QRect inner = rect().marginsRemoved(QMargins(kFocusRoom, kFocusRoom, kFocusRoom, kFocusRoom));
    QFont underlined = font();
    underlined.setUnderline(isEnabled());
    painter.setFont(underlined);
    const int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading)) |
                      Qt::AlignVCenter | Qt::TextHideMnemonic;
    painter.drawItemText(inner, flags, palette(), isEnabled(), text(),
                         isEnabled() ? QPalette::Link : QPalette::WindowText);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
}

} // namespace kesta
