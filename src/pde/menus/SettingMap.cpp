#include "pde/menus/SettingMap.h"

#include "platform/plugins/Bundle.h"
#include "printer/InstallableOptions.h"
#include "toolkit/controls/Menu.h"

namespace kesta {
namespace {

QString Title(const Bundle& bundle, const SettingRow& row, JobContext context)
{
    if (row.value == kUnset)
        return LocalizedString(bundle, context == JobContext::Job ? "PrinterDefault" : "UseJobSetting");
    return LocalizedString(bundle, row.key);
}

} // namespace

bool IsOffered(const SettingRow& row)
{
    return !row.feature || getInstalledFeature(row.feature) == row.featureState;
}

SInt32 UIToTicket(SettingMap map, int position)
{
    return map[position - 1].value;
}

int TicketToUI(SettingMap map, SInt32 value)
{
    int position = 0;
    for (const SettingRow& row : map) {
        ++position;
        if (row.value == 0 || (row.value == value && IsOffered(row)))
            return position;
    }
    return -1;
}

const char* LocalizedKeyForTicketValue(SettingMap map, SInt32 value)
{
    const int position = TicketToUI(map, value);
    return position < 0 ? nullptr : map[position - 1].key;
}

int PopulateMenuFromMap(const Bundle& bundle, Menu& menu, SettingMap map, JobContext context, FourCharCode command)
{
    menu.source = map.data();
    for (const SettingRow& row : map) {
        if (IsOffered(row))
            menu.items.push_back({.title = Title(bundle, row, context),
                                  .command = command != kNoCommand ? command : row.command,
                                  .value = row.value});
    }
    return CountMaps(map);
}

} // namespace kesta
