#include "platform/system/RoutingTable.h"

#include <array>
#include <cstring>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <optional>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace kesta {
namespace {

constexpr timeval kPatience{1, 0}; // the kernel answers in microseconds
constexpr int kMostAnswers = 10'000;

class RouteSocket {
public:
    RouteSocket() : number_(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE))
    {
        setsockopt(number_, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
    }
    ~RouteSocket()
    {
        if (number_ >= 0)
            close(number_);
    }
    RouteSocket(const RouteSocket&) = delete;
    RouteSocket& operator=(const RouteSocket&) = delete;

    bool askForRoutes() const
    {
        struct {
            nlmsghdr header;
            rtmsg route;
        } request{};
        request.header.nlmsg_len = sizeof request;
        request.header.nlmsg_type = RTM_GETROUTE;
        request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
        request.route.rtm_family = AF_INET;
        return send(number_, &request, sizeof request, 0) == static_cast<ssize_t>(sizeof request);
    }
    // Bytes received; 0 or less when there is nothing more.
    ssize_t receive(void* buffer, std::size_t size) const { return recv(number_, buffer, size, 0); }

private:
    int number_;
};

int IntegerOf(const rtattr& attribute)
{
    int value = 0;
    if (RTA_PAYLOAD(&attribute) >= sizeof value)
        std::memcpy(&value, RTA_DATA(&attribute), sizeof value);
    return value;
}

// The interface of the first of several next hops.
int FirstHopOf(const rtattr& attribute)
{
    rtnexthop hop{};
    if (RTA_PAYLOAD(&attribute) >= sizeof hop)
        std::memcpy(&hop, RTA_DATA(&attribute), sizeof hop);
    return hop.rtnh_ifindex;
}

std::optional<DefaultRoute> DefaultRouteOf(const nlmsghdr& message)
{
    if (message.nlmsg_type != RTM_NEWROUTE || message.nlmsg_len < NLMSG_LENGTH(sizeof(rtmsg)))
        return std::nullopt;
    const auto* route = static_cast<const rtmsg*>(NLMSG_DATA(&message));
    const bool isDead = (route->rtm_flags & RTNH_F_DEAD) != 0;
    if (route->rtm_dst_len != 0 || route->rtm_table != RT_TABLE_MAIN || route->rtm_type != RTN_UNICAST || isDead)
        return std::nullopt;

    DefaultRoute found;
    auto left = static_cast<int>(RTM_PAYLOAD(&message));
    for (const rtattr* attribute = RTM_RTA(route); RTA_OK(attribute, left); attribute = RTA_NEXT(attribute, left)) {
        if (attribute->rta_type == RTA_OIF)
            found.interfaceIndex = IntegerOf(*attribute);
        else if (attribute->rta_type == RTA_MULTIPATH)
            found.interfaceIndex = FirstHopOf(*attribute);
        else if (attribute->rta_type == RTA_PRIORITY)
            found.metric = static_cast<unsigned>(IntegerOf(*attribute));
    }
    return found.interfaceIndex > 0 ? std::optional(found) : std::nullopt;
}

// Whether more answers follow.
bool Collect(const void* answer, ssize_t size, std::vector<DefaultRoute>& routes)
{
    auto left = static_cast<unsigned>(size);
    for (auto* message = static_cast<const nlmsghdr*>(answer); NLMSG_OK(message, left);
         message = NLMSG_NEXT(message, left)) {
        if (message->nlmsg_type == NLMSG_DONE || message->nlmsg_type == NLMSG_ERROR)
            return false;
        if (const std::optional<DefaultRoute> route = DefaultRouteOf(*message))
            routes.push_back(*route);
    }
    return true;
}

} // namespace

std::vector<DefaultRoute> DefaultRoutes()
{
    std::vector<DefaultRoute> routes;
    const RouteSocket socket;
    if (!socket.askForRoutes())
        return routes;
    alignas(nlmsghdr) std::array<char, 32 * 1024> answer;
    for (int i = 0; i < kMostAnswers; ++i) {
        const ssize_t size = socket.receive(answer.data(), answer.size());
        if (size <= 0 || !Collect(answer.data(), size, routes))
            break;
    }
    return routes;
}

} // namespace kesta
