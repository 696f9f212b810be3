#pragma once

#include "model/Booklet.h"
#include "toolkit/controls/ControlEvent.h"

namespace kesta {

struct Bundle;

inline constexpr OSStatus kBookletDialogCancelled = -1;

// Let the user choose: noErr for OK, with the booklet changed. Else all stays as it was: kBookletDialogCancelled,
// or kInterfaceFileUnreadable when the window can't be loaded. Special pages of the
// current print session lock what would break them.

// Of the Booklet/Watermark panel; asks for the fold only where a fold is installed.
OSStatus RunModalBookletOptionsDialog(const Bundle& bundle, Booklet& booklet);
// Of the Paper/Output panel's finishing menu.
OSStatus RunModalBookletCreationDialog(const Bundle& bundle, Booklet& booklet);

namespace booklet {

// The numbers of the controls in BookletCreation/BookletFinishingOptions, BookletCreation/BookletOptions and
// BookletCreation/BookletCreation.
inline constexpr FourCharCode kSignature = "Bkcr"_code;
enum Control : SInt32 {
    kFoldLabel = 1,          // not in BookletOptions
    kFoldNoneRadio = 2,      // not in BookletOptions
    kFoldRadio = 3,          // not in BookletOptions
    kFoldAndStapleRadio = 4, // not in BookletOptions
    kLayoutOffRadio = 5,
    kLayoutOnRadio = 6,
    kDrawOutlinesBox = 7,
    kNewSizeLabel = 8,
    kNewSizePopup = 9,
    kGutterLabel = 10,
    kGutterField = 11,
    kGutterRange = 12,
    kCreepLabel = 13,
    kCreepField = 14,
    kCreepRange = 15,
    kIllustration = 16,
    kFoldScene = 17,
    kFoldHint = 18,
    kLockRow = 19,
    kLockMark = 20,
    kLockReason = 21,
    kWithoutLayoutHint = 22, // not in BookletOptions
};

} // namespace booklet
} // namespace kesta
