#pragma once

#include "pde/menus/SettingMap.h"
#include "platform/values/Types.h"

#include <QLocale>
#include <QRect>

#include <array>

namespace kesta {

struct PPDCustomSizeLimits;

enum class SizeUnits : SInt32 { NotChosen = 0, Inches = 1, Millimetres = 2 };
inline constexpr auto _CustomSizeUnitsMap = std::to_array<SettingRow>({
    {"Inches", static_cast<SInt32>(SizeUnits::Inches)},
    {"Millimeters", static_cast<SInt32>(SizeUnits::Millimetres)},
});
static_assert(_CustomSizeUnitsMap.size() == 2);

// Inches where the measurement system is the U.S. one, millimetres everywhere else.
SizeUnits DefaultSizeUnits(const QLocale& locale = QLocale());

// Lengths are kept in hundredths of a millimetre; fields count hundredths of an inch or tenths of a millimetre.
struct PaperSize {
    SInt32 width = kUnset;
    SInt32 length = kUnset;

    bool operator==(const PaperSize&) const = default;
};
PaperSize DefaultPaperSize(SizeUnits units); // Letter or A4

SInt32 LengthToField(SInt32 hundredthsOfMillimetre, SizeUnits units);
SInt32 FieldToLength(SInt32 field, SizeUnits units);

// What a field stands for: the known length as long as the field shows it, so that going to other units and back loses
// nothing.
SInt32 LengthBehindField(SInt32 field, SInt32 known, SizeUnits units);

int FieldDecimals(SizeUnits units);

struct FieldLimits {
    SInt32 least = 0;
    SInt32 most = 0;

    SInt32 clamped(SInt32 field) const;
    bool contains(SInt32 field) const { return clamped(field) == field; }
    bool operator==(const FieldLimits&) const = default;
};
struct SizeLimits {
    FieldLimits width, length;
};
// The limits in points in the units of the fields: no size that they allow is outside of what the printer takes.
SizeLimits LimitsInUnits(const PPDCustomSizeLimits& points, SizeUnits units);

// The paper in a view of that size, centred. The most that a length may be fills the view's width. Null without such a
// limit.
QRect PreviewRect(const QSize& view, SInt32 widthField, SInt32 lengthField, SInt32 mostLength);

} // namespace kesta
