#pragma once

#include "panels/color_options/ColorSettings.h"
#include "toolkit/controls/Menu.h"

namespace kesta {
struct Bundle;
}

namespace kesta::color_options {

// The value of the item that asks for a name; no setting has it.
inline constexpr SInt32 kAskForName = kUnset + 1;

struct MenuAndPosition {
    Menu menu;
    int position = 1; // of the item that stands for what is set, from 1
};

// The printer's default, its built-in profiles by number, the name that is set, and the item that asks for one.
MenuAndPosition NameMenu(const Bundle& bundle, const NameSetting& setting, const FullColorOptions& record);

} // namespace kesta::color_options
