#pragma once

#include <QString>

namespace kesta {

// The user's folders of ours, with no slash at the end; they need not be there yet. Empty when the user has no home.
QString ConfigDirectory(); // $XDG_CONFIG_HOME/kesta-print
QString DataDirectory();   // $XDG_DATA_HOME/kesta-print

// What all users of the machine share: $KESTA_DATA_ROOT, or the folder that the build was configured with. Whoever
// installs decides by its permissions who may write there; we never make it.
QString MachineDirectory();

// Makes the folder and those above it, readable by their owner alone; whether it is there now.
bool MakeDirectory(const QString& path);

} // namespace kesta
