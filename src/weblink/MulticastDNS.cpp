#include "weblink/MulticastDNS.h"

#include "platform/system/SystemConfiguration.h"
#include "weblink/DNSMessage.h"
#include "weblink/NameService.h"

#include <arpa/inet.h>
#include <arpa/nameser.h>
#include <poll.h>
#include <resolv.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <vector>

namespace kesta {
namespace {

constexpr SystemVersion kResolvesLocalNames{10, 2, 3};
constexpr SystemVersion kVersionWhenUnknown{10, 3, 0};
constexpr int kRounds = 3;
constexpr int kMostStrangersInRound = 100; // replies to others' queries; a network that never falls silent ends too
constexpr unsigned char kTimeToLive = 255;
constexpr in_port_t kPort = 5353;
constexpr char kGroup[] = "224.0.0.251";
constexpr std::uint16_t kReplyFlag = 0x8000;
constexpr std::uint16_t kClassMask = 0x7FFF; // above it multicast has flags of its own

bool IsLocalName(std::string name)
{
    if (name.ends_with('.'))
        name.pop_back();
    const std::string lastLabel = name.substr(name.rfind('.') + 1); // npos + 1 is 0
    return strcasecmp(lastLabel.c_str(), "local") == 0;
}

class Socket {
public:
    Socket() : descriptor_(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {}
    ~Socket()
    {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    int descriptor() const { return descriptor_; }
    template <class Option> bool set(int option, const Option& value) const
    {
        return setsockopt(descriptor_, IPPROTO_IP, option, &value, sizeof value) == 0;
    }

private:
    int descriptor_;
};

struct Question {
    std::string name;
    std::uint16_t type = 0;
    std::uint16_t dnsClass = 0;
};

std::optional<Question> FirstQuestion(DNSPacket packet)
{
    Question question;
    std::size_t position = DNSHeader::kSize;
    if (decode_header(packet).questions == 0 || decode_name(position, packet, question.name) != 0)
        return std::nullopt;
    if (packet.size() < position + 4)
        return std::nullopt;
    question.type = static_cast<std::uint16_t>(packet[position] << 8 | packet[position + 1]);
    question.dnsClass = static_cast<std::uint16_t>(packet[position + 2] << 8 | packet[position + 3]) & kClassMask;
    return question;
}

bool IsReplyTo(DNSPacket query, DNSPacket reply)
{
    const DNSHeader header = decode_header(reply);
    if (!(header.flags & kReplyFlag) || header.id != decode_header(query).id)
        return false;
    const auto asked = FirstQuestion(query), answered = FirstQuestion(reply);
    return asked && answered && asked->type == answered->type && asked->dnsClass == answered->dnsClass &&
           strcasecmp(asked->name.c_str(), answered->name.c_str()) == 0;
}

bool Send(const Socket& socket, DNSPacket query, const std::vector<in_addr>& interfaces)
{
    sockaddr_in group{};
    group.sin_family = AF_INET;
    group.sin_port = htons(kPort);
    inet_pton(AF_INET, kGroup, &group.sin_addr);
    return std::ranges::all_of(interfaces, [&](const in_addr& interface) {
        return socket.set(IP_MULTICAST_IF, interface) &&
               sendto(socket.descriptor(), query.data(), query.size(), 0, reinterpret_cast<const sockaddr*>(&group),
                      sizeof group) == static_cast<ssize_t>(query.size());
    });
}

// The length of the reply; nothing when the round ended without one, -1 for a failure.
std::optional<int> Receive(const Socket& socket, DNSPacket query, std::span<std::uint8_t> answer)
{
    std::array<std::uint8_t, 65536> buffer;
    const int wait = static_cast<int>(GetNameService().silence().count());
    for (int strangers = 0; strangers < kMostStrangersInRound; ++strangers) {
        pollfd waiting{socket.descriptor(), POLLIN, 0};
        const int ready = poll(&waiting, 1, wait);
        if (ready == 0)
            return std::nullopt;
        if (ready < 0 && errno == EINTR)
            continue;
        const ssize_t length = ready < 0 ? -1 : recv(socket.descriptor(), buffer.data(), buffer.size(), 0);
        if (length < 0)
            return -1;
        const DNSPacket reply(buffer.data(), static_cast<std::size_t>(length));
        if (!IsReplyTo(query, reply))
            continue;
        const DNSPacket copied = reply.first(std::min(reply.size(), answer.size()));
        std::ranges::copy(copied, answer.begin());
        return static_cast<int>(copied.size());
    }
    return std::nullopt;
}

int QueryByMulticast(DNSPacket query, std::span<std::uint8_t> answer)
{
    const Socket socket;
    if (socket.descriptor() < 0 || !socket.set(IP_MULTICAST_TTL, kTimeToLive))
        return -1;
    const auto interfaces = GetNameService().multicastInterfaces();
    if (!interfaces)
        return -1;
    for (int round = 0; round < kRounds; ++round) {
        if (!Send(socket, query, *interfaces))
            return -1;
        if (const auto length = Receive(socket, query, answer))
            return *length;
    }
    errno = ETIMEDOUT;
    return -1;
}

} // namespace

int mDNS_res_query(const std::string& name, int dnsClass, int type, std::span<std::uint8_t> answer)
{
    const SystemVersion version = GetSystemConfiguration().systemVersion().value_or(kVersionWhenUnknown);
    if (version >= kResolvesLocalNames || !IsLocalName(name))
        return GetNameService().query(name, dnsClass, type, answer);

    std::array<std::uint8_t, 1024> query;
    const int length = res_mkquery(ns_o_query, name.c_str(), dnsClass, type, nullptr, 0, nullptr, query.data(),
                                   static_cast<int>(query.size()));
    return length < 0 ? -1 : QueryByMulticast(DNSPacket(query).first(static_cast<std::size_t>(length)), answer);
}

} // namespace kesta
