#pragma once

#include "panels/color_options/ColorOptions.h"
#include "pde/menus/Binding.h"

#include <array>

namespace kesta::color_options {

// The numbers of the controls in ColorOptionsPanel/ColorOptions.
inline constexpr FourCharCode kSignature = "Colr"_code;
enum Control : SInt32 {
    kLightness = 101,
    kContrast = 102,
    kSaturation = 103,
    kCyanRed = 104,
    kMagentaGreen = 105,
    kYellowBlue = 106,
    kBeforeStrip = 107,
    kAfterStrip = 108,
    kResetButton = 109,
    kRGBImages = 201,
    kRGBTextAndGraphics = 202,
    kCMYKImages = 203,
    kCMYKTextAndGraphics = 204,
    kGrayImages = 205,
    kGrayTextAndGraphics = 206,
    kDestination = 207,
    kImageRendering = 301,
    kTextRendering = 302,
    kGraphicRendering = 303,
    kTrapping = 401,
    kFastDirection = 402,
    kSlowDirection = 403,
    kBlackOverprint = 404,
    kToneCurve = 405,
};

// The numbers of the record, kUnset for none, as their controls edit them: fields for adjustments, casts and the
// directions of trapping, then choices. A setter leaves the record as it is where the record's does.
//
// A color cast is one setting of three values: setting one of them sets those that are not set to 0, and taking one
// away takes all. Where the record refuses values together, those that a ticket brought out of range are brought into
// it with the first change.
extern const std::array<Binding<ColorOptions>, 13> kBindings;

// Something of the printer's by number, or, by the named kind, by name. Where there are names only, the named kind
// is 1.
struct NameSetting {
    Control control;
    SInt32 namedKind;
    ColorProfile (*get)(const FullColorOptions&);
    OSStatus (*set)(FullColorOptions&, const ColorProfile&);
};
std::span<const NameSetting> NameSettings();

bool HasAdjustments(const ColorOptions& options);
void ResetAdjustments(ColorOptions& options); // lightness to casts: not set
bool UsesTrappingDirections(const FullColorOptions& record);

} // namespace kesta::color_options
