#pragma once

#include "platform/values/Types.h"

namespace kesta {

// What panels tell in the window's summary line, in its order: the places for ShowInSummary.
struct SummaryPlace {
    static constexpr SInt32 JobType = 1;
    static constexpr SInt32 Paper = 2;
    static constexpr SInt32 Sides = 3;
    static constexpr SInt32 Finishing = 4;
    static constexpr SInt32 OtherPages = 5;
    static constexpr SInt32 Watermark = 6;
    static constexpr SInt32 Quality = 7;
    static constexpr SInt32 Colors = 8;
    static constexpr SInt32 Output = 9; // where the sheets come out, and how
    static constexpr SInt32 Other = 10;
};

} // namespace kesta
