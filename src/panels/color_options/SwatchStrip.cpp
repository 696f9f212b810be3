#include "panels/color_options/SwatchStrip.h"

#include "toolkit/style/KestaColors.h"

#include <QPainter>
#include <QPainterPath>

namespace kesta::color_options {
namespace {

constexpr double kRadius = 4; // points

QColor ColorOf(const Rgb& rgb)
{
    return QColor::fromRgbF(static_cast<float>(rgb.red), static_cast<float>(rgb.green), static_cast<float>(rgb.blue));
}

// On whole points, so that no seam is blurred.
QRect PlaceOf(const QRect& bounds, int swatch)
{
    const int count = static_cast<int>(kSwatches.size());
    const int left = bounds.width() * swatch / count;
    const int right = bounds.width() * (swatch + 1) / count;
    return {bounds.left() + left, bounds.top(), right - left, bounds.height()};
}

} // namespace

void DrawSwatches(QPainter& painter, const QRect& bounds, const Adjustments& adjustments)
{
    QPainterPath outline;
    outline.addRoundedRect(QRectF(bounds).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(outline);
    for (int swatch = 0; swatch < static_cast<int>(kSwatches.size()); ++swatch)
        painter.fillRect(PlaceOf(bounds, swatch),
                         ColorOf(Adjusted(kSwatches[static_cast<std::size_t>(swatch)], adjustments)));
    painter.setClipping(false);
    painter.setPen(CurrentColors().field);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    painter.restore();
}

} // namespace kesta::color_options
