#pragma once

#include "host/job/JobOptions.h"

#include "platform/printsystem/JobSettings.h"

#include <memory>
#include <optional>

namespace kesta::host {

// What whoever asks for a job has set already; it prevails over the settings that the job starts from.
struct JobPresets {
    JobOptions options = {};        // the printer's and the print server's, by name
    std::optional<int> copies = {}; // 1 to kMostCopies
    QString pageRanges = {};        // "1-4,7,16-": in order, apart from each other; empty: as the settings say

    bool operator==(const JobPresets&) const = default;
};

// What the dialog is asked for. The dialog opens no document and sends nothing: there may be no document yet.
struct JobRequest {
    QString server = {};                  // "host[:port][/version=1.1]" or a socket's path; empty: the default one
    QString queue = {};                   // "queue" or "queue/instance"; empty: the default one
    QString ppdPath = {};                 // a printer that is a description alone, in place of a queue
    QString deviceURI = {};               // that printer's address; empty: not known
    std::optional<QString> document = {}; // its name for people; nothing: there is none, or it comes later
    std::optional<QString> title = {};    // the job's; nothing: as the document
    JobPresets presets = {};
    QString saveSettingsPath = {}; // where the settings go once they are accepted; empty: nowhere
    // What the job starts from. The dialog works on them; of an accepted job they are the settings.
    std::shared_ptr<JobTickets> settings = std::make_shared<JobTickets>();
};

// What the user wants printed, and how.
struct AcceptedJob {
    QString queue = {};                // the name without instance; empty: the printer has no queue
    std::optional<QString> title = {}; // as in the request
    JobOptions options = {};           // all that the print server is told; none without a queue
    std::shared_ptr<const JobTickets> settings = {};
};

// How the dialog ended. A failure: the last attempt to print or save failed, and then the user gave up.
enum class DialogEnd { Accepted, Cancelled, Failed };

// The program's. A script that played to its end did what it should, also when that was to cancel.
constexpr int ExitStatus(DialogEnd end, bool isScripted)
{
    constexpr int kCancelled = 3;
    if (end == DialogEnd::Cancelled)
        return isScripted ? 0 : kCancelled;
    return end == DialogEnd::Accepted ? 0 : 1;
}

} // namespace kesta::host
