#pragma once

struct ppd_file_s;

namespace kesta {

// Hands the opened PPD to "InvokeLocalizedPPD" of the localisation bundle among the plug-in's resources, on print
// systems that have one (10.5 and later). A bundle or function that is not there is passed over in silence.
void LocalizePPD(ppd_file_s* ppd);

} // namespace kesta
