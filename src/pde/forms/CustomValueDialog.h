#pragma once

#include "pde/forms/TextFieldUtilities.h"
#include "platform/values/Types.h"

#include <optional>

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

// The number of the control in Utilities/CustomValue.
namespace customvalue {

inline constexpr FourCharCode kSignature = "Util"_code;
enum Control : SInt32 {
    kValueField = 1,
};

} // namespace customvalue

// Asks for one text, starting from the given one. OK leaves the typed text, cancel none; when the window can't be
// loaded, its status is returned and neither argument changes.
OSStatus RunModalCustomValueDialog(const Bundle& bundle, const TextLimits& limits, std::optional<QString>& text,
                                   ModalResult& result);

} // namespace kesta
