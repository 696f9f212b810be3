#include "platform/SystemConfiguration.h"

#include "platform/Installed.h"
#include "platform/LinuxConfiguration.h"

namespace kesta {
namespace {

Installed<SystemConfiguration>& TheConfiguration()
{
    static LinuxConfiguration machine;
    static Installed<SystemConfiguration> installed(machine);
    return installed;
}

} // namespace

SystemConfiguration* SystemConfiguration::install(SystemConfiguration* configuration)
{
    return TheConfiguration().install(configuration);
}

SystemConfiguration& GetSystemConfiguration()
{
    return TheConfiguration().current();
}

} // namespace kesta
