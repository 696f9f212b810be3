#pragma once

#include "platform/system/SystemConfiguration.h"

#include <map>

namespace kesta::test {

// A machine that says what the test wants:
//     test::FakeSystem system;
//     const WhileInstalled installed(system);
struct FakeSystem : SystemConfiguration {
    std::optional<QString> user, computer, interface;
    std::map<QString, QStringList> addresses;
    std::optional<SystemVersion> version = SystemVersion{10, 5, 0};

    std::optional<QString> consoleUser() const override { return user; }
    std::optional<QString> computerName() const override { return computer; }
    std::optional<QString> primaryInterface() const override { return interface; }
    QStringList ipv4Addresses(const QString& name) const override
    {
        const auto found = addresses.find(name);
        return found == addresses.end() ? QStringList() : found->second;
    }
    std::optional<SystemVersion> systemVersion() const override { return version; }
};

} // namespace kesta::test
