#pragma once

#include "panels/special_pages/paper/SeparatorsRules.h"

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

namespace separators {

// The numbers of the controls in SeparatorsDialog/Separators.
inline constexpr FourCharCode kSignature = "Sepa"_code;
enum Control : SInt32 {
    kOptionPopup = 1,
    kColorLabel = 2,
    kColorPopup = 3,
    kPicture = 4,
    kDefaultsButton = 5,
};

} // namespace separators

// Lets the user choose; option and the stock's colour change on OK only, the colour not when there are no separators.
// kInterfaceFileUnreadable, and nothing shown, when its window can't be loaded.
OSStatus RunModalSeparatorsDialog(const Bundle& bundle, SInt32& option, Stock& stock, ModalResult& result);

} // namespace kesta
