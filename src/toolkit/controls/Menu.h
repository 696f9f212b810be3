#pragma once

#include "platform/values/Types.h"

#include <QString>

#include <vector>

namespace kesta {

// What a menu shows, as plain data: rules fill and mark menus without a widget.
struct MenuItem {
    QString title = {};
    FourCharCode command = kNoCommand;
    SInt32 value = 0; // the ticket value that the item stands for
    bool enabled = true;
    bool checked = false;
    bool separator = false;
    bool notOffered = false; // of a value that is set and can't be chosen here: shown with a mark, never chosen
    int instead = 0; // of such an item: the position of the one that takes its place on demand; 0: there is none
    std::vector<MenuItem> submenu = {};
};

struct Menu {
    std::vector<MenuItem> items;
    const void* source = nullptr; // the setting map that filled the menu

    int count() const { return static_cast<int>(items.size()); }
};

// A line of a summary that tells of a value that is not offered.
inline QString WithCaution(const QString& text)
{
    return QStringLiteral("\u26A0\uFE0E ") + text; // as a sign of the text, not as a picture
}

// The first item of that command, submenus included, or null.
inline MenuItem* FindItem(std::vector<MenuItem>& items, FourCharCode command)
{
    for (MenuItem& item : items) {
        if (item.command == command)
            return &item;
        if (MenuItem* found = FindItem(item.submenu, command))
            return found;
    }
    return nullptr;
}

} // namespace kesta
