#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kesta::pictures {

using Color = std::uint32_t; // 0xRRGGBB

inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kAction = 0x5468EC; // what the setting does: staples, holes, folds, badges
inline constexpr Color kActionTint = 0xCDD3FB;
inline constexpr Color kInk = 0x3B4552;
inline constexpr Color kIconInk = 0x010203; // whoever shows an icon puts the palette's text colour in its place

// The colour that lies the given part (0 to 1) of the way from one to the other.
Color Mix(Color from, Color to, double part);
std::string Hex(Color color);

// A paper colour. The edge is the fill's hue at a relative luminance of 0.18, which stands out from light and dark
// backgrounds alike; the other tones lie between fill and edge.
struct Paper {
    std::string_view name;
    Color fill;
    Color edge;
    Color print = edge; // what lines and headings tend to; on dark papers the edge would not be seen

    Color back() const { return Mix(fill, edge, 0.18); }
    Color line() const { return Mix(fill, print, 0.48); }
    Color heading() const { return Mix(fill, print, 0.85); }
};

inline constexpr auto kPapers = std::to_array<Paper>({
    {"White", 0xFFFFFF, 0x6B7684},
    {"Blue", 0xAFD3F5, 0x3679B9},
    {"Yellow", 0xFCE883, 0x857527},
    {"Green", 0xB4E0A6, 0x43842E},
    {"Pink", 0xF8B8CC, 0xC9466F},
    {"Clear", 0xEAF4FA, 0x317CAA},
    {"Buff", 0xE9CFA0, 0x956F2B},
    {"Goldenrod", 0xF0B53A, 0x92702A, 0x6B5010},
    {"Red", 0xE8675F, 0xC94B44, 0x6E1A15},
    {"Ivory", 0xFBF2D3, 0x897428},
    {"Gray", 0xBCC3CC, 0x687789, 0x46525F},
    {"Orange", 0xF7964A, 0xA96531, 0x7A3F12},
});
static_assert(kPapers.size() == 12);

inline constexpr const Paper& kWhitePaper = kPapers[0];
inline constexpr const Paper& kBluePaper = kPapers[1];
inline constexpr const Paper& kClearPaper = kPapers[5];
inline constexpr const Paper& kGoldenrodPaper = kPapers[7];

} // namespace kesta::pictures
