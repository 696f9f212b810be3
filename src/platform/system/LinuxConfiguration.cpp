#include "platform/system/LinuxConfiguration.h"

#include "platform/system/RoutingTable.h"
#include "platform/system/SafeFile.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <pwd.h>
#include <unistd.h>

namespace kesta {
namespace {

constexpr char kSeat[] = "/run/systemd/seats/seat0";
constexpr char kMachineInfo[] = "/etc/machine-info";
constexpr qsizetype kLargestFile = 64 * 1024; // bytes

std::optional<QString> LoginName(uid_t user)
{
    std::array<char, 16 * 1024> buffer;
    passwd entry{};
    passwd* found = nullptr;
    getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
    return found ? std::optional(QString::fromLocal8Bit(found->pw_name)) : std::nullopt;
}

// As a shell would read it: quotes around the whole value go, a backslash keeps the next character.
QString Unquoted(QStringView text)
{
    const bool isQuoted =
        text.size() >= 2 && (text.front() == u'"' || text.front() == u'\'') && text.back() == text.front();
    if (isQuoted && text.front() == u'\'')
        return text.sliced(1, text.size() - 2).toString();
    QString plain;
    bool isEscaped = false;
    for (const QChar unit : isQuoted ? text.sliced(1, text.size() - 2) : text) {
        isEscaped = !isEscaped && unit == u'\\';
        if (!isEscaped)
            plain += unit;
    }
    return plain;
}

} // namespace

std::optional<QString> LinuxConfiguration::setting(const char* file, QLatin1String name) const
{
    const FileContent content = ReadFile(root_ + QLatin1String(file), kLargestFile);
    for (const QByteArray& line : content.bytes.value_or(QByteArray()).split('\n')) {
        const QString text = QString::fromUtf8(line).trimmed();
        const qsizetype equals = text.indexOf(u'=');
        if (equals > 0 && text.first(equals) == name)
            return Unquoted(QStringView(text).sliced(equals + 1));
    }
    return std::nullopt;
}

std::optional<QString> LinuxConfiguration::consoleUser() const
{
    bool isNumber = false;
    const uid_t active = setting(kSeat, QLatin1String("ACTIVE_UID")).value_or(QString()).toUInt(&isNumber);
    const std::optional<QString> name = isNumber ? LoginName(active) : std::nullopt;
    return name ? name : LoginName(getuid());
}

std::optional<QString> LinuxConfiguration::computerName() const
{
    const std::optional<QString> pretty = setting(kMachineInfo, QLatin1String("PRETTY_HOSTNAME"));
    if (pretty && !pretty->isEmpty())
        return pretty;
    std::array<char, 256> name{};
    if (gethostname(name.data(), name.size() - 1) != 0 || name[0] == '\0')
        return std::nullopt;
    return QString::fromLocal8Bit(name.data());
}

std::optional<QString> LinuxConfiguration::primaryInterface() const
{
    const std::vector<DefaultRoute> routes = DefaultRoutes();
    const auto best = std::ranges::min_element(routes, {}, &DefaultRoute::metric);
    std::array<char, IF_NAMESIZE> name{};
    if (best == routes.end() || !if_indextoname(static_cast<unsigned>(best->interfaceIndex), name.data()))
        return std::nullopt;
    return QString::fromLocal8Bit(name.data());
}

QStringList LinuxConfiguration::ipv4Addresses(const QString& interface) const
{
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0)
        return {};
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> all(list, freeifaddrs);
    QStringList addresses;
    for (const ifaddrs* entry = list; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || entry->ifa_addr->sa_family != AF_INET ||
            QString::fromLocal8Bit(entry->ifa_name) != interface)
            continue;
        std::array<char, INET_ADDRSTRLEN> text{};
        const auto* address = reinterpret_cast<const sockaddr_in*>(entry->ifa_addr);
        inet_ntop(AF_INET, &address->sin_addr, text.data(), text.size());
        addresses.append(QString::fromLatin1(text.data()));
    }
    return addresses;
}

} // namespace kesta
