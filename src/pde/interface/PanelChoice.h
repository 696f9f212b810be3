#pragma once

#include "platform/values/Types.h"

namespace kesta {

// Of links in panels: shows the Special Pages panel in place of the one in front.
inline constexpr FourCharCode kCommandShowSpecialPages = "ShSP"_code;

} // namespace kesta
