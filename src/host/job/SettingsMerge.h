#pragma once

#include "host/job/JobRequest.h"
#include "host/job/PrinterFacts.h"

namespace kesta::host {

// Where a job's settings come from before anybody chooses anything, the later over the earlier: what the printer does
// without a word, the user's defaults for its queue, the settings that the job starts from, the command line. The
// dialog and printing without one put them together here and nowhere else.

// Of the dialog's own fields; -n and -P count more than -o.
HostSettings StartingSettings(const JobPresets& presets, HostSettings saved);

struct SettingSources {
    JobOptions queueDefaults = {};
    JobOptions commandLine = {}; // -o
};

// Of the printer's options and of two-sided printing, whose places agree then, whatever the source. The tickets hold
// the settings that the job starts from. What the printer does not offer is left out.
void MergeSettings(const SettingSources& sources, const PrinterFacts& printer, JobTickets& tickets);

// The options that MergeSettings takes for that printer, and the others, which go to the print server as they are:
// neither the fields nor the panels show them.
bool IsTaken(const JobOption& option, const PrinterFacts& printer);
JobOptions OptionsOutsideDialog(const JobOptions& options, const PrinterFacts& printer);

// What the settings get from that printer alone, because neither they nor -o say anything about it: option keyword to
// choice.
Dictionary PrintersOwnChoices(const SettingSources& sources, const PrinterFacts& printer, const JobTickets& tickets);
// Takes what is still as that printer brought it out again: the next one has defaults of its own.
void WithdrawChoices(const Dictionary& own, Ticket& printSettings);

// The same tickets once more.
void CopyTickets(const JobTickets& from, JobTickets& to);

// What a printer without the pane may get: the entries that the dialog's own fields show. False when there is more,
// which is left out.
bool CopyFields(const JobTickets& from, JobTickets& to);

} // namespace kesta::host
