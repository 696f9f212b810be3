#include "platform/system/SystemConfiguration.h"

#include "platform/system/Installed.h"
#include "platform/system/LinuxConfiguration.h"

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
