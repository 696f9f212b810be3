#pragma once

#include "toolkit/controls/MenuControl.h"

#include <QElapsedTimer>

#include <optional>

namespace kesta {

// A button that shows the chosen item of its menu. Its value is the menu position from 1, never above its maximum,
// which is a number of its own; 0 while nothing can be chosen. Up, Down, Home, End and typing the beginning of a title
// go through the items without the menu; Return then picks the one that is shown, and opens the menu otherwise.
//
// Choosing sends the item's command, then a hit with the new value. An item of a submenu sends its command only. An
// item above the maximum can't be chosen.
class PopupButton : public MenuControl {
    Q_OBJECT

public:
    explicit PopupButton(QWidget* parent = nullptr);

    void setMenu(Menu menu); // the maximum becomes the item count
    void setMenu(Menu menu, int maximum);

    // Shows what is set and no item stands for, as one more item that goes with the next other value.
    void showExtra(MenuItem item);
    void dropExtra(); // the value waits for the next one

    int maximum() const { return maximum_; }
    int value() const { return value_; }
    void setValue(int position);          // brought into 1..maximum
    const MenuItem* selectedItem() const; // null when there is none at the value
    // Whether the keyboard came to the value on its way through the items: a handler that opens a window for an item
    // waits until it is picked, which sends the hit again.
    bool isGoneThrough() const { return goneThrough_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void menuChanged() override;
    bool isOffered(int position) const override { return position <= maximum_; }
    int currentItem() const override { return value_; }
    bool isMarked(int position, const MenuItem& item) const override;
    void sendChosen(const MenuPath& path, const MenuItem& item) override;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool goThrough(int position);
    void goFrom(int first, int step);
    bool goByTyping(const QString& typed);
    bool goByKey(const QKeyEvent& key);

    int maximum_ = 0;
    int value_ = 0;
    std::optional<int> maximumWithoutExtra_ = {}; // while there is an extra item, the last one
    bool goingThrough_ = false;
    bool goneThrough_ = false;
    QString typed_; // the beginning of a title, as typed so far
    QElapsedTimer sinceTyped_;
};

} // namespace kesta
