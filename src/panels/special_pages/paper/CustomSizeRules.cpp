#include "panels/special_pages/paper/CustomSizeRules.h"

#include "printer/PPDFacts.h"

#include <algorithm>
#include <cmath>

namespace kesta {
namespace {

constexpr Float64 kThousandthsOfInchPerUnit = 0.39370078740157477; // a unit is a hundredth of a millimetre
constexpr Float64 kMostField = 99'999;                             // bounds what a PPD may say

constexpr SInt32 Rounded(Float64 value)
{
    constexpr Float64 kLeast = std::numeric_limits<SInt32>::min();
    constexpr Float64 kMost = std::numeric_limits<SInt32>::max();
    return static_cast<SInt32>(std::clamp(std::round(value), kLeast, kMost));
}

FieldLimits LimitsOf(Float32 leastPoints, Float32 mostPoints, SizeUnits units)
{
    const Float64 perInch = units == SizeUnits::Inches ? 100 : 254;
    const auto inUnits = [&](Float32 points) {
        return points > 0 ? std::min(static_cast<Float64>(points) * perInch / 72, kMostField) : 0;
    };
    const auto least = static_cast<SInt32>(std::ceil(inUnits(leastPoints)));
    return {least, std::max(least, static_cast<SInt32>(std::floor(inUnits(mostPoints))))};
}

} // namespace

SizeUnits DefaultSizeUnits(const QLocale& locale)
{
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? SizeUnits::Inches : SizeUnits::Millimetres;
}

PaperSize DefaultPaperSize(SizeUnits units)
{
    return units == SizeUnits::Inches ? PaperSize{21590, 27940} : PaperSize{21000, 29700};
}

SInt32 LengthToField(SInt32 hundredthsOfMillimetre, SizeUnits units)
{
    if (units == SizeUnits::Inches)
        return Rounded(hundredthsOfMillimetre * kThousandthsOfInchPerUnit) / 10;
    return hundredthsOfMillimetre / 10;
}

SInt32 FieldToLength(SInt32 field, SizeUnits units)
{
    return Rounded(units == SizeUnits::Inches ? field * 2.54 * 10 : field * 10.0);
}

SInt32 LengthBehindField(SInt32 field, SInt32 known, SizeUnits units)
{
    return LengthToField(known, units) == field ? known : FieldToLength(field, units);
}

int FieldDecimals(SizeUnits units)
{
    return units == SizeUnits::Inches ? 2 : 1;
}

SInt32 FieldLimits::clamped(SInt32 field) const
{
    return std::clamp(field, least, most);
}

SizeLimits LimitsInUnits(const PPDCustomSizeLimits& points, SizeUnits units)
{
    return {.width = LimitsOf(points.minimumWidth, points.maximumWidth, units),
            .length = LimitsOf(points.minimumHeight, points.maximumHeight, units)};
}

QRect PreviewRect(const QSize& view, SInt32 widthField, SInt32 lengthField, SInt32 mostLength)
{
    if (mostLength <= 0)
        return {};
    const Float64 scale = static_cast<Float64>(view.width()) / mostLength;
    const QSize paper(Rounded(widthField * scale), Rounded(lengthField * scale));
    return {QPoint((view.width() - paper.width()) / 2, (view.height() - paper.height()) / 2), paper};
}

} // namespace kesta
