#pragma once

#include "platform/system/SystemConfiguration.h"

#include <sys/types.h>

namespace kesta {

// Who sits at the machine's first seat, as the login service knows it; nothing without that service, or when nobody
// does.
std::optional<uid_t> UserOfTheFirstSeat();

// What this machine says: the login service, /etc/machine-info, the kernel's routes and interfaces.
class LinuxConfiguration : public SystemConfiguration {
public:
    using ActiveUser = std::optional<uid_t> (*)();

    // Files are looked for below the root, "" for the machine's own.
    explicit LinuxConfiguration(QString root = {}, ActiveUser activeUser = UserOfTheFirstSeat)
        : root_(std::move(root)), activeUser_(activeUser)
    {
    }

    std::optional<QString> consoleUser() const override;
    std::optional<QString> computerName() const override;
    std::optional<QString> primaryInterface() const override;
    QStringList ipv4Addresses(const QString& interface) const override;
    std::optional<SystemVersion> systemVersion() const override { return SystemVersion{10, 5, 0}; }

private:
    // From a file of lines NAME=VALUE, the value without its quotes.
    std::optional<QString> setting(const char* file, QLatin1String name) const;

    QString root_;
    ActiveUser activeUser_;
};

} // namespace kesta
