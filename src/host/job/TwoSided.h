#pragma once

#include "host/job/JobOptions.h"

#include "platform/printsystem/Ticket.h"

#include <optional>

namespace kesta::host {

// Whether and how both sides are printed has four names: two numbers in the ticket, the printer's option "Duplex" and
// the print server's option "sides". Here they are one: 1 one-sided, 2 over the long edge, 3 over the short edge.

inline constexpr QLatin1StringView kDuplexOption("Duplex");
inline constexpr QLatin1StringView kSidesOption("sides");

// Nothing when the options don't say, or in a word of the printer's own. The printer's option counts before the
// server's, as it does for the server's filters.
std::optional<SInt32> DuplexingOf(const JobOptions& options);
// In the order in which the panels look: the panel's number, the print system's, the printer's choice.
std::optional<SInt32> DuplexingOf(const Ticket& printSettings);

SInt32 DuplexingOfChoice(QAnyStringView choice); // 1 for a choice of another name
QString ChoiceOfDuplexing(SInt32 duplexing);

// In every place of the ticket that says something about it.
void WriteDuplexing(SInt32 duplexing, Ticket& printSettings);

// The server's option says what the printer's does, or nothing: its own default would count otherwise.
void AlignSides(JobOptions& options);

} // namespace kesta::host
