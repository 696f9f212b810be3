#pragma once

#include "model/Booklet.h"

namespace kesta {

// Whether special pages stand in the way of a booklet. The first of exceptions, inserts, front cover and back cover
// that the ticket has at all decides, by holding an entry; a front cover never stands in the way.
bool SpecialPagesLockBooklet(const Ticket& settings);

// File name of the picture that shows the combination.
const char* BookletIllustration(const Booklet& booklet);

} // namespace kesta
