#pragma once

#include "platform/printsystem/PrintSession.h"
#include "platform/printsystem/PrintSystemKeys.h"
#include "platform/printsystem/Ticket.h"
#include "platform/values/Message.h"

#include <span>

namespace kesta {

// The tickets of one job.
struct JobTickets {
    Ticket printSettings, pageFormat, printerInfo;
};

// The session finds the tickets by their names while they live.
void AddToSession(const JobTickets& tickets, PrintSession& session);

// Job settings as a file holds them: an XML property list of the tickets' entries with their clients, and of the
// print-settings ticket's PPD choices. What was read from these bytes is written as the same bytes. Locks are a
// session's own affair and are not saved. The named entries of dictionaries in the print-settings ticket are left out.
QByteArray WriteJobSettings(const JobTickets& tickets, std::span<const NestedEntry> leftOut = {});

inline constexpr qsizetype kLargestJobSettings = 16 * 1024 * 1024; // bytes of a file

// Replaces everything in the tickets; nothing on success. Otherwise what is wrong and where, and the tickets are as
// they were. Entries of the root that this version does not know are left alone.
std::optional<Message> ReadJobSettings(const QByteArray& bytes, JobTickets& tickets);

} // namespace kesta
