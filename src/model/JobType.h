#pragma once

#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"

namespace kesta {

// How the job is printed and what the types that need setting up ask for: the ticket's dictionary of the job type.
struct JobType {
    SInt32 number = kJobTypeNormal;
    std::optional<QString> securePasscode = {}; // secret: only the ticket may carry it out of the process
    bool hasPasscode = false;                   // of a saved job: it is protected with securePasscode
    SInt64 delayedPrintTime = 0;                // seconds since 1904 began, local time; only the time of day matters
    CFIndex saveDisposition = 1;                // 1 save only, 2 save and print
    std::optional<QString> savedJobName = {};
    bool useJobName = true; // the saved job is called like the document, not savedJobName
    std::optional<QString> savedJobLocation = {};
    bool useDefaultLocation = true; // the saved job goes to the public folder, not to savedJobLocation
    CFIndex mediaTypeInJob = 1;     // carried through; chooses the saved job dialog's picture
    Dictionary entries = {};        // as read; those that are nobody's here pass through

    bool operator==(const JobType&) const = default;
};

// Whether the type has a setup: saved job, fax, secure and delayed print, and two types that only a ticket can bring.
bool JobTypeNeedsSetup(SInt32 number);

// A ticket that does not say is of a normal job with its document's name; so is a number that is none. A missing time
// leaves the record's.
void ReadJobType(JobType& job, const Ticket& settings);

// The passcode is never taken away from the entries.
void WriteJobType(JobType& job, const TicketWriter& settings);

} // namespace kesta
