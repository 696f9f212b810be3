#pragma once

#include "model/JobType.h"
#include "toolkit/controls/ControlEvent.h"

namespace kesta {

struct Bundle;

// The dialogs in which a job type is set up. Each returns noErr when it was shown, with its arguments changed on OK
// only, and kInterfaceFileUnreadable, with nothing shown or changed, when its window can't be loaded.

// Asks for the passcode, twice; OK without one makes one and tells the user.
OSStatus RunModalSecurePrintSetup(const Bundle& bundle, std::optional<QString>& passcode);

// Asks for the time of day; the time becomes the next moment of it from now on.
OSStatus RunModalDelayedPrintSetup(const Bundle& bundle, SInt64& time);

// Asks for name, folder, disposition and protection of a saved job; OK remembers typed names and folders, never the
// passcode.
OSStatus RunModalSavedJobDialog(const Bundle& bundle, JobType& job);

namespace jobtypes {

// The numbers of the controls. The fields for a passcode have the same ones in both windows that ask for one.
inline constexpr FourCharCode kSecurePrintSignature = "Secu"_code;  // SecurePrint/SecurePrint
inline constexpr FourCharCode kDelayedPrintSignature = "Dela"_code; // DelayedPrint/DelayedPrint
inline constexpr FourCharCode kSavedJobSignature = "Save"_code;     // SavedJob/withPasscode
enum Control : SInt32 {
    kPasscodeLabel = 1,
    kPasscodeField = 2,
    kPasscodeLimits = 3,
    kConfirmationLabel = 4,
    kConfirmationField = 5,
    kConfirmationLimits = 6,
    kTimeField = 10,
    kSaveRadio = 20,
    kSavePrintRadio = 21,
    kJobNameBox = 22,
    kFolderBox = 23,
    kSecureCheckBox = 24,
    kFormatPicture = 25,
};

} // namespace jobtypes
} // namespace kesta
