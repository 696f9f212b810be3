#pragma once

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/windows/ModalLoop.h"

#include <functional>

namespace kesta {

struct Bundle;

// Of the button that some dialogs have for going back to what they began with, which is their own affair.
inline constexpr FourCharCode kCommandDefaults = "Dflt"_code;

// What the buttons that every dialog has do: OK and Cancel end the dialog, Help opens the page of the bundle's book.
EventResult HandleDialogCommand(const Bundle& bundle, QWidget& window, FourCharCode command, const QString& helpPage);

// Runs a dialog whose buttons do no more than that; where OK may be refused, only once it is accepted.
ModalResult RunModalDialog(const Bundle& bundle, QWidget& window, const QString& helpPage,
                           const std::function<bool()>& accepts = {});

} // namespace kesta
