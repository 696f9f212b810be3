#include "weblink/NameService.h"

#include "platform/system/Installed.h"

#include <arpa/inet.h>
#include <arpa/nameser.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>
#include <resolv.h>

#include <memory>

namespace kesta {
namespace {

class SystemNameService : public NameService {
public:
    int query(const std::string& name, int dnsClass, int type, std::span<std::uint8_t> answer) override
    {
        return res_query(name.c_str(), dnsClass, type, answer.data(), static_cast<int>(answer.size()));
    }

    std::optional<std::string> address(const std::string& host) override
    {
        addrinfo hints{};
        hints.ai_family = AF_INET;
        hints.ai_socktype = SOCK_STREAM;
        addrinfo* found = nullptr;
        if (getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0)
            return std::nullopt;
        const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(found, freeaddrinfo);
        char text[INET_ADDRSTRLEN];
        const auto* address = reinterpret_cast<const sockaddr_in*>(found->ai_addr);
        inet_ntop(AF_INET, &address->sin_addr, text, sizeof text);
        return text;
    }

    std::optional<std::vector<in_addr>> multicastInterfaces() override
    {
        ifaddrs* first = nullptr;
        if (getifaddrs(&first) != 0)
            return std::nullopt;
        const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owner(first, freeifaddrs);
        std::vector<in_addr> addresses;
        for (const ifaddrs* entry = first; entry; entry = entry->ifa_next) {
            const bool takesMulticasts = (entry->ifa_flags & (IFF_UP | IFF_MULTICAST)) == (IFF_UP | IFF_MULTICAST);
            if (entry->ifa_addr && entry->ifa_addr->sa_family == AF_INET && takesMulticasts &&
                !(entry->ifa_flags & IFF_LOOPBACK))
                addresses.push_back(reinterpret_cast<const sockaddr_in*>(entry->ifa_addr)->sin_addr);
        }
        return addresses;
    }
};

} // namespace

NameService* NameService::install(NameService* service)
{
    return InstalledOr<NameService, SystemNameService>().install(service);
}

NameService& GetNameService()
{
    return InstalledOr<NameService, SystemNameService>().current();
}

} // namespace kesta
