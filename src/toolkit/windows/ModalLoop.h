#pragma once

#include "platform/values/Types.h"

#include <functional>

class QWidget;

namespace kesta {

enum class ModalResult : SInt32 { OK = 1, Cancel = 2 };

// Shows the window and runs a nested event loop until EndModalLoop is called for it; closing the window is a cancel,
// and so is its deletion. It is a dialog of the window in front, if any, and has the size that the user gave it last.
// In the window, Return presses the button that has the focus, else the default button; Escape presses the cancel
// button, and without one it closes the window.
ModalResult RunModalLoop(QWidget& window);

// No effect when the window has no running loop.
void EndModalLoop(QWidget& window, ModalResult result);

// The window of the innermost loop, or null.
QWidget* FrontModalWindow();
// That one or, without a loop, the active window: what a new window belongs to.
QWidget* FrontWindow();

// Called whenever the innermost modal loop has nothing left to do: this is where a test or a dialog script acts in
// place of the user. Loops nest, so the action may open further dialogs. Returns the action that was set before.
using ModalIdleAction = std::function<void(QWidget& window)>;
ModalIdleAction SetModalIdleAction(ModalIdleAction action);

} // namespace kesta
