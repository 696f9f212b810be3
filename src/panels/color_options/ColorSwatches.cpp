#include "panels/color_options/ColorSwatches.h"

#include <algorithm>

namespace kesta::color_options {
namespace {

constexpr double kMiddle = 0.5;
constexpr double kLightnessReach = 0.5;
constexpr double kCastReach = 0.25;

double Share(SInt32 value)
{
    return value == kUnset ? 0 : std::clamp(value, -100, 100) / 100.0;
}

double Lightened(double part, double lightness)
{
    const double way = lightness * kLightnessReach;
    return lightness > 0 ? part + (1 - part) * way : part + part * way;
}

double Away(double part, double from, double by)
{
    return part + (part - from) * by;
}

template <class Function> Rgb Each(const Rgb& color, Function function)
{
    return {function(color.red), function(color.green), function(color.blue)};
}

} // namespace

Adjustments AdjustmentsOf(const FullColorOptions& record)
{
    SInt32 lightness = kUnset, contrast = kUnset, saturation = kUnset;
    SInt32 cyanRed = kUnset, magentaGreen = kUnset, yellowBlue = kUnset;
    record.lightness(&lightness);
    record.contrast(&contrast);
    record.saturation(&saturation);
    record.colorCast(&cyanRed, &magentaGreen, &yellowBlue);
    return {.lightness = Share(lightness),
            .contrast = Share(contrast),
            .saturation = Share(saturation),
            .cast = {Share(cyanRed), Share(magentaGreen), Share(yellowBlue)}};
}

Rgb Adjusted(const Rgb& color, const Adjustments& by)
{
    Rgb made = Each(color, [&](double part) { return Away(Lightened(part, by.lightness), kMiddle, by.contrast); });
    const double luma = 0.299 * made.red + 0.587 * made.green + 0.114 * made.blue;
    made = Each(made, [&](double part) { return Away(part, luma, by.saturation); });
    made = {made.red + by.cast.red * kCastReach, made.green + by.cast.green * kCastReach,
            made.blue + by.cast.blue * kCastReach};
    return Each(made, [](double part) { return std::clamp(part, 0.0, 1.0); });
}

} // namespace kesta::color_options
