#pragma once

#include "pde/menus/SettingMap.h"

#include <array>

// The setting maps that differ from product to product.
namespace kesta {

inline constexpr auto _JobTypeMap = std::to_array<SettingRow>({
    {"Normal Print", 1, kNoCommand, nullptr, true},
    {"SecurePrint", 6, kNoCommand, nullptr, true},
    {"SampleSet", 8, kNoCommand, nullptr, true},
    {"DelayedPrint", 7, kNoCommand, nullptr, true},
    {"SavedJob", 3, kNoCommand, "JobStorage", true},
    {"Fax", 5, kNoCommand, "FaxKey", true},
});
inline constexpr auto _PlexMap = std::to_array<SettingRow>({
    {"Simplex", 1},
    {"Duplex", 2},
    {"DuplexShort", 3},
});
inline constexpr auto _ResolutionMap = std::to_array<SettingRow>({
    {"600 x 600 Resolution", 2},
});
inline constexpr auto _CoverSidesImagedMap = std::to_array<SettingRow>({
    {"CoverPrinted", 4},
    {"CoverBlankorPreprinted", 1},
});
inline constexpr auto _SeparatorOptionMap = std::to_array<SettingRow>({
    {"Separator Option None", 1},
    {"Separator Option Blank", 2},
    {"Separator Option Printed", 3},
});
inline constexpr auto _FaxCoverSizeMap = std::to_array<SettingRow>({
    {"StockSizeLetter", 204, "FcLt"_code},
    {"StockSizeA4", 4, "FcA4"_code},
});

static_assert(_JobTypeMap.size() == 6);
static_assert(_PlexMap.size() == 3);
static_assert(_ResolutionMap.size() == 1);
static_assert(_CoverSidesImagedMap.size() == 2);
static_assert(_SeparatorOptionMap.size() == 3);
static_assert(_FaxCoverSizeMap.size() == 2);

} // namespace kesta
