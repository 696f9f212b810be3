#pragma once

#include "host/commandline/CommandLine.h"

#include <chrono>

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// Whether this command line needs no window: --help, --version, --list-options or --no-dialog.
bool RunsWithoutDialog(const CommandLine& commandLine);

// Does it, with these texts. Results on standard output, one line of failure on standard error. The program's exit
// status: 0 or 1. "patience" is how long a print server may be silent.
int RunWithoutDialog(const CommandLine& commandLine, const Bundle& texts,
                     std::chrono::milliseconds patience = std::chrono::seconds(10));

} // namespace kesta::host
