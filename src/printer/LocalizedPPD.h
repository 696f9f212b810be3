#pragma once

struct ppd_file_s;

namespace kesta {

// "InvokeLocalizedPPD" of the localisation bundle among the plug-in's resources, on print systems that have one (10.5
// and later): it is handed the opened PPD. Null when there is no such bundle or function, which is passed over in
// silence.
using PPDLocalizer = void (*)(ppd_file_s*);
PPDLocalizer FindPPDLocalizer();

} // namespace kesta
