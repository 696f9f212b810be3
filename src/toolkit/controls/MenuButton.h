#pragma once

#include "toolkit/controls/MenuControl.h"

namespace kesta {

// A button with a title of its own that opens a menu of commands. Choosing an item sends its command; an item of the
// top level then sends a hit with its position.
class MenuButton : public MenuControl {
    Q_OBJECT

public:
    explicit MenuButton(QWidget* parent = nullptr);

    void setMenu(Menu menu);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void menuChanged() override {}
    void sendChosen(const MenuPath& path, const MenuItem& item) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kesta
