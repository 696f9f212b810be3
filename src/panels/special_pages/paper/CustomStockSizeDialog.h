#pragma once

#include "panels/special_pages/paper/CustomSizeRules.h"

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

// The units that a person chose last; they outlive the dialog.
extern SizeUnits gCurrentUnits;

namespace customsize {

// The numbers of the controls in CustomStockSizeDialog/CustomStockSize.
inline constexpr FourCharCode kSignature = "CuSz"_code;
enum Control : SInt32 {
    kWidthField = 1,
    kWidthLimits = 2,
    kLengthField = 3,
    kLengthLimits = 4,
    kUnitsPopup = 5,
    kPreview = 6,
    kDefaultsButton = 7,
};

} // namespace customsize

// Asks for a size within the limits of the current PPD, from the given one or, where that is unset, the locale's usual
// one. OK alone changes the size, and only to one that the printer takes. kInterfaceFileUnreadable, and nothing shown,
// when its window can't be loaded.
OSStatus RunModalCustomStockSizeDialog(const Bundle& bundle, ModalResult& result, PaperSize& size);

} // namespace kesta
