#pragma once

class QAccessibleInterface;

namespace kesta {

class PopupButton;

// A pop-up as assistive programs know Qt's own: its name is what it shows, its label is told by relation, and below it
// is a list of its items, which can be chosen there without opening the menu.
QAccessibleInterface* MakeAccessiblePopup(PopupButton& popup);

} // namespace kesta
