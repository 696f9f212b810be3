#pragma once

#include "model/Stock.h"
#include "platform/printsystem/Ticket.h"

namespace kesta {

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

} // namespace kesta
