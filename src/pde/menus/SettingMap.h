#pragma once

#include "pde/ticket/JobContext.h"

#include <span>

namespace kesta {

struct Bundle;
struct Menu;

// Ties a menu item to the value that a ticket keeps for it.
struct SettingRow {
    const char* key; // localizable key of the item's title
    SInt32 value;    // kUnset: no setting of its own
    FourCharCode command = kNoCommand;
    const char* feature = nullptr; // the row counts only while this feature's state is featureState
    bool featureState = false;
};

using SettingMap = std::span<const SettingRow>;

inline int CountMaps(SettingMap map)
{
    return static_cast<int>(map.size());
}

// The value of the row at a 1-based menu position, which must exist.
SInt32 UIToTicket(SettingMap map, int position);

// The 1-based position of the first row that has the value and whose feature state holds, or -1. A row of value 0 takes
// every value that no row before it has, and no row after it is looked at.
int TicketToUI(SettingMap map, SInt32 value);

// The key of the row that TicketToUI chooses, or null.
const char* LocalizedKeyForTicketValue(SettingMap map, SInt32 value);

// Appends an item for every row that is offered; a command other than kNoCommand takes the place of the rows' own.
// Returns the number of all the map's rows, those not offered included.
int PopulateMenuFromMap(const Bundle& bundle, Menu& menu, SettingMap map, JobContext context,
                        FourCharCode command = kNoCommand);

// Whether the row's installed feature, if it names one, is in the state that the row asks for.
bool IsOffered(const SettingRow& row);

} // namespace kesta
