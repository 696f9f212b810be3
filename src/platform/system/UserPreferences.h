#pragma once

#include "platform/values/Value.h"

namespace kesta {

// Property lists in the user's preferences folder, by their plain file names.

inline constexpr char kInputHistoryFile[] = "com.kesta.print.inputhistory.plist"; // the texts typed into fields

// An empty dictionary when the file is missing or can't be parsed, and a file that can't be parsed is kept aside as
// damaged; nothing when there is no preferences folder, the name is not a plain one, or the file can't be read at
// present, as standard error then says: it must not be replaced.
std::optional<Dictionary> CopyUserPreferences(QAnyStringView file);

// Readable by the user alone. On failure prints "WriteUserPreferences() failed (%d)" with the error code and answers
// false; the file is then as it was.
bool WriteUserPreferences(QAnyStringView file, const Dictionary& preferences);

} // namespace kesta
