#pragma once

#include "toolkit/Menu.h"

#include <QAbstractButton>

#include <functional>

namespace kesta {

// A button that shows the chosen item of its menu. Its value is the menu position from 1, never above its maximum,
// which is a number of its own; 0 while nothing can be chosen.
class PopupButton : public QAbstractButton {
public:
    explicit PopupButton(QWidget* parent = nullptr);

    const Menu& menu() const { return menu_; }
    void setMenu(Menu menu); // the maximum becomes the item count
    void setMenu(Menu menu, int maximum);
    void changeItems(const std::function<void(Menu&)>& change); // titles, marks, enabling: the maximum stays

    int maximum() const { return maximum_; }
    int value() const { return value_; }
    void setValue(int position);          // brought into 1..maximum
    const MenuItem* selectedItem() const; // null when there is none at the value

    // What the user does: the item's command is sent, then the hit with the new value. An item of a submenu sends its
    // command only. A disabled item, a separator and an item above the maximum can't be chosen.
    bool chooseItem(int position, int submenuPosition = 0);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void openMenu();

    Menu menu_;
    int maximum_ = 0;
    int value_ = 0;
};

} // namespace kesta
