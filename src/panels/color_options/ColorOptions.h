#pragma once

#include "model/FullColorOptions.h"
#include "platform/printsystem/Ticket.h"

namespace kesta::color_options {

// What the panel edits, and the ticket's dictionary that it came from.
struct ColorOptions {
    FullColorOptions record;
    Dictionary asRead;

    bool operator==(const ColorOptions&) const = default;
};

void ReadTicket(ColorOptions& options, const Ticket& settings);

// Changes only those entries of the dictionary that the user's changes are about: what the record can't hold, entries
// of others among them, stays as it was read. A ticket without any color option has no dictionary.
void WriteTicket(const ColorOptions& options, Ticket& settings);

} // namespace kesta::color_options
