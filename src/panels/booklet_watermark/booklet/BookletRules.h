#pragma once

#include "model/Booklet.h"
#include "printer/PPDUtilities.h"

namespace kesta {

struct Bundle;

// Whether the ticket's first special pages stand in the way of a booklet; a front cover never does.
bool SpecialPagesLockBooklet(const Ticket& settings);

// Why a job can't become a booklet now, nor stop being one.
struct BookletLock {
    bool bySpecialPages = false;
    bool byStaple = false; // in a corner or at an edge: a booklet is stapled in its fold
    // What the job has of special pages that are in the way, whichever of them decided.
    bool hasExceptions = false, hasInserts = false, hasBackCover = false;

    bool isLocked() const { return bySpecialPages || byStaple; }
    bool operator==(const BookletLock&) const = default;
};
// The PPD may be null.
BookletLock BookletLockOf(const Ticket& settings, ppd_file_t* ppd);
// In words; empty without a lock.
QString BookletLockReason(const Bundle& bundle, const BookletLock& lock);

// File name of the picture that shows the combination.
const char* BookletIllustration(const Booklet& booklet);

} // namespace kesta
