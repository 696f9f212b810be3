#pragma once

#include "pde/ticket/TicketUtilities.h"

namespace kesta {

inline constexpr SInt32 kBookletLayoutOn = 1;
inline constexpr SInt32 kBookletLayoutOff = 2;
inline constexpr SInt32 kNoPageBorders = 1;
inline constexpr SInt32 kDrawPageBorders = 2;

inline constexpr SInt32 kGreatestGutter = 216; // points
inline constexpr SInt32 kGreatestCreep = 10;   // tenths of a point

// The job as a booklet: what its dialogs edit and the panels keep, as ticket values.
struct Booklet {
    SInt32 fold = 1; // a choice of the PPD's option; 1 none. Also of a job that is folded without being a booklet
    SInt32 layout = kBookletLayoutOff;
    SInt32 drawOutlines = kNoPageBorders;
    SInt32 newPaperSize = kUnset; // a stock size to which the pages are fitted; kUnset for the job's own
    SInt32 gutter = 24;           // points, from 0
    SInt32 creep = 0;             // tenths of a point, from 0

    bool isOn() const { return layout == kBookletLayoutOn; }
    bool operator==(const Booklet&) const = default;
};

// All but the fold, which is the PPD's. While the layout is off the ticket tells nothing else, and the rest stays.
void ReadBooklet(Booklet& booklet, const Ticket& settings);

// The stock size to which the pages are fitted; nothing while none is forced.
std::optional<SInt32> ReadForcedSize(const Ticket& settings);

// The new size becomes the one of the job's stock, where the ticket has a stock.
void WriteBooklet(const Booklet& booklet, const TicketWriter& settings);

} // namespace kesta
