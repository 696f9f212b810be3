#include "panels/booklet_watermark/watermark/WatermarkEditorRules.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace kesta::booklet_watermark {
namespace {

constexpr double kPointsInInch = 72;
constexpr double kMillimetresInInch = 25.4;
constexpr double kSnapping = 4; // points
constexpr double kTurningStep = 15;

double ShownInInch(SInt32 units)
{
    return units == kMillimetres ? kMillimetresInInch : 10;
}

SInt32 Within(double shown, double side, SInt32 units)
{
    const SInt32 most = GreatestOffset(side, units);
    return static_cast<SInt32>(std::lround(std::clamp<double>(shown, -most, most)));
}

Float32 Moved(Float32 inches, double points, double side, SInt32 units)
{
    const double place = double{inches} * kPointsInInch + points;
    if (std::abs(place) <= kSnapping)
        return 0;
    return OffsetFromShown(Within(place / kPointsInInch * ShownInInch(units), side, units), units);
}

Float32 Nudged(Float32 inches, SInt32 by, double side, SInt32 units)
{
    return OffsetFromShown(Within(ShownOffset(inches, units) + static_cast<double>(by), side, units), units);
}

Float32 WithinPage(Float32 inches, double side, SInt32 units)
{
    const Float32 most = OffsetFromShown(GreatestOffset(side, units), units);
    return std::clamp(inches, -most, most);
}

void SetNew(_WatermarkData& watermark)
{
    watermark.isText = 1;
    watermark.fontName.set(QStringLiteral("ArialMT"));
    watermark.fontSize = 72;
    watermark.fontColor = watermark.wellColor = {0, 0, 1, 1};
    watermark.angle = 45;
    watermark.density = 25;
    watermark.scale = 100;
}

QTransform TurnedAbout(const PlacedText& text)
{
    return QTransform().translate(text.origin.x(), text.origin.y()).rotate(text.angle);
}

} // namespace

void PrepareForEditor(_WatermarkData& watermark)
{
    if (watermark.text.isEmpty() && watermark.fileName.isEmpty())
        SetNew(watermark);
    watermark.isText = watermark.fileName.isEmpty() || !watermark.text.isEmpty() ? 1 : 0;
    watermark.units = watermark.units == kMillimetres ? kMillimetres : kInches;
    watermark.angle = std::clamp(watermark.angle, -kGreatestAngle, kGreatestAngle);
    watermark.density = std::clamp(watermark.density, 0, kGreatestDensity);
    watermark.scale = std::clamp(watermark.scale, 1, kGreatestScale);
    watermark.fontSize = std::clamp(watermark.fontSize, 1, kGreatestFontSize);
    watermark.xOffset = WithinPage(watermark.xOffset, watermark.pageWidth, watermark.units);
    watermark.yOffset = WithinPage(watermark.yOffset, watermark.pageHeight, watermark.units);
}

int DecimalsOf(SInt32 units)
{
    return units == kMillimetres ? 0 : 1;
}

SInt32 ShownOffset(Float32 inches, SInt32 units)
{
    return static_cast<SInt32>(std::lround(double{inches} * ShownInInch(units)));
}

Float32 OffsetFromShown(SInt32 shown, SInt32 units)
{
    return static_cast<Float32>(shown / ShownInInch(units));
}

SInt32 GreatestOffset(double side, SInt32 units)
{
    return static_cast<SInt32>(side / kPointsInInch * ShownInInch(units) * 0.5);
}

QPolygonF PlacedText::outline() const
{
    return TurnedAbout(*this).map(QPolygonF(frame));
}

QPointF PlacedText::middle() const
{
    return TurnedAbout(*this).map(frame.center());
}

QPointF PlacedText::handle(double distance) const
{
    return TurnedAbout(*this).map(QPointF(frame.center().x(), frame.bottom() + distance)); // y goes up
}

void MoveText(_WatermarkData& watermark, const _WatermarkData& before, QPointF by)
{
    watermark.xOffset = Moved(before.xOffset, by.x(), watermark.pageWidth, watermark.units);
    watermark.yOffset = Moved(before.yOffset, by.y(), watermark.pageHeight, watermark.units);
}

void NudgeText(_WatermarkData& watermark, SInt32 right, SInt32 up)
{
    if (right != 0)
        watermark.xOffset = Nudged(watermark.xOffset, right, watermark.pageWidth, watermark.units);
    if (up != 0)
        watermark.yOffset = Nudged(watermark.yOffset, up, watermark.pageHeight, watermark.units);
}

void TurnText(_WatermarkData& watermark, SInt32 angleBefore, double by, Turning turning)
{
    const double step = turning == Turning::InSteps ? kTurningStep : 1;
    const double angle = std::round((angleBefore + by) / step) * step;
    watermark.angle = static_cast<SInt32>(std::clamp<double>(angle, -kGreatestAngle, kGreatestAngle));
}

} // namespace kesta::booklet_watermark
