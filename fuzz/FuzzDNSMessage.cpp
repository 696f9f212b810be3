// A message from the network, read as an answer is read and from every position where something may begin.

#include "Input.h"
#include "weblink/DNSMessage.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace kesta;
using fuzz::Require;

namespace {

constexpr std::size_t kMostPositions = 64;

void CheckRecords(DNSPacket packet, std::size_t position)
{
    std::string text;
    std::uint16_t port = 0;
    std::array<std::uint8_t, 32> buffer{};
    std::size_t length = buffer.size();

    std::size_t behind = position;
    const int name = decode_name(behind, packet, text);
    Require(name == 0 ? behind > position && behind <= packet.size() && text.size() <= 256 : behind == position);
    behind = position;
    const int question = skip_question(behind, packet);
    Require(question == 0 ? behind >= position + 5 && behind <= packet.size() : behind == position);
    behind = position;
    const int service = decode_srv(behind, packet, text, port);
    Require(service == 0 ? behind > position : behind == position); // a record may say that it ends beyond the packet
    behind = position;
    const int record = decode_txt(behind, packet, buffer.data(), &length);
    Require(record == 0 ? behind > position && length <= buffer.size() : behind == position);
}

void CheckAnswer(DNSPacket packet)
{
    const DNSHeader header = decode_header(packet);
    std::size_t position = DNSHeader::kSize;
    std::string host;
    std::uint16_t port = 0;
    for (int i = 0; i < header.questions; ++i)
        if (skip_question(position, packet) != 0)
            return;
    for (int i = 0; i < header.answers; ++i)
        if (decode_srv(position, packet, host, port) != 0)
            return;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::uint8_t> exact(data, data + size); // a byte beyond its end is noticed
    CheckAnswer(exact);
    std::size_t none = 0, room = 1;
    std::uint8_t byte = 0;
    Require(decode_txt(none, exact, nullptr, &room) == -1 && decode_txt(none, exact, &byte, nullptr) == -2);
    for (std::size_t position = 0; position <= std::min(size + 1, kMostPositions); ++position)
        CheckRecords(exact, position);
    return 0;
}
