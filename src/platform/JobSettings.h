#pragma once

#include "platform/PrintSession.h"
#include "platform/Ticket.h"

namespace kesta {

// The tickets of one job.
struct JobTickets {
    Ticket printSettings, pageFormat, printerInfo;
};

// The session finds the tickets by their names while they live.
void AddToSession(const JobTickets& tickets, PrintSession& session);

// Job settings as a file holds them: an XML property list of the tickets' entries with their clients, and of the
// print-settings ticket's PPD choices. What was read from these bytes is written as the same bytes. Locks are a
// session's own affair and are not saved.
QByteArray WriteJobSettings(const JobTickets& tickets);

// Replaces everything in the tickets; nothing on success. Otherwise one line that says what is wrong and where, and the
// tickets are as they were.
std::optional<QString> ReadJobSettings(const QByteArray& bytes, JobTickets& tickets);

} // namespace kesta
