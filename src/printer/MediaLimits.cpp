#include "printer/MediaLimits.h"

namespace kesta {

PPDCustomSizeLimits GetMediaLimits()
{
    const ppd_file_t* ppd = PPDGetCurrent();
    return ppd ? PPDGetCustomSizeLimits(*ppd) : PPDCustomSizeLimits{432, 432, 864, 864};
}

} // namespace kesta
