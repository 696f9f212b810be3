#pragma once

#include <QString>
#include <Qt>

class QWidget;

namespace kesta::test {

// One key press as the platform sends it, to the widget.
void PressKey(QWidget& widget, int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {});
// To the widget of the window that has the focus, else to the window.
void PressKeyInWindow(QWidget& window, int key);
// Each character by a key of its own.
void TypeKeys(QWidget& widget, const QString& text);

} // namespace kesta::test
