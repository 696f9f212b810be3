#pragma once

#include "model/Stock.h"

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

namespace stockdescription {

// The numbers of the controls in StockDescriptionSetup/StockDescriptionSetup.
inline constexpr FourCharCode kSignature = "StDe"_code;
enum Control : SInt32 {
    kDescriptionField = 1,
    kIcon = 2,
};

} // namespace stockdescription

inline constexpr int kMostDescriptionLength = 255; // UTF-16 units

// Asks for the stock's description, from the one it has when it is edited; OK alone changes it.
// kInterfaceFileUnreadable, and nothing shown, when its window can't be loaded.
OSStatus RunModalStockDescriptionSetup(const Bundle& bundle, DialogMode mode, JobContext context, Stock& stock,
                                       ModalResult& result);

} // namespace kesta
