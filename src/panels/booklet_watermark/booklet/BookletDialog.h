#pragma once

#include "panels/booklet_watermark/booklet/BookletRules.h"
#include "toolkit/controls/ControlEvent.h"

namespace kesta {

struct Bundle;

// What the booklet dialogs edit. Gutter is in points, creep in tenths of a point.
struct _BookletCreationParams {
    const Bundle* bundle = nullptr;
    SInt32 fold = 1;              // 1 none, 43 fold, 53 fold and staple
    SInt32 layout = 2;            // 1 on, 2 off
    SInt32 drawOutlines = 1;      // 1 no page borders, 2 page borders
    SInt32 newPaperSize = kUnset; // a stock size; kUnset for the job's own
    SInt32 gutter = 24;           // 0 to 216
    SInt32 creep = 0;             // 0 to 10

    bool operator==(const _BookletCreationParams&) const = default;
};

inline constexpr OSStatus kBookletDialogCancelled = -1;

// Let the user choose: noErr for OK, with the parameters changed. Else all stays as it was: kBookletDialogCancelled,
// kMissingArgument without a bundle, kInterfaceFileUnreadable when the window can't be loaded. Special pages of the
// current print session lock what would break them.

// Of the Booklet/Watermark panel; asks for the fold only where a fold is installed.
OSStatus RunModalBookletOptionsDialog(_BookletCreationParams& params);
// Of the Paper/Output panel's finishing menu.
OSStatus RunModalBookletCreationDialog(_BookletCreationParams& params);

namespace booklet {

// The numbers of the controls in BookletCreation/BookletFinishingOptions, BookletCreation/BookletOptions and
// BookletCreation/BookletCreation.
inline constexpr FourCharCode kSignature = "Bkcr"_code;
enum Control : SInt32 {
    kFoldLabel = 1, // not in BookletOptions
    kFoldNoneRadio = 2, // not in BookletOptions
    kFoldRadio = 3, // not in BookletOptions
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
};

} // namespace booklet
} // namespace kesta
