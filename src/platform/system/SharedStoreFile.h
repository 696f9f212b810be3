#pragma once

#include "platform/values/Value.h"

#include <functional>
#include <optional>

namespace kesta {

// Where a file of the store's form is: in the folder Kesta/ of the machine-wide data, so that all users share it, or,
// when that one can't be written, of the user's data. The folder is made when it is missing. Nothing when there is no
// such folder or the name is not a plain one.
std::optional<QString> CopyPreferenceFileURL(QAnyStringView file);

// Nothing when the file is missing or unreadable. One that can't be parsed is said on standard error.
std::optional<Dictionary> CopyXMLData(QAnyStringView file);

// What the user's own file has while the one in use is the machine's: kept there before the machine had one. Nothing
// when there is none, it can't be read, or it is the one in use.
std::optional<Dictionary> CopyOwnXMLData(QAnyStringView file);

enum class WhenUnreadable { DoNothing, StartNew };

// Reads the file, makes a change and, when its bytes then differ, writes it whole, over the old one. A file that is
// there but damaged is kept as ".damaged" before a new one is started; one that can't be read at present, or that
// others never stop writing, is neither moved nor replaced. 0, or errno of what was not written; the file is then as it
// was.
using Change = std::function<void(Dictionary& root)>;
int ChangeXMLData(QAnyStringView file, WhenUnreadable whenUnreadable, const Change& change);

} // namespace kesta
