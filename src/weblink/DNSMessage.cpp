#include "weblink/DNSMessage.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>

namespace kesta {
namespace {

constexpr std::size_t kLongestName = 255;
constexpr std::size_t kQuestionEnd = 4;  // type and class
constexpr std::size_t kLeastRecord = 12; // what has to stand behind a record's name; data comes after 10 of it
constexpr std::size_t kRecordHeader = 10;
constexpr std::uint8_t kPointer = 0xC0;

void Say(const char* problem)
{
    std::fputs(problem, stdout);
}

std::uint16_t NumberAt(DNSPacket packet, std::size_t position)
{
    return static_cast<std::uint16_t>(packet[position] << 8 | packet[position + 1]);
}

bool Holds(DNSPacket packet, std::size_t position, std::size_t length)
{
    return position <= packet.size() && packet.size() - position >= length;
}

int NameExtendsPastEnd()
{
    Say("\ndecode error, name extends past end of packet");
    return -3;
}

// What is common to all resource records.
struct Record {
    std::uint16_t type;
    std::size_t data;
    std::size_t end; // may be beyond the packet
};

enum class RecordError { OffTheBuffer, BadName, TooShort };

std::optional<RecordError> DecodeRecord(std::size_t position, DNSPacket packet, Record& record)
{
    std::string name;
    if (position >= packet.size()) {
        Say("decode error, ran off the buffer");
        return RecordError::OffTheBuffer;
    }
    if (decode_name(position, packet, name) != 0)
        return RecordError::BadName;
    if (!Holds(packet, position, kLeastRecord)) {
        Say("decode error, packet too short for type, class, ttl, and length");
        return RecordError::TooShort;
    }
    const std::size_t data = position + kRecordHeader;
    record = {NumberAt(packet, position), data, data + NumberAt(packet, position + 8)};
    if (record.end > packet.size())
        Say("decode error, packet too short for reported rr length");
    return std::nullopt;
}

} // namespace

DNSHeader decode_header(DNSPacket packet)
{
    if (packet.size() < DNSHeader::kSize)
        return {};
    return {NumberAt(packet, 0), NumberAt(packet, 2), NumberAt(packet, 4), NumberAt(packet, 6)};
}

int decode_name(std::size_t& position, DNSPacket packet, std::string& name)
{
    std::string decoded;
    std::size_t at = position;
    std::optional<std::size_t> end, lastTarget;
    for (;;) {
        if (!Holds(packet, at, 1))
            return NameExtendsPastEnd();
        const std::size_t length = packet[at];
        if (length == 0)
            break;
        if ((length & kPointer) == kPointer) {
            if (!Holds(packet, at, 2))
                return NameExtendsPastEnd();
            const std::size_t target = (length & 63) << 8 | packet[at + 1];
            if (target >= at) {
                Say("\ndecode error, compression offset invalid!");
                return -2;
            }
            if (target == lastTarget)
                Say("\ndecode error, compression offset yields loop!"); // the limit of the name's length ends it
            end = end.value_or(at + 2);
            lastTarget = at = target;
            continue;
        }
        if (!Holds(packet, at + 1, length))
            return NameExtendsPastEnd();
        if (decoded.size() + length + 1 > kLongestName)
            return -2;
        decoded.append(reinterpret_cast<const char*>(packet.data()) + at + 1, length) += '.';
        at += 1 + length;
    }
    name = std::move(decoded);
    position = end.value_or(at + 1);
    return 0;
}

int skip_question(std::size_t& position, DNSPacket packet)
{
    std::size_t at = position;
    std::string name;
    if (at >= packet.size()) {
        Say("decode error, ran off the buffer");
        return -1;
    }
    if (decode_name(at, packet, name) != 0)
        return -2;
    if (!Holds(packet, at, kQuestionEnd)) {
        Say("decode error, packet too short for type and class");
        return -4;
    }
    position = at + kQuestionEnd;
    return 0;
}

int decode_srv(std::size_t& position, DNSPacket packet, std::string& host, std::uint16_t& port)
{
    Record record{};
    if (const auto error = DecodeRecord(position, packet, record))
        return *error == RecordError::OffTheBuffer ? -1 : *error == RecordError::BadName ? -2 : -3;
    if (record.type == kDNSTypeService) {
        std::size_t target = record.data + 6; // behind priority, weight and port
        if (decode_name(target, packet, host) != 0)
            return -2;
        std::memcpy(&port, packet.data() + record.data + 4, sizeof port);
    }
    position = record.end;
    return 0;
}

int decode_txt(std::size_t& position, DNSPacket packet, std::uint8_t* buffer, std::size_t* size)
{
    if (!buffer)
        return -1;
    if (!size)
        return -2;
    Record record{};
    if (const auto error = DecodeRecord(position, packet, record))
        return *error == RecordError::OffTheBuffer ? -3 : *error == RecordError::BadName ? -4 : -5;
    if (record.type == kDNSTypeText) {
        if (record.end - record.data > *size)
            return -6;
        const DNSPacket data = packet.subspan(record.data, std::min(record.end, packet.size()) - record.data);
        std::ranges::copy(data, buffer);
        *size = data.size();
    }
    position = record.end;
    return 0;
}

} // namespace kesta
