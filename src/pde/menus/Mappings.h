#pragma once

#include "pde/menus/SettingMap.h"

#include <array>

// The setting maps that several panels share.
namespace kesta {

inline constexpr auto _CoverSidesDuplexImagedMap = std::to_array<SettingRow>({
    {"CoverPrinted", 4},
    {"CoverBlankorPreprinted", 1},
});
inline constexpr auto _CoverSidesSimplexImagedMap = std::to_array<SettingRow>({
    {"CoverPrinted", 2},
    {"CoverBlankorPreprinted", 1},
});
inline constexpr auto _GrainCompensationMap = std::to_array<SettingRow>({
    {"Enabled", 1},
    {"Disabled (Recommended)", 2},
});
inline constexpr auto _AdvancedMirrorImageMap = std::to_array<SettingRow>({
    {"Enabled", 1},
    {"Disabled", 2},
});
inline constexpr auto _PrintingOptimizationMap = std::to_array<SettingRow>({
    {"Speed", 1},
    {"Economy", 2},
});
inline constexpr auto _PrintQualityMap = std::to_array<SettingRow>({
    {"PhotoKeyAshendowne", 200},
    {"StandardKeyAshendowne", 201},
    {"TonerSaver", 1},
});

static_assert(_CoverSidesDuplexImagedMap.size() == 2);
static_assert(_CoverSidesSimplexImagedMap.size() == 2);
static_assert(_GrainCompensationMap.size() == 2);
static_assert(_AdvancedMirrorImageMap.size() == 2);
static_assert(_PrintingOptimizationMap.size() == 2);
static_assert(_PrintQualityMap.size() == 3);

} // namespace kesta
