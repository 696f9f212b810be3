#pragma once

#include "host/commandline/CommandLine.h"
#include "host/job/JobRequest.h"
#include "host/server/Submission.h"

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// The command line as a caller of the dialog: what it asks for, and what becomes of the job that the user accepts.

struct RequestOrProblem {
    JobRequest request = {};
    Message problem =
        {}; // empty, or why there is nothing to ask for: a file to print or the saved settings can't be read
};
RequestOrProblem DialogRequest(const CommandLine& commandLine, const Bundle& texts);

// Sends the command line's files, and prints the job's number unless that is not wanted. Both arguments must outlive
// it.
SendFunction DialogSender(const CommandLine& commandLine, const Bundle& texts);

} // namespace kesta::host
