#pragma once

#include <QSize>

class QWidget;

namespace kesta {

// Gives a window that has no size yet the one that its contents ask for, within the room that there is (points, without
// the frame). Where that is too low, everything but the button box scrolls. A window that was given a size keeps
// it.
void FitToScreen(QWidget& window, QSize room);
void FitToScreen(QWidget& window); // that of its screen

// What a title bar leaves of the window's screen.
QSize RoomOnScreen(const QWidget& window);

} // namespace kesta
