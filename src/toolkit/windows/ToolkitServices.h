#pragma once

namespace kesta {

// From here on notices, alerts and help pages appear as windows: notices and alerts in modal loops, so that tests and
// scripts can act in them; help beside the window in front, which stays usable.
void InstallToolkitServices();

} // namespace kesta
