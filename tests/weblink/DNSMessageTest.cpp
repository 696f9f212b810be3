#include "weblink/DNSMessage.h"

#include <arpa/inet.h>

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace kesta::dns_message_test {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes operator+(Bytes left, const Bytes& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Bytes Text(std::string_view text)
{
    return {text.begin(), text.end()};
}

struct Decoded {
    int code;
    std::string said;
    std::size_t position;
};

template <class Decode> Decoded Captured(std::size_t position, const Decode& decode)
{
    testing::internal::CaptureStdout();
    const int code = decode(position);
    return {code, testing::internal::GetCapturedStdout(), position};
}

Decoded Name(const Bytes& packet, std::size_t start, std::string& name)
{
    return Captured(start, [&](std::size_t& position) { return decode_name(position, packet, name); });
}

const Bytes kName = Bytes{3} + Text("abc") + Bytes{2} + Text("de") + Bytes{0}; // 8 bytes

TEST(DNSMessage, DecodesNamesAndPointers)
{
    const Bytes packet = kName + Bytes{1, 'x', 0xC0, 4} + Bytes{0xC0, 8};
    std::string name;
    Decoded decoded = Name(packet, 0, name);
    EXPECT_EQ(decoded.code, 0);
    EXPECT_EQ(name, "abc.de.");
    EXPECT_EQ(decoded.position, 8u);
    decoded = Name(packet, 8, name);
    EXPECT_EQ(name, "x.de.");
    EXPECT_EQ(decoded.position, 12u);
    decoded = Name(packet, 12, name);
    EXPECT_EQ(name, "x.de.") << "a pointer to a pointer";
    EXPECT_EQ(decoded.position, 14u);
    EXPECT_EQ(decoded.said, "");
    EXPECT_EQ(Name({0}, 0, name).position, 1u);
    EXPECT_EQ(name, "");
}

TEST(DNSMessage, BadNamesGiveTheirCodes)
{
    const std::string past = "\ndecode error, name extends past end of packet";
    const std::string invalid = "\ndecode error, compression offset invalid!";
    std::string name = "before";
    for (const Bytes& packet : {Bytes{}, Bytes{4, 'a', 'b', 'c'}, Bytes{1, 'a'}, Bytes{0xC0}, Bytes{0x80, 1}}) {
        const Decoded decoded = Name(packet, 0, name);
        EXPECT_EQ(decoded.code, -3);
        EXPECT_EQ(decoded.said, past);
        EXPECT_EQ(decoded.position, 0u);
    }
    for (const Bytes& packet : {Bytes{0xC0, 0}, Bytes{0xC0, 2, 0}, Bytes{0xFF, 0xFF}}) {
        const Decoded decoded = Name(packet, 0, name);
        EXPECT_EQ(decoded.code, -2);
        EXPECT_EQ(decoded.said, invalid);
    }
    EXPECT_EQ(name, "before");
}

TEST(DNSMessage, ALoopEndsAtTheLongestName)
{
    std::string name;
    const Decoded loop = Name({1, 'a', 0xC0, 0}, 0, name);
    EXPECT_EQ(loop.code, -2);
    EXPECT_TRUE(loop.said.starts_with("\ndecode error, compression offset yields loop!"));
    EXPECT_LT(loop.said.size(), 10000u);

    Bytes longest;
    for (int label = 0; label < 4; ++label)
        longest = longest + Bytes{62} + Bytes(62, 'a');
    EXPECT_EQ(Name(longest + Bytes{2, 'b', 'b', 0}, 0, name).code, 0);
    EXPECT_EQ(name.size(), 255u);
    EXPECT_EQ(Name(longest + Bytes{3, 'b', 'b', 'b', 0}, 0, name).code, -2);
}

TEST(DNSMessage, SkipsQuestions)
{
    const auto skip = [](const Bytes& packet, std::size_t start) {
        return Captured(start, [&](std::size_t& position) { return skip_question(position, packet); });
    };
    EXPECT_EQ(skip(kName + Bytes{0, 33, 0, 1}, 0).position, 12u);
    EXPECT_EQ(skip(kName, 8).code, -1);
    EXPECT_EQ(skip(kName, 8).said, "decode error, ran off the buffer");
    EXPECT_EQ(skip({3, 'a'}, 0).code, -2);
    EXPECT_EQ(skip(kName + Bytes{0, 33, 0}, 0).code, -4);
    EXPECT_EQ(skip(kName + Bytes{0, 33, 0}, 0).said, "decode error, packet too short for type and class");
}

// A record at offset 8 whose target is the name at 0.
Bytes Service(std::uint8_t length, std::uint8_t type = 33)
{
    return kName + Bytes{0xC0, 0, 0, type, 0, 1, 0, 0, 0, 9, 0, length, 0, 1, 0, 2, 0x1F, 0x90, 0xC0, 4};
}

TEST(DNSMessage, DecodesServiceRecords)
{
    std::string host;
    std::uint16_t port = 0;
    const auto decode = [&](const Bytes& packet, std::size_t start) {
        return Captured(start, [&](std::size_t& position) { return decode_srv(position, packet, host, port); });
    };
    const Decoded decoded = decode(Service(8), 8);
    EXPECT_EQ(decoded.code, 0);
    EXPECT_EQ(decoded.position, 28u);
    EXPECT_EQ(host, "de.");
    EXPECT_EQ(ntohs(port), 8080);

    const Decoded tooLong = decode(Service(200), 8);
    EXPECT_EQ(tooLong.code, 0) << "the data that is there counts";
    EXPECT_EQ(tooLong.said, "decode error, packet too short for reported rr length");
    EXPECT_EQ(decode(Service(8), tooLong.position).code, -1);

    host = "untouched";
    EXPECT_EQ(decode(Service(8, 1), 8).position, 28u);
    EXPECT_EQ(host, "untouched") << "not a service record";

    Bytes forward = Service(8);
    forward.back() = 40;
    EXPECT_EQ(decode(forward, 8).code, -2);
    Bytes header = Service(8);
    header.resize(21);
    EXPECT_EQ(decode(header, 8).code, -3);
    EXPECT_EQ(decode(header, 8).said, "decode error, packet too short for type, class, ttl, and length");
    header = Service(8);
    header.resize(22);
    EXPECT_EQ(decode(header, 8).code, -2) << "the target is missing";
}

TEST(DNSMessage, DecodesTextRecords)
{
    const Bytes packet = kName + Bytes{0, 16, 0, 1, 0, 0, 0, 9, 0, 4, 3, 'a', '=', 'b'};
    std::array<std::uint8_t, 4> buffer{};
    std::size_t size = buffer.size();
    const auto decode = [&](const Bytes& from, std::size_t start = 0) {
        return Captured(start, [&](std::size_t& position) { return decode_txt(position, from, buffer.data(), &size); });
    };
    EXPECT_EQ(decode(packet).position, packet.size());
    EXPECT_EQ(buffer, (std::array<std::uint8_t, 4>{3, 'a', '=', 'b'}));
    EXPECT_EQ(size, 4u);

    size = 3;
    EXPECT_EQ(decode(packet).code, -6);
    EXPECT_EQ(size, 3u);
    size = 4;
    Bytes cut = packet;
    cut.resize(packet.size() - 2);
    EXPECT_EQ(decode(cut).code, 0);
    EXPECT_EQ(size, 2u) << "what is there of it";

    EXPECT_EQ(decode(packet, packet.size()).code, -3);
    EXPECT_EQ(decode({0xC0, 0}).code, -4);
    cut.resize(kName.size() + 11);
    EXPECT_EQ(decode(cut).code, -5);
    std::size_t position = 0;
    EXPECT_EQ(decode_txt(position, packet, nullptr, &size), -1);
    EXPECT_EQ(decode_txt(position, packet, buffer.data(), nullptr), -2);
}

} // namespace
} // namespace kesta::dns_message_test
