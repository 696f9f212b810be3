#pragma once

#include "host/job/HostTickets.h"
#include "host/job/JobOptions.h"
#include "host/job/SealedTicket.h"

#include "platform/values/Value.h"

#include <optional>

namespace kesta::host {

// The dialog's own fields as they count for the print server.
struct JobFields {
    std::optional<int> copies = {};              // 1 to 9999
    QString pageRanges = {};                     // "1-4,7,16-"; empty: all
    std::optional<Orientation> orientation = {}; // nothing: as the document is
    std::optional<int> pagesPerSheet = {};
};

// Everything that has a say in one job's options.
struct JobSources {
    JobOptions queueDefaults = {}; // the user's defaults for the queue
    Dictionary ppdChoices = {};    // of the print-settings ticket: option keyword to choice
    JobOptions commandLine = {};   // -o
    JobFields fields = {};         // the dialog's fields, or -n and -P
    Dictionary ticket = {};        // entries of the print-settings ticket; empty: none travels
    TicketReader reader = {};      // of the ticket, at the queue's print server
};

struct ComposedOptions {
    JobOptions options = {};
    Message problem = {}; // empty, or why nothing may be sent
};

// Later sources prevail over earlier ones, in the order of JobSources: -o prevails over saved settings, and what the
// user set by -n and -P or in the dialog, whose fields and panels start from -o, prevails over -o. With a dialog
// "commandLine" is therefore only what the dialog does not show.
ComposedOptions ComposeJobOptions(const JobSources& sources);

} // namespace kesta::host
