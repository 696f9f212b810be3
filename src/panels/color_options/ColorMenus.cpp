#include "panels/color_options/ColorMenus.h"

#include "pde/menus/SettingMap.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"

#include <algorithm>
#include <array>

namespace kesta::color {
namespace {

// Numbered as profiles of the color industry number them.
constexpr auto _RenderingIntentMap = std::to_array<SettingRow>({
    {"PrinterDefault", kUnset},
    {"Perceptual", 0},
    {"Relative Colorimetric", 1},
    {"Saturation Intent", 2},
    {"Absolute Colorimetric", 3},
});
constexpr auto _SwitchMap = std::to_array<SettingRow>({
    {"PrinterDefault", kUnset},
    {"Off", 0},
    {"On", 1},
});
static_assert(_RenderingIntentMap.size() == 5 && _SwitchMap.size() == 3);

SettingMap MapOf(Control control)
{
    return control == kTrapping || control == kBlackOverprint ? SettingMap(_SwitchMap)
                                                              : SettingMap(_RenderingIntentMap);
}

// The position of the value's item; 0 without one.
int PositionOf(const Menu& menu, SInt32 value)
{
    const auto found = std::ranges::find(menu.items, value, &MenuItem::value);
    return found == menu.items.end() ? 0 : static_cast<int>(found - menu.items.begin()) + 1;
}

MenuItem NumberedItem(const Bundle& bundle, const char* key, SInt32 number)
{
    return {.title = LocalizedFormat(bundle, key, {QString::number(number)}), .value = number};
}

} // namespace

MenuAndPosition ChoiceMenu(const Bundle& bundle, const NumberSetting& setting, const FullColorOptions& record)
{
    Menu menu;
    PopulateMenuFromMap(bundle, menu, MapOf(setting.control), JobContext::Job);
    const SInt32 value = setting.get(record);
    if (PositionOf(menu, value) == 0)
        menu.items.push_back(NumberedItem(bundle, "Other Value", value));
    return {menu, PositionOf(menu, value)};
}

MenuAndPosition NameMenu(const Bundle& bundle, const NameSetting& setting, const FullColorOptions& record)
{
    const ColorProfile profile = setting.get(record);
    Menu menu;
    menu.items.push_back({.title = LocalizedString(bundle, "PrinterDefault"), .value = kUnset});
    for (SInt32 kind = 1; kind < setting.namedKind; ++kind)
        menu.items.push_back(NumberedItem(bundle, "Built-in Profile", kind));
    if (profile.kind == setting.namedKind)
        menu.items.push_back({.title = profile.name.value_or(QString()), .value = profile.kind});
    else if (PositionOf(menu, profile.kind) == 0)
        menu.items.push_back(NumberedItem(bundle, "Built-in Profile", profile.kind));
    const char* ask = setting.control == kToneCurve ? "Named Curve..." : "Named Profile...";
    menu.items.push_back({.title = LocalizedString(bundle, ask), .value = kAskForName});
    return {menu, PositionOf(menu, profile.kind)};
}

} // namespace kesta::color
