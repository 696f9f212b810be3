#include "toolkit/controls/ColorSwatch.h"

#include "toolkit/controls/AccessibleControls.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/style/KestaColors.h"
#include "toolkit/style/Pictures.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace kesta {
namespace {

constexpr int kSwatchInset = 6; // points between the outline of the button and its colour
constexpr int kSwatchWidth = 64;

} // namespace

ColorSwatch::ColorSwatch(QWidget* parent) : QAbstractButton(parent)
{
    InstallAccessibleControls();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorSwatch::setColor(const QColor& color)
{
    color_ = color.isValid() ? QColor(color.rgb()) : QColor(Qt::black);
    update();
}

void ColorSwatch::chooseColor(const QColor& color)
{
    if (!isEnabled() || !color.isValid() || QColor(color.rgb()) == color_)
        return;
    setColor(color);
    SendControlEvent(*this, HitEvent{});
}

QSize ColorSwatch::sizeHint() const
{
    QStyleOptionButton option;
    option.initFrom(this);
    const QSize button = style()->sizeFromContents(QStyle::CT_PushButton, &option, fontMetrics().size(0, text()), this);
    return {kSwatchWidth, button.height()};
}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const KestaColors colors = ColorsOf(palette());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : kDisabledPictureOpacity);
    painter.setPen(colors.field);
    painter.setBrush(color_);
    const int inset = kSwatchInset;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset + .5, inset + .5, -inset - .5, -inset - .5), 3, 3);
}

} // namespace kesta
