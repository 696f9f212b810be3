#pragma once

#include "platform/system/SystemConfiguration.h"

namespace kesta {

// What this machine says: logind's files, /etc/machine-info, the kernel's routes and interfaces.
class LinuxConfiguration : public SystemConfiguration {
public:
    // The files are looked for below the root, "" for the machine's own.
    explicit LinuxConfiguration(QString root = {}) : root_(std::move(root)) {}

    std::optional<QString> consoleUser() const override;
    std::optional<QString> computerName() const override;
    std::optional<QString> primaryInterface() const override;
    QStringList ipv4Addresses(const QString& interface) const override;
    std::optional<SystemVersion> systemVersion() const override { return SystemVersion{10, 5, 0}; }

private:
    // From a file of lines NAME=VALUE, the value without its quotes.
    std::optional<QString> setting(const char* file, QLatin1String name) const;

    QString root_;
};

} // namespace kesta
