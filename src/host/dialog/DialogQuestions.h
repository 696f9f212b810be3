#pragma once

#include "host/job/JobPromises.h"
#include "host/ppd/Constraints.h"
#include "host/server/Queues.h"
#include "platform/system/Notices.h"
#include "toolkit/windows/WindowSummary.h"

namespace kesta {
struct Bundle;
}

// What Print may ask before it prints. The first button goes on, unless it is the only one.
namespace kesta::host {

// The sentences, and the changes of all conflicts, one a line each.
Alert ConflictQuestion(const ConflictReport& report, const Bundle& texts);

// The same of what the panels show and the printer does not offer.
Alert NotOfferedQuestion(const std::vector<NotOffered>& shown, const Bundle& texts);

// Of choices ("keyword" or "keyword=choice") that this printer does not have and nothing in the window shows.
Alert LeaveOutQuestion(const QStringList& choices, const Bundle& texts);

// Of a queue that won't print what it is sent now; nothing when it will.
std::optional<Alert> QueueQuestion(const Queue& queue, const Bundle& texts);

// Of a printer that can't do what the job's type says.
Alert PromiseQuestion(const JobPromise& promise, const QString& printer, const Bundle& texts);

// False: the user goes back to the dialog.
bool IsAccepted(const Alert& question);

} // namespace kesta::host
