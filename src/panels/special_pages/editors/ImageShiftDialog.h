#pragma once

#include "panels/special_pages/editors/ImageShiftRules.h"

namespace kesta {

enum class ModalResult : SInt32;

namespace imageshift {

// The numbers of the controls in SpecialPages/ImageShift.
inline constexpr FourCharCode kSignature = "ImSh"_code;
enum Control : SInt32 {
    kScene = 1,
    kShiftCheckBox = 2,
    kAlikeCheckBox = 3,
    kHorizontalLabel = 4,
    kVerticalLabel = 5,
    kSide1Label = 6,
    kSide2Label = 7,
    kHorizontal1 = 8,
    kVertical1 = 9,
    kHorizontal2 = 10,
    kVertical2 = 11,
    kLimits = 12,
    kDirections = 13,
    kUnitsLabel = 14,
    kUnitsPopup = 15,
    kSceneSide1 = 16,
    kSceneSide2 = 17,
};

} // namespace imageshift

// Asks whether and how far the print of each side moves; OK alone changes the options. kInterfaceFileUnreadable, and
// nothing shown, when its window can't be loaded.
OSStatus RunModalImageShiftDialog(const Bundle& bundle, _IS_Options& options, ModalResult& result);

} // namespace kesta
