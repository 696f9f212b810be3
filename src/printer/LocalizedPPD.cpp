#include "printer/LocalizedPPD.h"

#include "pde/interface/PlugInBundle.h"
#include "platform/system/SystemConfiguration.h"

namespace kesta {

void LocalizePPD(ppd_file_s* ppd)
{
    constexpr SystemVersion kFirstLocalizing{.major = 10, .minor = 5};
    const Bundle* own = PlugInBundle();
    const std::optional<SystemVersion> version = GetSystemConfiguration().systemVersion();
    if (!ppd || !own || !version || *version < kFirstLocalizing)
        return;
    const Bundle* localizer = LoadBundleAt(own->resourcesPath + QStringLiteral("/TorCups.plugin")).bundle;
    if (!localizer)
        return;
    using InvokeLocalizedPPD = void (*)(ppd_file_s*);
    if (const auto localize = reinterpret_cast<InvokeLocalizedPPD>(FunctionNamed(*localizer, "InvokeLocalizedPPD")))
        localize(ppd);
}

} // namespace kesta
