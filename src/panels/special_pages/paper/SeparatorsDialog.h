#pragma once

#include "model/Stock.h"
#include "pde/menus/SettingMap.h"
#include "platform/printsystem/Ticket.h"

#include <array>

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

// What lies between transparencies.
inline constexpr SInt32 kSeparatorsNone = 1;
inline constexpr SInt32 kSeparatorsBlank = 2;
inline constexpr SInt32 kSeparatorsPrinted = 3;

// The stock, of which the colour alone counts, becomes a fresh one first. kMissingArgument without a ticket;
// kNoSuchTicketEntry, with the colour unset, when there are separators but no colour is said.
OSStatus SyncSeparatorsFromTicket(const Ticket* settings, SInt32& option, Stock& stock);

// The status of the last write. kMissingArgument without a ticket.
OSStatus SyncSeparatorsToTicket(Ticket* settings, SInt32 option, const Stock& stock);

// File name of the picture of sheets with these separators; empty for an option that is not in the map.
QString SeparatorsPicture(SInt32 option, SInt32 color);

namespace separators {

// The numbers of the controls in SeparatorsDialog/Separators.
inline constexpr FourCharCode kSignature = "Sepa"_code;
enum Control : SInt32 {
    kOptionPopup = 1,
    kColorLabel = 2,
    kColorPopup = 3,
    kPicture = 4,
    kDefaultsButton = 5,
};

} // namespace separators

// Lets the user choose; option and the stock's colour change on OK only, the colour not when there are no separators.
// kInterfaceFileUnreadable, and nothing shown, when its window can't be loaded.
OSStatus RunModalSeparatorsDialog(const Bundle& bundle, SInt32& option, Stock& stock, ModalResult& result);

} // namespace kesta
