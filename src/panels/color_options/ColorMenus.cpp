#include "panels/color_options/ColorMenus.h"

#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"

#include <algorithm>

namespace kesta::color_options {
namespace {

// The position of the value's item; 0 without one.
int PositionOf(const Menu& menu, SInt32 value)
{
    const auto found = std::ranges::find(menu.items, value, &MenuItem::value);
    return found == menu.items.end() ? 0 : static_cast<int>(found - menu.items.begin()) + 1;
}

MenuItem BuiltInProfile(const Bundle& bundle, SInt32 number)
{
    return {.title = LocalizedFormat(bundle, "Built-in Profile", {QString::number(number)}), .value = number};
}

// Only a ticket brings such a number.
MenuItem UnknownProfile(const Bundle& bundle, SInt32 number)
{
    return {.title = NotOnThisPrinter(bundle, BuiltInProfile(bundle, number).title),
            .value = number,
            .enabled = false,
            .notOffered = true,
            .instead = 1};
}

} // namespace

MenuAndPosition NameMenu(const Bundle& bundle, const NameSetting& setting, const FullColorOptions& record)
{
    const ColorProfile profile = setting.get(record);
    Menu menu;
    menu.items.push_back({.title = LocalizedString(bundle, "PrinterDefault"), .value = kUnset});
    for (SInt32 kind = 1; kind < setting.namedKind; ++kind)
        menu.items.push_back(BuiltInProfile(bundle, kind));
    if (profile.kind == setting.namedKind && profile.name)
        menu.items.push_back({.title = *profile.name, .value = profile.kind});
    else if (PositionOf(menu, profile.kind) == 0)
        menu.items.push_back(UnknownProfile(bundle, profile.kind));
    const char* ask = setting.control == kToneCurve ? "Named Curve..." : "Named Profile...";
    menu.items.push_back({.title = LocalizedString(bundle, ask), .value = kAskForName});
    return {menu, PositionOf(menu, profile.kind)};
}

} // namespace kesta::color_options
