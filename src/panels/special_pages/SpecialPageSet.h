#pragma once

#include "model/SpecialPageList.h"
#include "panels/special_pages/editors/CoversRules.h"

namespace kesta::special_pages {

// What a job has of special pages. The objects are the rows of the list, so they change places but not identity.
struct SpecialPageSet {
    CoverSlot frontCover, backCover;
    InsertList inserts;
    ExceptionPageList exceptions;
    // Booklet layout took the back cover out of the ticket; it is written again when the layout goes off.
    bool holdsUnwrittenBackCover = false;
};

SpecialPageSet CloneOf(const SpecialPageSet& set);
bool IsEmpty(const SpecialPageSet& set);

// The front cover; inserts and exceptions by start page, an exception before the inserts of its page; the back cover.
SpecialPages RowsOf(const SpecialPageSet& set);

// The status of the last ticket operation.
OSStatus WriteTicket(SpecialPageSet& set, Ticket& settings);
// Entries of another kind than they should be are passed over. The objects stay when the ticket holds exactly what they
// would write; false then.
bool ReadTicket(SpecialPageSet& set, Ticket& settings);

} // namespace kesta::special_pages
