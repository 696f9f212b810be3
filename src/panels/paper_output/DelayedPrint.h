#pragma once

#include "platform/values/Types.h"

namespace kesta {

struct Bundle;

namespace jobtypes {

// The numbers of the controls in DelayedPrint/DelayedPrint.
inline constexpr FourCharCode kDelayedPrintSignature = "Dela"_code;
enum DelayedPrintControl : SInt32 {
    kTimeField = 10,
};

} // namespace jobtypes

// Asks for the time of day; the time becomes the next moment of it from now on. noErr when it was shown, with the time
// changed on OK only; kInterfaceFileUnreadable, with nothing shown or changed, when its window can't be loaded.
OSStatus RunModalDelayedPrintSetup(const Bundle& bundle, SInt64& time);

} // namespace kesta
