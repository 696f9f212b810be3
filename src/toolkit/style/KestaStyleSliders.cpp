#include "toolkit/style/KestaProxyStyle.h"
#include "toolkit/style/KestaStyleDrawing.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace kesta {
namespace {

constexpr double kGrooveHeight = 4; // points, as are all here
constexpr int kScrollHandle = 6;
constexpr int kLeastScrollHandle = 28;

bool IsUpright(const QStyleOptionSlider& bar)
{
    return bar.orientation == Qt::Vertical;
}

// How much of the bar's length the handle has, and where it begins.
QRect ScrollHandle(const QStyleOptionSlider& bar)
{
    const int length = IsUpright(bar) ? bar.rect.height() : bar.rect.width();
    const qint64 all = qint64{bar.maximum} - bar.minimum + bar.pageStep;
    const qint64 share = all > 0 ? length * qint64{bar.pageStep} / all : length;
    const int handle = std::clamp(static_cast<int>(share), std::min(kLeastScrollHandle, length), length);
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - handle, bar.upsideDown);
    return IsUpright(bar) ? QRect(bar.rect.left(), bar.rect.top() + start, bar.rect.width(), handle)
                          : QRect(bar.rect.left() + start, bar.rect.top(), handle, bar.rect.height());
}

} // namespace

// A groove that is filled from 0, or from the end nearest to it, to the handle.
void DrawSlider(const QStyleOptionSlider& slider, QPainter& painter, const QRect& handle)
{
    const KestaColors colors = CurrentColors();
    const bool enabled = slider.state & QStyle::State_Enabled;
    const double middle = QRectF(slider.rect).center().y();
    const QRectF groove(slider.rect.left() + kSliderHandle / 2.0, middle - kGrooveHeight / 2,
                        slider.rect.width() - kSliderHandle, kGrooveHeight);
    const int zero = std::clamp(0, slider.minimum, slider.maximum);
    const double share = double(zero - slider.minimum) / std::max(1, slider.maximum - slider.minimum);
    const double origin = groove.left() + groove.width() * (slider.upsideDown ? 1 - share : share);
    const double at = QRectF(handle).center().x();
    const QRectF filled(std::min(origin, at), groove.top(), std::abs(at - origin), kGrooveHeight);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(enabled ? colors.border : colors.hairline);
    painter.drawRoundedRect(groove, kGrooveHeight / 2, kGrooveHeight / 2);
    painter.setBrush(enabled ? colors.accent : colors.disabled);
    painter.drawRoundedRect(filled, kGrooveHeight / 2, kGrooveHeight / 2);
    painter.setPen(enabled ? colors.field : colors.hairline);
    painter.setBrush(Touched(enabled ? colors.button : colors.pane, slider, colors.text));
    painter.drawEllipse(QPointF(at, middle), (kSliderHandle - 1) / 2.0, (kSliderHandle - 1) / 2.0);
    painter.restore();
}

QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    const QRect handle = ScrollHandle(bar);
    const bool upright = IsUpright(bar);
    QRect rest = bar.rect;
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    case QStyle::SC_ScrollBarSlider:
        return handle;
    case QStyle::SC_ScrollBarSubPage:
        upright ? rest.setBottom(handle.top() - 1) : rest.setRight(handle.left() - 1);
        return rest;
    case QStyle::SC_ScrollBarAddPage:
        upright ? rest.setTop(handle.bottom() + 1) : rest.setLeft(handle.right() + 1);
        return rest;
    default:
        return {}; // no arrows
    }
}

// Nothing but the handle, so that it can lie in the margin of what it scrolls.
void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QRect& handle)
{
    if (bar.maximum <= bar.minimum)
        return;
    const KestaColors colors = CurrentColors();
    const bool isTouched = bar.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
    const QColor color = isTouched ? colors.text2 : Mix(colors.field, colors.window, 0.25);
    const int side = (IsUpright(bar) ? handle.width() - kScrollHandle : handle.height() - kScrollHandle) / 2;
    const QRect shown = IsUpright(bar) ? handle.adjusted(side, 2, -side, -2) : handle.adjusted(2, side, -2, -side);
    DrawOutlined(painter, shown, color, color, kScrollHandle / 2.0);
}

} // namespace kesta
