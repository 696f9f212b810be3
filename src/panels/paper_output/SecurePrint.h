#pragma once

#include "platform/values/Types.h"

#include <QString>

#include <optional>

namespace kesta {

struct Bundle;

namespace jobtypes {

inline constexpr FourCharCode kSecurePrintSignature = "Secu"_code; // numbers: see PasscodeFields.h

} // namespace jobtypes

// Asks for the passcode, twice; OK without one makes one and tells the user. noErr when it was shown, with the passcode
// changed on OK only; kInterfaceFileUnreadable, with nothing shown or changed, when its window can't be loaded.
OSStatus RunModalSecurePrintSetup(const Bundle& bundle, std::optional<QString>& passcode);

} // namespace kesta
