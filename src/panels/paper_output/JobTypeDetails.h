#pragma once

#include "platform/values/Types.h"

#include <QString>

#include <optional>

namespace kesta {

// What the job types that need setting up ask for; the Paper/Output panel keeps it between ticket and dialogs.
struct JobTypeDetails {
    std::optional<QString> securePasscode = {}; // secret: only the ticket may carry it out of the process
    bool hasPasscode = false;                   // of a saved job: it is protected with securePasscode
    SInt64 delayedPrintTime = 0;                // seconds since 1904 began, local time; only the time of day matters
    CFIndex saveDisposition = 1;                // 1 save only, 2 save and print
    std::optional<QString> savedJobName = {};
    bool useJobName = true; // the saved job is called like the document, not savedJobName
    std::optional<QString> savedJobLocation = {};
    bool useDefaultLocation = true; // the saved job goes to the public folder, not to savedJobLocation
    CFIndex mediaTypeInJob = 1;     // carried through; chooses the saved job dialog's picture

    bool operator==(const JobTypeDetails&) const = default;
};

} // namespace kesta
