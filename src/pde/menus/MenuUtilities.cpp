#include "pde/menus/MenuUtilities.h"

#include "platform/system/UserPreferences.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/controls/TypedValueHistory.h"

#include <algorithm>

namespace kesta {

int PopulatePopupButtonFromMap(const Bundle& bundle, PopupButton* popup, SettingMap map, JobContext context,
                               FourCharCode command)
{
    if (!popup)
        return 0;
    Menu menu;
    const int rows = PopulateMenuFromMap(bundle, menu, map, context, command);
    popup->setMenu(std::move(menu), rows);
    return rows;
}

int PopulatePopupButtonFromMapAndHistory(const Bundle& bundle, PopupButton* popup, SettingMap map, JobContext context,
                                         const HistoryItems& history, FourCharCode command)
{
    if (!popup)
        return 0;
    Menu menu;
    int count = PopulateMenuFromMap(bundle, menu, map, context, command);
    if (!history.key.isNull()) {
        const Dictionary preferences = CopyUserPreferences(kInputHistoryFile).value_or(Dictionary());
        int after = std::max(history.insertAfter, 0);
        for (const QString& typed : TypedValueHistory(preferences, history.key)) {
            const auto place = menu.items.begin() + std::min(after++, menu.count());
            menu.items.insert(place, {.title = typed, .command = history.command});
            ++count;
        }
    }
    popup->setMenu(std::move(menu), count);
    return count;
}

int PPDPopulatePopupWithChoices(PopupButton* popup, ppd_file_t* ppd, PPDKeyword keyword, Conflicting conflicting)
{
    if (!popup || !ppd)
        return 0;
    Menu menu;
    const int count = PPDPopulateMenuWithChoices(menu, ppd, keyword, kNoCommand, conflicting);
    popup->setMenu(std::move(menu));
    return count;
}

bool SetPopupButtonToTicketValue(PopupButton* popup, SInt32 value)
{
    if (!popup)
        return false;
    int position = 0;
    for (const MenuItem& item : popup->menu().items) {
        ++position;
        if (item.value == value) {
            popup->setValue(position);
            return true;
        }
    }
    return false;
}

SInt32 GetPopupButtonTicketValue(const PopupButton* popup)
{
    const MenuItem* item = popup ? popup->selectedItem() : nullptr;
    return item ? item->value : 0;
}

} // namespace kesta
