#include "printer/MediaLimits.h"

namespace kesta {

PPDCustomSizeLimits GetMediaLimits()
{
    const ppd_file_t* ppd = PPDGetCurrent();
    const PPDCustomSizeLimits limits = ppd ? PPDGetCustomSizeLimits(*ppd) : PPDCustomSizeLimits();
    const bool hasLimits = limits.maximumWidth > 0 && limits.maximumHeight > 0; // a size may be offered without them
    return hasLimits ? limits : PPDCustomSizeLimits{432, 432, 864, 864};
}

} // namespace kesta
