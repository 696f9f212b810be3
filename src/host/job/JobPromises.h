#pragma once

#include "platform/printsystem/Ticket.h"
#include "platform/values/Message.h"

#include <optional>

namespace kesta::host {

// What a job's type promises beyond its sheets, for a printer without the pane, which gets no word of it.
struct JobPromise {
    const char* title;    // key of what it is about
    const char* question; // key of what that printer can't do, and whether to print all the same; %1: the printer
    const char* refusal;  // the same where nobody can be asked
};

// Nothing for a job that would come out as it is meant to.
std::optional<JobPromise> PromiseOf(const Ticket& printSettings);

// What the job can't do without and its settings lack: the passcode of a secure job, which no file keeps, or the
// recipients of a fax. The dialog asks for them.
std::optional<Message> MissingFor(const Ticket& printSettings);

bool IsFax(const Ticket& printSettings);

} // namespace kesta::host
