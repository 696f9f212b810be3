#pragma once

#include "host/JobOptions.h"

#include "platform/Value.h"

#include <optional>

namespace kesta::host {

// The dialog's own fields as they count for the print server.
struct JobFields {
    std::optional<int> copies; // 1 to 9999
    QString pageRanges;        // "1-4,7,16-"; empty: all
    int orientation = 0;       // as tickets have it: 1 portrait, 2 landscape, 3 and 4 the same upside down; 0: not said
    int pagesPerSheet = 0;     // 0: not said
};

// Everything that has a say in one job's options.
struct JobSources {
    JobOptions queueDefaults; // the user's defaults for the queue
    Dictionary ppdChoices;    // of the print-settings ticket: option keyword to choice
    JobOptions commandLine;   // -o
    JobFields fields;         // the dialog's fields, or -n and -P
    QByteArray ticket;        // property list of the print-settings ticket; empty: none travels
};

struct ComposedOptions {
    JobOptions options;
    QString problem; // empty, or why nothing may be sent: one line
};

// Later sources prevail over earlier ones, in the order of JobSources: -o prevails over saved settings, and what the
// user set in the dialog (whose fields start from -o) or by -n and -P prevails over -o. With a dialog, pass what is
// left of -o after the PPD's own options were preset from it (see OptionsOutsidePPD).
ComposedOptions ComposeJobOptions(const JobSources& sources);

} // namespace kesta::host
