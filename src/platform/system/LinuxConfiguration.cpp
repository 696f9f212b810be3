#include "platform/system/LinuxConfiguration.h"

#include "platform/system/SafeFile.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <ifaddrs.h>
#include <memory>
#include <pwd.h>
#include <sys/socket.h>
#include <systemd/sd-login.h>
#include <unistd.h>
#include <vector>

namespace kesta {
namespace {

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

QString TextOf(in_addr address)
{
    std::array<char, INET_ADDRSTRLEN> text{};
    inet_ntop(AF_INET, &address, text.data(), text.size());
    return QString::fromLatin1(text.data());
}

// This machine's address on the way to every address that no route names; nothing without such a way. A datagram
// socket's connection sends nothing. The other end is of a network that is reserved for documentation.
std::optional<QString> AddressOfDefaultRoute()
{
    sockaddr_in other{}, own{};
    other.sin_family = AF_INET;
    other.sin_port = htons(9);
    inet_pton(AF_INET, "203.0.113.1", &other.sin_addr);
    socklen_t size = sizeof own;
    const int number = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const bool isConnected = connect(number, reinterpret_cast<const sockaddr*>(&other), sizeof other) == 0 &&
                             getsockname(number, reinterpret_cast<sockaddr*>(&own), &size) == 0;
    if (number >= 0)
        close(number);
    return isConnected ? std::optional(TextOf(own.sin_addr)) : std::nullopt;
}

struct InterfaceAddress {
    QString interface;
    QString address;
};

std::vector<InterfaceAddress> InterfaceAddresses()
{
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0)
        return {};
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> all(list, freeifaddrs);
    std::vector<InterfaceAddress> addresses;
    for (const ifaddrs* entry = list; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || entry->ifa_addr->sa_family != AF_INET)
            continue;
        const auto* address = reinterpret_cast<const sockaddr_in*>(entry->ifa_addr);
        addresses.push_back({QString::fromLocal8Bit(entry->ifa_name), TextOf(address->sin_addr)});
    }
    return addresses;
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

std::optional<uid_t> UserOfTheFirstSeat()
{
    uid_t user = 0;
    return sd_seat_get_active("seat0", nullptr, &user) >= 0 ? std::optional(user) : std::nullopt;
}

std::optional<QString> LinuxConfiguration::consoleUser() const
{
    const std::optional<uid_t> active = activeUser_();
    const std::optional<QString> name = active ? LoginName(*active) : std::nullopt;
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
    const std::optional<QString> address = AddressOfDefaultRoute();
    const std::vector<InterfaceAddress> all = InterfaceAddresses();
    const auto found = std::ranges::find_if(all, [&](const InterfaceAddress& each) { return address == each.address; });
    return found == all.end() ? std::nullopt : std::optional(found->interface);
}

QStringList LinuxConfiguration::ipv4Addresses(const QString& interface) const
{
    QStringList addresses;
    for (const InterfaceAddress& each : InterfaceAddresses()) {
        if (each.interface == interface)
            addresses.append(each.address);
    }
    return addresses;
}

} // namespace kesta
