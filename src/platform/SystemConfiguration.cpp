#include "platform/SystemConfiguration.h"

#include "platform/Installed.h"
#include "platform/LinuxConfiguration.h"

namespace kesta {

SystemConfiguration* SystemConfiguration::install(SystemConfiguration* configuration)
{
    return InstalledOr<SystemConfiguration, LinuxConfiguration>().install(configuration);
}

SystemConfiguration& GetSystemConfiguration()
{
    return InstalledOr<SystemConfiguration, LinuxConfiguration>().current();
}

} // namespace kesta
