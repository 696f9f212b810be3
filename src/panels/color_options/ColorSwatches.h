#pragma once

#include "model/FullColorOptions.h"

#include <array>

namespace kesta::color_options {

// How much of each there is, 0 to 1.
struct Rgb {
    double red = 0;
    double green = 0;
    double blue = 0;

    bool operator==(const Rgb&) const = default;
};

// The colors of the strip: grays, a skin, and the corners of the printer's colors.
inline constexpr auto kSwatches = std::to_array<Rgb>({
    {0.10, 0.10, 0.10},
    {0.35, 0.35, 0.35},
    {0.60, 0.60, 0.60},
    {0.85, 0.85, 0.85},
    {0.88, 0.67, 0.55},
    {0.80, 0.20, 0.20},
    {0.90, 0.75, 0.20},
    {0.25, 0.60, 0.30},
    {0.20, 0.65, 0.75},
    {0.20, 0.30, 0.70},
    {0.70, 0.25, 0.60},
    {0.45, 0.30, 0.20},
});
static_assert(kSwatches.size() == 12);

// -1 to 1 each; what is not set is 0, what is out of range the nearest end.
struct Adjustments {
    double lightness = 0;
    double contrast = 0;
    double saturation = 0;
    Rgb cast = {};

    bool operator==(const Adjustments&) const = default;
};
Adjustments AdjustmentsOf(const FullColorOptions& record);

// An idea of what the printer makes of a color, not a proof. In this order, on each of red, green and blue:
//
//     lightness   half the way to white at 1, half the way to black at -1
//     contrast    the distance to middle gray times 1 + contrast: doubled at 1, gone at -1
//     saturation  the distance to the gray of the same luma (0.299 red + 0.587 green + 0.114 blue) times 1 + saturation
//     cast        a quarter of the cast added: red against cyan, green against magenta, blue against yellow
//
// and at the end brought into 0 to 1. Without adjustments a color stays exactly as it is.
Rgb Adjusted(const Rgb& color, const Adjustments& adjustments);

} // namespace kesta::color_options
