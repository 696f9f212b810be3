#pragma once

#include <QString>

namespace kesta {

// The user's folders of ours, with no slash at the end; they need not be there yet. Empty when the user has no home.
QString ConfigDirectory(); // $XDG_CONFIG_HOME/kesta-print
QString DataDirectory();   // $XDG_DATA_HOME/kesta-print

// Makes the folder and those above it, readable by their owner alone; whether it is there now.
bool MakeDirectory(const QString& path);

} // namespace kesta
