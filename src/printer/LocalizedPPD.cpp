#include "printer/LocalizedPPD.h"

#include "pde/interface/PlugInBundle.h"
#include "platform/system/SystemConfiguration.h"

namespace kesta {

PPDLocalizer FindPPDLocalizer()
{
    constexpr SystemVersion kFirstLocalizing{.major = 10, .minor = 5};
    const Bundle* own = PlugInBundle();
    const std::optional<SystemVersion> version = GetSystemConfiguration().systemVersion();
    if (!own || !version || *version < kFirstLocalizing)
        return nullptr;
    const Bundle* localizer = LoadBundleAt(own->resourcesPath + QStringLiteral("/TorCups.plugin")).bundle;
    return localizer ? reinterpret_cast<PPDLocalizer>(FunctionNamed(*localizer, "InvokeLocalizedPPD")) : nullptr;
}

} // namespace kesta
