#pragma once

#include "platform/values/Types.h"

// What a panel asks of the pane around it, as commands.
namespace kesta {

// Of links in panels: shows the Special Pages panel in place of the one in front.
inline constexpr FourCharCode kCommandShowSpecialPages = "ShSP"_code;

// The panel has put something into the tickets that the others show, too: they read them.
inline constexpr FourCharCode kCommandOthersRead = "OtRd"_code;

} // namespace kesta
