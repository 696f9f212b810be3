#pragma once

#include "panels/special_pages/editors/EditorControls.h"

namespace kesta {

namespace exceptions {

// The numbers of the controls in SpecialPages/Office Exceptions, beside those that all editors have.
inline constexpr FourCharCode kSignature = "Exce"_code;
enum Control : SInt32 {
    kTabs = 20,
    kPaperPane = 21,
    kImagePane = 22,
    kTwoSidedPicture = 23,
    kTwoSidedPopup = 24,
    kShiftPicture = 25,
    kShiftSummary = 26,
    kShiftButton = 27,
};

} // namespace exceptions

// Adds exceptions to the list, or replaces the edited one; nothing is changed unless the result is OK. kMissingArgument
// without an exception in edit mode, kInterfaceFileUnreadable when the window can't be loaded.
OSStatus RunModalExceptionsDialog(const Bundle& bundle, DialogMode mode, const Stock* jobStock, ExceptionPageList& list,
                                  const ExceptionPage* edited, const EditorCalls& calls, ModalResult& result);

} // namespace kesta
