#include "panels/special_pages/paper/TabStockRules.h"

#include "model/ImageShift.h"
#include "model/Stock.h"
#include "pde/ticket/LocalizedText.h"

#include <algorithm>
#include <array>
#include <limits>

namespace kesta {
namespace {

constexpr SInt32 kUsualTabs = 3;
constexpr SInt32 kTemplateShift = 13; // millimetres
constexpr SInt32 kShiftSet = 1;       // an image shift option other than unset

constexpr auto kOtherOffsets = std::to_array({&_IS_Options::X2, &_IS_Options::Y1, &_IS_Options::Y2});

// The value times a ratio, moved away from 0 by about half of the divisor and truncated.
SInt32 Converted(SInt32 value, SInt64 factor, SInt64 half, SInt64 divisor)
{
    const SInt64 scaled = value * factor;
    const SInt64 converted = (scaled < 0 ? scaled - half : scaled + half) / divisor;
    return static_cast<SInt32>(
        std::clamp<SInt64>(converted, std::numeric_limits<SInt32>::min(), std::numeric_limits<SInt32>::max()));
}

} // namespace

SInt32 TabsInSequence(const Stock& stock)
{
    return stock.modulus() == kUnset ? kUsualTabs : kTabSequenceLimits.clamped(stock.modulus());
}

QString TabSequenceLimitsText(const Bundle& bundle)
{
    return LocalizedFormat(bundle, "Min-Max Number",
                           {CreateLocalizedCFStringFromNumberWithDecimals(kTabSequenceLimits.least, 0),
                            CreateLocalizedCFStringFromNumberWithDecimals(kTabSequenceLimits.most, 0)});
}

SInt32 TabShiftToInches(SInt32 millimetres)
{
    return Converted(millimetres, 10, 13, 25);
}

SInt32 TabShiftToMillimetres(SInt32 tenthsOfInch)
{
    return Converted(tenthsOfInch, 25, 5, 10);
}

FieldLimits TabShiftLimits(SizeUnits units)
{
    return units == SizeUnits::Inches ? FieldLimits{-15, 15} : FieldLimits{-38, 38};
}

QString TabShiftLimitsText(const Bundle& bundle, SizeUnits units)
{
    const bool inches = units == SizeUnits::Inches;
    const FieldLimits limits = TabShiftLimits(units);
    const auto text = [&](SInt32 number) {
        return CreateLocalizedCFStringFromNumberWithDecimals(number, inches ? 1 : 0);
    };
    return LocalizedFormat(bundle, inches ? "Min-Max Inches" : "Min-Max Millimeters",
                           {text(limits.least), text(limits.most)});
}

TabShift TabShiftFromOptions(const _IS_Options& options, SizeUnits units)
{
    const bool inches = units == SizeUnits::Inches;
    if (options.option == kUnset)
        return {kTabShiftNone};
    if (!options.inches && options.X1 == kTemplateShift)
        return {inches ? kTabShiftLetterTemplate : kTabShiftA4Template};
    if (options.inches == inches)
        return {kTabShiftCustom, options.X1};
    return {kTabShiftCustom, inches ? TabShiftToInches(options.X1) : TabShiftToMillimetres(options.X1)};
}

void ApplyTabShift(const TabShift& shift, SizeUnits units, _IS_Options& options)
{
    if (shift.choice == kTabShiftNone) {
        options.option = kUnset;
        return;
    }
    for (SInt32 _IS_Options::*const offset : kOtherOffsets) {
        if (options.option == kUnset)
            options.*offset = 0;
        else if (options.inches)
            options.*offset = TabShiftToMillimetres(options.*offset);
    }
    options.option = kShiftSet;
    options.inches = false;
    if (shift.choice == kTabShiftCustom)
        options.X1 = units == SizeUnits::Inches ? TabShiftToMillimetres(shift.field) : shift.field;
    else
        options.X1 = kTemplateShift;
}

} // namespace kesta
