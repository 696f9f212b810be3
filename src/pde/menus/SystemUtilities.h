#pragma once

namespace kesta {

// Whether the system is at least of version 10.4 or 10.5. Each is asked once and then remembered for the process; a
// system that can't say counts as 10.3.0 and 10.4.0 respectively.
bool RunningOn104OrLater();
bool RunningOn105OrLater();

// Both ask anew at their next call: for a process that replaces its system, as tests do.
void ForgetSystemVersion();

} // namespace kesta
