#pragma once

#include "model/Booklet.h"

namespace kesta {

// Whether the ticket's first special pages stand in the way of a booklet; a front cover never does.
bool SpecialPagesLockBooklet(const Ticket& settings);

// File name of the picture that shows the combination.
const char* BookletIllustration(const Booklet& booklet);

} // namespace kesta
