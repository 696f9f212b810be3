#pragma once

#include "platform/values/Message.h"

#include <QString>

#include <optional>

namespace kesta {

// Why a printer description (PPD, plain or gzipped) should not be handed to the library that reads it, as one sentence
// for the user; nothing when it can be. The library takes time by the square of many a line's number, so a small file
// could keep it busy for minutes: this reads the file once, in bounded time and memory, and counts. What it accepts may
// still be a description that the library refuses.
std::optional<Message> PPDFileProblem(const QString& path);

} // namespace kesta
