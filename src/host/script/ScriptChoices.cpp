#include "host/script/ScriptActions.h"

#include "host/script/ScriptKinds.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

constexpr SInt32 kPanelChoice = 16; // the number of the control that every pane shows its panels with

bool ItemMatches(const MenuItem& item, int position, const ScriptName& name, const ScriptTexts& texts)
{
    if (item.separator)
        return false;
    if (name.value)
        return item.submenu.empty() && item.value == *name.value;
    return name.number ? position == *name.number : texts.matches(item.title, name.text);
}

// The way to the first item of that name, in the menu itself or, by value and text, in its submenus.
MenuPath FindItemPath(const std::vector<MenuItem>& items, const ScriptName& name, const ScriptTexts& texts)
{
    int position = 0;
    for (const MenuItem& item : items) {
        if (ItemMatches(item, ++position, name, texts))
            return {position};
    }
    position = 0;
    for (const MenuItem& item : items) {
        ++position;
        MenuPath inner = name.number ? MenuPath() : FindItemPath(item.submenu, name, texts);
        if (!inner.empty()) {
            inner.insert(inner.begin(), position);
            return inner;
        }
    }
    return {};
}

// "A > B > C" walks submenus.
MenuPath FindWalkedPath(const std::vector<MenuItem>& items, const QString& text, const ScriptTexts& texts)
{
    MenuPath path;
    const std::vector<MenuItem>* menu = &items;
    for (const QString& title : text.split(u'>')) {
        const auto item = std::ranges::find_if(
            *menu, [&](const MenuItem& one) { return !one.separator && texts.matches(one.title, title); });
        if (item == menu->end())
            return {};
        path.push_back(static_cast<int>(item - menu->begin()) + 1);
        menu = &item->submenu;
    }
    return path;
}

MenuPath FindCommandPath(const std::vector<MenuItem>& items, FourCharCode command)
{
    int position = 0;
    for (const MenuItem& item : items) {
        ++position;
        if (item.command == command)
            return {position};
        if (MenuPath inner = FindCommandPath(item.submenu, command); !inner.empty()) {
            inner.insert(inner.begin(), position);
            return inner;
        }
    }
    return {};
}

QString ChooseInMenu(MenuControl& control, const ScriptName& name, const ScriptTexts& texts)
{
    MenuPath path = FindItemPath(control.menu().items, name, texts);
    if (path.empty() && name.text.contains(u'>'))
        path = FindWalkedPath(control.menu().items, name.text, texts);
    if (path.empty())
        return u"there is no item %1"_s.arg(Spelled(name));
    return control.chooseItem(path) ? QString() : u"the item %1 can't be chosen now"_s.arg(Spelled(name));
}

// Of a list of texts, the position from 1; 0 when the name is not among them.
int PositionOf(const QStringList& items, const ScriptName& name, const ScriptTexts& texts)
{
    if (name.number || name.value)
        return name.number.value_or(0) <= items.size() ? name.number.value_or(0) : 0;
    const auto found = std::ranges::find_if(items, [&](const QString& item) { return texts.matches(item, name.text); });
    return found == items.end() ? 0 : static_cast<int>(found - items.begin()) + 1;
}

bool ChooseInCombo(HistoryComboBox& combo, const ScriptName& name, const ScriptTexts& texts)
{
    if (name.value)
        return combo.setFixedValue(*name.value) && combo.chooseItem(combo.currentIndex() + 1);
    QStringList items;
    for (int i = 0; i < combo.count(); ++i) {
        if (combo.itemData(i, Qt::AccessibleDescriptionRole).toString() != u"separator") // Qt's mark of one
            items << combo.itemText(i);
    }
    return combo.chooseItem(PositionOf(items, name, texts));
}

bool ChooseRow(ListView& list, const ScriptName& name, const ScriptTexts& texts)
{
    int row = 0;
    for (const ListRow& one : list.rows()) {
        const bool matches =
            name.number
                ? *name.number == row + 1
                : std::ranges::any_of(one.cells, [&](const QString& cell) { return texts.matches(cell, name.text); });
        if (matches) {
            list.selectRowsAsUser({row});
            return true;
        }
        ++row;
    }
    return false;
}

bool ChooseButton(const std::vector<QAbstractButton*>& group, const ScriptName& name, const ScriptTexts& texts)
{
    int position = 0;
    for (QAbstractButton* button : group) {
        ++position;
        const bool matches = name.number ? *name.number == position || GetControlID(*button).number == *name.number
                                         : std::ranges::any_of(NamesOf(*button), [&](const QString& own) {
                                               return texts.matches(own, name.text);
                                           });
        if (matches && button->isEnabled() && button->isVisible()) {
            button->click();
            return true;
        }
    }
    return false;
}

} // namespace

QString ShowPanel(const QWidget& window, const ScriptName& panel, const ScriptTexts& texts)
{
    const auto [choice, problem] = FindUsable(window, {.number = kPanelChoice}, texts, IsOneOf<PopupButton>);
    if (!choice)
        return u"there is no choice of panels"_s;
    return ChooseInMenu(*qobject_cast<MenuControl*>(choice), panel, texts);
}

QString ChooseItem(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts)
{
    const auto [control, problem] = FindUsable(window, step.target, texts, IsChoosable);
    if (!control)
        return problem;
    if (auto* menu = qobject_cast<MenuControl*>(control))
        return ChooseInMenu(*menu, step.item, texts);
    bool done = false;
    if (auto* combo = qobject_cast<HistoryComboBox*>(control)) {
        done = ChooseInCombo(*combo, step.item, texts);
    } else if (auto* tabs = qobject_cast<TabControl*>(control)) {
        done = tabs->chooseTab(PositionOf(tabs->titles(), step.item, texts));
    } else if (auto* list = qobject_cast<ListView*>(control)) {
        done = ChooseRow(*list, step.item, texts);
    } else {
        done = ChooseButton(GroupOf(*control), step.item, texts);
    }
    return done ? QString() : u"there is no item %1 that can be chosen"_s.arg(Spelled(step.item));
}

QString SendMenuCommand(QWidget& window, FourCharCode command)
{
    for (auto* control : window.findChildren<MenuControl*>()) {
        if (!control->isVisible() || !control->isEnabled())
            continue;
        if (const MenuPath path = FindCommandPath(control->menu().items, command); !path.empty())
            return control->chooseItem(path) ? QString() : u"the command is disabled"_s;
    }
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && GetControlCommand(*button) == command) {
            ClickControl(button);
            return {};
        }
    }
    if (command != kCommandPanelUp && command != kCommandPanelDown)
        return u"no menu or button in \"%1\" has that command"_s.arg(window.windowTitle());
    SendControlEvent(window, CommandEvent{.command = command});
    return {};
}

} // namespace kesta::host
