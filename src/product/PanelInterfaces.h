#pragma once

#include <array>

namespace kesta {

// The functions that make the panels' interfaces, in the order of the panels.
inline constexpr auto _PanelInterfaces = std::to_array<const char*>({
    "GetPaperOutputPanelInterface",
    "GetSpecialPagesPanelInterface",
    "GetBookletWatermarkPanelInterface",
    "GetColorOptionPanelInterface",
    "GetAdvancedPanelInterface",
});
static_assert(_PanelInterfaces.size() == 5);

// The panels that are plug-ins of their own, with their places below the library root.
struct PanelPlugIn {
    const char* functionName;
    const char* path;
};
inline constexpr auto _PanelPlugIns = std::to_array<PanelPlugIn>({
    {"GetColorOptionPanelInterface", "/Library/Printers/Kesta/PDEs/ColorOptions.plugin"},
});
static_assert(_PanelPlugIns.size() == 1);

} // namespace kesta
