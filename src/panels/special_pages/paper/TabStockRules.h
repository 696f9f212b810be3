#pragma once

#include "panels/special_pages/paper/CustomSizeRules.h"
#include "pde/menus/SettingMap.h"

#include <array>

namespace kesta {

class Stock;
struct Bundle;
struct _IS_Options;

// How far the print moves onto the tabs.
inline constexpr SInt32 kTabShiftNone = 1;
inline constexpr SInt32 kTabShiftLetterTemplate = 2;
inline constexpr SInt32 kTabShiftA4Template = 3;
inline constexpr SInt32 kTabShiftCustom = 4;
inline constexpr auto _TabStockSetupMap = std::to_array<SettingRow>({
    {"None", kTabShiftNone},
    {"0.5\" (8.5x11\" Template)", kTabShiftLetterTemplate},
    {"12.7 mm (A4 Template)", kTabShiftA4Template},
    {"Custom", kTabShiftCustom},
});
inline constexpr const auto& _TabStockRadioMap = _CustomSizeUnitsMap;
static_assert(_TabStockSetupMap.size() == 4);

inline constexpr FieldLimits kTabSequenceLimits{1, 254};

// Tabs in a set as the stock's modulus says; 3 when it does not.
SInt32 TabsInSequence(const Stock& stock);
QString TabSequenceLimitsText(const Bundle& bundle);

// Shifts are whole millimetres; the field counts these or tenths of an inch. Both conversions truncate.
SInt32 TabShiftToInches(SInt32 millimetres);
SInt32 TabShiftToMillimetres(SInt32 tenthsOfInch);
FieldLimits TabShiftLimits(SizeUnits units);
QString TabShiftLimitsText(const Bundle& bundle, SizeUnits units);

// What the dialog shows of the options, and makes of them. A shift of 13 millimetres is a template's whatever stored
// it, one of tenths of an inch never; the field counts with a custom shift alone.
struct TabShift {
    SInt32 choice = kTabShiftNone;
    SInt32 field = 0;

    bool operator==(const TabShift&) const = default;
};
TabShift TabShiftFromOptions(const _IS_Options& options, SizeUnits units);
// The other three offsets are converted to millimetres with the first; those of a shift that was off don't come back.
void ApplyTabShift(const TabShift& shift, SizeUnits units, _IS_Options& options);

} // namespace kesta
