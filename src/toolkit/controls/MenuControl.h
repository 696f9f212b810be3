#pragma once

#include "toolkit/controls/Menu.h"

#include <QAbstractButton>

#include <functional>
#include <vector>

class QMenu;

namespace kesta {

// Positions from 1: of the item in the menu, then of the item in its submenu, and so on.
using MenuPath = std::vector<int>;

// What pop-up and menu buttons have in common: a menu as plain data, opened by a click, Space, Return, Down or F4.
class MenuControl : public QAbstractButton {
    Q_OBJECT

public:
    explicit MenuControl(QWidget* parent);

    const Menu& menu() const { return menu_; }
    void changeItems(const std::function<void(Menu&)>& change); // titles, marks, enabling: the maximum stays

    // What the user does, opening the menu included: false, and nothing sent, when the control, the item or a menu on
    // the way is disabled, or there is no such item, or it is a separator or a submenu's title.
    bool chooseItem(const MenuPath& path);
    bool chooseItem(int position, int submenuPosition = 0);

    // The ways to what the control shows and does not offer, and to what takes its place in the same menu; choosing
    // that as the user would, also while the control is hidden with its panel.
    std::vector<MenuPath> shownNotOffered() const;
    MenuPath insteadOf(const MenuPath& shown) const;
    void chooseInstead();

    // Null when the path leads to no item or through a disabled submenu.
    const MenuItem* itemAt(const MenuPath& path) const;

    void openMenu();

protected:
    void replaceMenu(Menu menu); // without a look at value or maximum
    virtual void menuChanged() = 0;
    virtual int currentItem() const;            // where an open menu begins; 0 without one
    virtual bool isOffered(int position) const; // of the top level
    virtual bool isMarked(int position, const MenuItem& item) const;
    virtual void sendChosen(const MenuPath& path, const MenuItem& item) = 0; // may delete the control

    void keyPressEvent(QKeyEvent* event) override;

private:
    void addActions(QMenu& shown, const std::vector<MenuItem>& items, const MenuPath& owner);
    void findNotOffered(const std::vector<MenuItem>& items, MenuPath path, std::vector<MenuPath>& found) const;
    void forgetMouse();
    bool chooseFromOpenMenu(const MenuPath& path);

    Menu menu_;
};

} // namespace kesta
