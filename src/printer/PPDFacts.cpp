#include "printer/PPDFacts.h"

#include <cups/ppd.h>

namespace kesta {

std::optional<QString> PPDCopyModelName(const ppd_file_t* ppd)
{
    if (!ppd)
        return std::nullopt;
    for (const char* name : {ppd->modelname, ppd->shortnickname, ppd->nickname}) {
        if (name && *name)
            return QString::fromUtf8(name); // libcups has made it UTF-8
    }
    return std::nullopt;
}

PPDCustomSizeLimits PPDGetCustomSizeLimits(const ppd_file_t& ppd)
{
    return {.minimumWidth = ppd.custom_min[0],
            .minimumHeight = ppd.custom_min[1],
            .maximumWidth = ppd.custom_max[0],
            .maximumHeight = ppd.custom_max[1]};
}

} // namespace kesta
