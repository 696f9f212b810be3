#pragma once

#include "platform/system/Service.h"

#include <netinet/in.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kesta {

// How names become addresses on this machine and its networks.
class NameService {
public:
    using Interface = NameService;
    virtual ~NameService() = default;

    // res_query: the length of the answer or -1.
    virtual int query(const std::string& name, int dnsClass, int type, std::span<std::uint8_t> answer) = 0;

    // The first IPv4 address in dotted form.
    virtual std::optional<std::string> address(const std::string& host) = 0;

    // The IPv4 addresses of the interfaces that take multicasts, without loopback; nothing when they can't be listed.
    virtual std::optional<std::vector<in_addr>> multicastInterfaces() = 0;

    // How long a multicast query waits in silence before it is sent again.
    virtual std::chrono::milliseconds silence() const { return std::chrono::seconds(1); }

    // What GetNameService() answers from now on; null for the system's. Returns what was installed before, null for
    // none.
    static NameService* install(NameService* service);
};

NameService& GetNameService();

} // namespace kesta
