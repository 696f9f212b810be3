#pragma once

#include "model/Stock.h"

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

namespace precuttab {

// The numbers of the controls in PreCutTabStockSetup/PreCutTabStockSetup.
inline constexpr FourCharCode kSignature = "PCTS"_code;
enum Control : SInt32 {
    kSequenceField = 1,
    kSequenceLimits = 2,
    kPicture = 3,
};

} // namespace precuttab

// Asks how many tabs make a set; OK stores that as the stock's modulus. kInterfaceFileUnreadable, and nothing shown,
// when its window can't be loaded.
OSStatus RunModalPreCutTabStockSetup(const Bundle& bundle, DialogMode mode, JobContext context, Stock& stock,
                                     ModalResult& result);

} // namespace kesta
