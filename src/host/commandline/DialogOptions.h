#pragma once

#include "host/job/HostTickets.h"
#include "host/job/JobRequest.h"
#include "host/ppd/PPDFacts.h"

namespace kesta::host {

// The dialog's fields as they start: saved settings, over them what the presets' options say, over that their copies
// and pages.
HostSettings StartingSettings(const JobPresets& presets, HostSettings saved);

// Sets the printer's own options among the job options as choices of the ticket. What is set already stays, unless
// these prevail.
enum class Preset { Fills, Prevails };
void PresetChoices(const JobOptions& options, const PPDFacts& facts, Preset preset, Dictionary& choices);

// What is left of the job options for the print server: neither the printer's own nor the dialog's fields, both of
// which the user may have changed since.
JobOptions OptionsOutsideDialog(const JobOptions& options, const PPDFacts& facts);

} // namespace kesta::host
