#pragma once

#include <vector>

class QWidget;

namespace kesta::host {

// Brings Cancel and Print into the order in which the desktop has such buttons in all other windows.
void OrderButtons(QWidget& window);

// Those below the pane, as they stand from the beginning of the line.
std::vector<QWidget*> ButtonsInOrder(const QWidget& window);

} // namespace kesta::host
