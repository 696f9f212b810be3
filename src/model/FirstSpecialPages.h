#pragma once

#include "platform/printsystem/Ticket.h"

namespace kesta {

// Whether special pages are in the way of something is asked of the first kind that a ticket has, in this order. A list
// may be there and be empty; what comes behind it has no say all the same.
enum class SpecialPagesKind { Exceptions, Inserts, FrontCover, BackCover };
struct FirstSpecialPages {
    SpecialPagesKind kind;
    bool holdsAny;
};
std::optional<FirstSpecialPages> FirstSpecialPagesOf(const Ticket& settings);

} // namespace kesta
