#pragma once

#include "platform/values/Message.h"

#include <QString>

#include <optional>

namespace kesta {

// Why loading this file could kill the program: it ends before the parts that its own program headers name, so that
// touching them is a bus error. Nothing for a whole one, and for a file of which the loader itself sees that it is
// none.
std::optional<Message> SharedObjectProblem(const QString& path);

} // namespace kesta
