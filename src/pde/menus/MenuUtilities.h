#pragma once

#include "pde/menus/SettingMap.h"
#include "printer/PPDUtilities.h"

namespace kesta {

class PopupButton;

// Every pop-up below may be null: the call then does nothing.

// Refills the pop-up; its maximum becomes the returned number of rows, which is not the number of items.
int PopulatePopupButtonFromMap(const Bundle& bundle, PopupButton* popup, SettingMap map, JobContext context,
                               FourCharCode command = kNoCommand);

// Where the user's earlier texts go in a menu.
struct HistoryItems {
    QAnyStringView key;  // in the input history; null for no history
    int insertAfter = 0; // the newest goes after this item (0: to the top), the others follow
    FourCharCode command = kNoCommand;
};
// The same, with the history between the rows; each of its items counts once more.
int PopulatePopupButtonFromMapAndHistory(const Bundle& bundle, PopupButton* popup, SettingMap map, JobContext context,
                                         const HistoryItems& history, FourCharCode command = kNoCommand);

// Refills the pop-up; its maximum becomes the returned number of items.
int PPDPopulatePopupWithChoices(PopupButton* popup, ppd_file_t* ppd, PPDKeyword keyword, Conflicting conflicting);

// Selects the first item that stands for the value; false, and the selection as it was, when none does.
bool SetPopupButtonToTicketValue(PopupButton* popup, SInt32 value);
// The value that the selected item stands for; 0 without one.
SInt32 GetPopupButtonTicketValue(const PopupButton* popup);

} // namespace kesta
