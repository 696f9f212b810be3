#pragma once

#include "pde/ticket/TicketUtilities.h"

namespace kesta {

// What the job type's number says. There are more, up to kHighestJobType, that only a ticket can bring.
inline constexpr SInt32 kJobTypeNormal = 1;
inline constexpr SInt32 kJobTypeSavedJob = 3;
inline constexpr SInt32 kJobTypeFax = 5;
inline constexpr SInt32 kJobTypeSecurePrint = 6;
inline constexpr SInt32 kJobTypeDelayedPrint = 7;
inline constexpr SInt32 kHighestJobType = 9;

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
