#pragma once

#include "panels/special_pages/editors/EditorControls.h"
#include "pde/menus/SettingMap.h"

#include <array>

namespace kesta {

inline constexpr auto _InsertOptionMap = std::to_array<SettingRow>({
    {"After Page", kAfterPage},
    {"SpecialPageSummaryBefore1", kBeforePage1},
});
static_assert(_InsertOptionMap.size() == 2);

namespace inserts {

// The numbers of the controls in SpecialPages/Inserts, beside those that all editors have.
inline constexpr FourCharCode kSignature = "Insr"_code;
enum Control : SInt32 {
    kOptionPicture = 20,
    kOptionPopup = 21,
    kQuantityField = 22,
    kQuantityHint = 23,
};
inline constexpr SInt32 kMostSheets = 9'999'999;

} // namespace inserts

// Adds inserts to the list, or replaces the edited one; nothing is changed unless the result is OK. kMissingArgument
// without an insert in edit mode, kInterfaceFileUnreadable when the window can't be loaded.
OSStatus RunModalInsertsDialog(const Bundle& bundle, DialogMode mode, const Stock* jobStock, InsertList& list,
                               const Insert* edited, const EditorCalls& calls, ModalResult& result);

} // namespace kesta
