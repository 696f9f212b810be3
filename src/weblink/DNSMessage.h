#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace kesta {

inline constexpr std::uint16_t kDNSClassInternet = 1;
inline constexpr std::uint16_t kDNSTypeText = 16;
inline constexpr std::uint16_t kDNSTypeService = 33;

// A whole message; names may point back into it.
using DNSPacket = std::span<const std::uint8_t>;

// The numbers of a message's header, whatever is missing being 0.
struct DNSHeader {
    static constexpr std::size_t kSize = 12;

    std::uint16_t id = 0;
    std::uint16_t flags = 0;
    std::uint16_t questions = 0;
    std::uint16_t answers = 0;
};
DNSHeader decode_header(DNSPacket packet);

// These read what is at position and move it behind that; after a failure it stays. All answer 0 or a negative code and
// say on standard output what was wrong. Nothing is read beyond the packet, whatever is in it.

// A name, each label of it followed by a dot. -2: it points forward or to itself, or has more than 255 characters; -3:
// it ends beyond the packet.
int decode_name(std::size_t& position, DNSPacket packet, std::string& name);

// A question's name, type and class. -1: position is not in the packet; -2: the name is bad; -4: the rest is missing.
int skip_question(std::size_t& position, DNSPacket packet);

// A resource record; of a service record the host that offers it and the port in network byte order, of others nothing.
// -1: position is not in the packet; -2: a name is bad; -3: too short.
int decode_srv(std::size_t& position, DNSPacket packet, std::string& host, std::uint16_t& port);

// A resource record; of a text record its data as it is. size is the room in buffer and becomes the length of the data.
// -1: no buffer; -2: no size; -3: position is not in the packet; -4: the name is bad; -5: too short; -6: more data than
// room.
int decode_txt(std::size_t& position, DNSPacket packet, std::uint8_t* buffer, std::size_t* size);

} // namespace kesta
