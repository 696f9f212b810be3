#pragma once

#include "panels/special_pages/editors/CoversRules.h"
#include "panels/special_pages/editors/EditorCalls.h"

namespace kesta {

class Stock;
enum class ModalResult : SInt32;

namespace covers {

// The numbers of the controls in SpecialPages/Covers. Those of the back cover are kBack higher than the front one's.
inline constexpr FourCharCode kSignature = "Cvrs"_code;
inline constexpr SInt32 kBack = 100;
enum Control : SInt32 {
    kJobPicture = 7, // these three as in the other editors
    kJobSummary = 8,
    kDefaultsButton = 9,
    kOptionPicture = 20,
    kOptionPopup = 21,
    kColumn = 30,
    kSidesPicture = 31,
    kSidesPopup = 32,
    kPaperPicture = 33,
    kPaperButton = 34,
    kPaperSummary = 35,
    kTrayPopup = 36,
    kTrayHint = 37,
    kBackColumn = 130,
    kBackSidesPicture = 131,
    kBackSidesPopup = 132,
    kBackPaperPicture = 133,
    kBackPaperButton = 134,
    kBackPaperSummary = 135,
    kBackTrayPopup = 136,
    kBackTrayHint = 137,
};

} // namespace covers

// Edits both covers together. After OK: the list is rebuilt, the undo state saved, the ticket written, and then the
// slots take the covers. Without print settings a cover may have any sides printed, and nothing is written.
// kMissingArgument without a cover in edit mode, kInterfaceFileUnreadable when the window can't be loaded.
OSStatus RunModalCoversDialog(const Bundle& bundle, DialogMode mode, const Stock* jobStock, CoverSlot& front,
                              CoverSlot& back, const EditorCalls& calls, ModalResult& result, Ticket* settings);

} // namespace kesta
