#pragma once

#include "platform/values/Types.h"

namespace kesta {

class Ticket;

inline constexpr SInt32 kBookletFoldNone = 1;
inline constexpr SInt32 kBookletFold = 43;
inline constexpr SInt32 kBookletFoldAndStaple = 53;
inline constexpr SInt32 kBookletLayoutOn = 1;
inline constexpr SInt32 kBookletLayoutOff = 2;
inline constexpr SInt32 kNoPageBorders = 1;
inline constexpr SInt32 kDrawPageBorders = 2;

inline constexpr SInt32 kGreatestGutter = 216; // points
inline constexpr SInt32 kGreatestCreep = 10;   // tenths of a point

// Whether special pages stand in the way of a booklet. The first of exceptions, inserts, front cover and back cover
// that the ticket has at all decides, by holding an entry; a front cover never stands in the way.
bool SpecialPagesLockBooklet(const Ticket& settings);

// File name of the picture that shows the combination.
const char* BookletIllustration(SInt32 layout, SInt32 fold, SInt32 drawOutlines);

} // namespace kesta
