#pragma once

#include "toolkit/ControlEvent.h"
#include "toolkit/ModalLoop.h"

namespace kesta {

struct Bundle;

// What the buttons that every dialog has do: OK and Cancel end the dialog, Help opens the page of the bundle's book.
EventResult HandleDialogCommand(const Bundle& bundle, QWidget& window, FourCharCode command, const QString& helpPage);

// Runs a dialog that needs no more than that.
ModalResult RunModalDialog(const Bundle& bundle, QWidget& window, const QString& helpPage);

} // namespace kesta
