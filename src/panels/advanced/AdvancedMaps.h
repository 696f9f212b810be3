#pragma once

#include "pde/menus/SettingMap.h"

#include <array>

namespace kesta::advanced {

// Several rows share this value, so a ticket does not tell them apart.
inline constexpr SInt32 kSharedValue = 1484089966;

inline constexpr auto _BookletLayoutOrderMap = std::to_array<SettingRow>({
    {"RightToLeft", kSharedValue},
    {"LeftToRight", kSharedValue},
});
inline constexpr auto _OutputOptionsMap = std::to_array<SettingRow>({
    {"Face Down", 0},
    {"Face Up", 1},
});
inline constexpr auto _OnOffMap = std::to_array<SettingRow>({
    {"On", kSharedValue},
    {"Off", kSharedValue},
});

// Other products of the line show these.
inline constexpr auto _OPIPrescanMap = std::to_array<SettingRow>({
    {"PrinterDefault", kSharedValue},
    {"None", kSharedValue},
    {"Scan", kSharedValue},
    {"Gather", kSharedValue},
});
inline constexpr auto _OPISubsitutionMap = std::to_array<SettingRow>({
    {"PrinterDefault", kSharedValue},
    {"True", kSharedValue},
    {"False", kSharedValue},
});
inline constexpr auto _PrinterEmulationMap = std::to_array<SettingRow>({
    {"PrinterDefault", kSharedValue},
    {"None", kSharedValue},
    {"Tessaline 9100", kSharedValue},
});
inline constexpr auto _RotateImageMap = std::to_array<SettingRow>({
    {"PrinterDefault", kSharedValue},
    {"Off", kSharedValue},
    {"On", kSharedValue},
});

static_assert(_BookletLayoutOrderMap.size() == 2 && _OutputOptionsMap.size() == 2 && _OnOffMap.size() == 2);
static_assert(_OPIPrescanMap.size() == 4 && _OPISubsitutionMap.size() == 3);
static_assert(_PrinterEmulationMap.size() == 3 && _RotateImageMap.size() == 3);

} // namespace kesta::advanced
