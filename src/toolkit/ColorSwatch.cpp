#include "toolkit/ColorSwatch.h"

#include "toolkit/AccessibleControls.h"
#include "toolkit/ControlEvent.h"
#include "toolkit/KestaColors.h"
#include "toolkit/ModalLoop.h"
#include "toolkit/Pictures.h"

#include <QColorDialog>
#include <QPointer>
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
    connect(this, &QAbstractButton::clicked, this, &ColorSwatch::runColorDialog);
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

void ColorSwatch::runColorDialog()
{
    const QPointer<ColorSwatch> alive = this;
    QColorDialog dialog(color_);
    dialog.setOption(QColorDialog::DontUseNativeDialog); // one that scripts and tests can act in
    connect(&dialog, &QDialog::finished, &dialog, [&dialog](int result) {
        EndModalLoop(dialog, result == QDialog::Accepted ? ModalResult::OK : ModalResult::Cancel);
    });
    if (RunModalLoop(dialog) == ModalResult::OK && alive)
        chooseColor(dialog.selectedColor());
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
