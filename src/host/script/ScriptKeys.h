#pragma once

#include "host/script/DialogScript.h"

namespace kesta::host {

// A key press by its name: modifiers and a key joined by "+", such as "Return", "Ctrl+PageDown", "Shift+Tab", "a".
// Nothing when the name is unknown.
std::optional<ScriptKey> ScriptKeyNamed(const QString& name);

} // namespace kesta::host
