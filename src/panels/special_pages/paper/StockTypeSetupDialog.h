#pragma once

#include "model/ImageShift.h"
#include "model/Stock.h"

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

namespace tabstock {

// The numbers of the controls in StockTypeSetupDialog/TabStockSetup.
inline constexpr FourCharCode kSignature = "TaSt"_code;
enum Control : SInt32 {
    kSequenceField = 1,
    kSequenceLimits = 2,
    kShiftPopup = 3,
    kShiftLabel = 4,
    kShiftField = 5,
    kUnitsPopup = 6,
    kSequencePicture = 7,
    kShiftPicture = 8,
    kShiftLimits = 9,
    kShiftEndsHint = 10,
};

} // namespace tabstock

// Asks how many tabs make a set and how far the print moves onto them; OK alone changes the stock's modulus and the
// shift of side 1. kInterfaceFileUnreadable, and nothing shown, when its window can't be loaded.
OSStatus RunModalTabStockSetupDialog(const Bundle& bundle, Stock& stock, _IS_Options& shift, ModalResult& result);

} // namespace kesta
