#pragma once

#include "printer/PPDFacts.h"

namespace kesta {

// The limits of custom paper sizes, in points: the current PPD's, or 432 to 864 in both directions where no PPD has
// any.
PPDCustomSizeLimits GetMediaLimits();

} // namespace kesta
