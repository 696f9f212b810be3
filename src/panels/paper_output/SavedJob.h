#pragma once

#include "model/JobType.h"

namespace kesta {

struct Bundle;

namespace jobtypes {

// The numbers of the controls in SavedJob/withPasscode, beside those of PasscodeFields.h.
inline constexpr FourCharCode kSavedJobSignature = "Save"_code;
enum SavedJobControl : SInt32 {
    kSaveRadio = 20,
    kSavePrintRadio = 21,
    kJobNameBox = 22,
    kFolderBox = 23,
    kSecureCheckBox = 24,
    kFormatPicture = 25,
};

} // namespace jobtypes

// Asks for name, folder, disposition and protection of a saved job; OK remembers typed names and folders, never the
// passcode. noErr when it was shown, with the job changed on OK only; kInterfaceFileUnreadable, with nothing shown
// or changed, when its window can't be loaded.
OSStatus RunModalSavedJobDialog(const Bundle& bundle, JobType& job);

} // namespace kesta
