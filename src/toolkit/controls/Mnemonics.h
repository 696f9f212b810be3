#pragma once

#include <QString>

class QWidget;

namespace kesta {

// Gives each visible label with a buddy, button, check box and tab of the window a letter of its own to reach it by
// keyboard. A letter that a translator marked with '&' stays. To be called again when texts or visibility change;
// windows of modal loops and controls shown by SetControlVisible do so by themselves.
void AssignMnemonics(QWidget& window);

// The same, once, as soon as the event loop runs again.
void AssignMnemonicsSoon(QWidget& widget);

// The text as a person reads it.
QString WithoutMnemonic(const QString& text);

} // namespace kesta
