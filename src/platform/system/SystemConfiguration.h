#pragma once

#include "platform/system/Service.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kesta {

struct SystemVersion {
    int major = 0, minor = 0, bugFix = 0;

    auto operator<=>(const SystemVersion&) const = default;
};

// Who and where we are.
class SystemConfiguration {
public:
    using Interface = SystemConfiguration;
    virtual ~SystemConfiguration() = default;

    // The login name of whoever sits at the machine, else of whoever runs this process.
    virtual std::optional<QString> consoleUser() const = 0;
    virtual std::optional<QString> computerName() const = 0;
    // The network interface that most packets leave by; none without a network.
    virtual std::optional<QString> primaryInterface() const = 0;
    virtual QStringList ipv4Addresses(const QString& interface) const = 0; // dotted
    // The print system's; nothing when it can't be asked.
    virtual std::optional<SystemVersion> systemVersion() const = 0;

    // What GetSystemConfiguration() answers from now on; null for the system's. Returns what was installed before, null
    // for none.
    static SystemConfiguration* install(SystemConfiguration* configuration);
};

SystemConfiguration& GetSystemConfiguration();

} // namespace kesta
