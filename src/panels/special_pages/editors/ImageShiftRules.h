#pragma once

#include "model/ImageShift.h"
#include "panels/special_pages/paper/TabStockRules.h"

#include <QRectF>

namespace kesta {

struct Bundle;

// What the image shift dialog shows: offsets in tenths of an inch or whole millimetres, to the right and up.
struct ShiftOfSide {
    SInt32 horizontal = 0, vertical = 0;

    bool operator==(const ShiftOfSide&) const = default;
};
struct ShiftSettings {
    bool isOn = false;
    bool areAlike = true; // side 2 follows side 1
    SizeUnits units = SizeUnits::Inches;
    ShiftOfSide side1 = {}, side2 = {};

    bool operator==(const ShiftSettings&) const = default;
};

// Of options that say nothing the units are the given ones.
ShiftSettings ShiftSettingsOf(const _IS_Options& options, SizeUnits usualUnits);
void ApplyShiftSettings(const ShiftSettings& settings, _IS_Options& options);

void SwitchShiftUnits(ShiftSettings& settings, SizeUnits units);
void FollowSide1(ShiftSettings& settings); // as far as both are alike

// A line a side, one for both where they are alike, or that it is off.
QString ImageShiftSummary(const Bundle& bundle, const _IS_Options& options);

// Where the print of a side is drawn when it would be at the given place without a shift; it moves twice as far as it
// does on paper, so that a tenth of an inch shows.
QRectF ShiftedPrint(const QRectF& unshifted, const ShiftOfSide& side, SizeUnits units, double pointsPerInch);

} // namespace kesta
