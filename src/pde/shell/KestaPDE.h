#pragma once

#include "platform/values/Types.h"

namespace kesta {

struct PrintSession;

// What this product adds to the operations of the shell, called before anything else of them. All answer noErr.
OSStatus KestaPDEProlog();
OSStatus KestaPDEInitialize(PrintSession* session); // records the session as the current one
OSStatus KestaPDESync();
OSStatus KestaPDEGetSummaryText();
OSStatus KestaPDEOpen();
OSStatus KestaPDEClose();
OSStatus KestaPDETerminate(); // there is no current session from here on

} // namespace kesta
