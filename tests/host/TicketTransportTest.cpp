#include "host/job/TicketTransport.h"

#include "host/job/TicketPacking.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// Bytes that hardly compress; always the same.
QByteArray Noise(qsizetype size)
{
    std::mt19937 random(1);
    QByteArray noise(size, Qt::Uninitialized);
    for (char& byte : noise)
        byte = static_cast<char>(random());
    return noise;
}

QString Problem(const JobOptions& options)
{
    const DecodedTicket ticket = DecodeTicket(options);
    EXPECT_TRUE(ticket.propertyList.isEmpty());
    return ticket.problem;
}

TEST(TicketTransportTest, EveryLengthComesBackWhateverTheOrder)
{
    for (const int round : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}) {
        const int version = 1 + round % 2;
        const qsizetype size = std::array{1, 300, 18'000, 24'000, 36'000, 70'000}[round / 2];
        const QByteArray ticket = Noise(size);
        const QString sealedPart = round % 4 == 3 ? u"ks1-text"_s : QString();
        EncodedTicket encoded = EncodeTicket(ticket, version, sealedPart);
        ASSERT_TRUE(encoded.problem.isEmpty()) << size;
        qsizetype total = 0;
        for (const JobOption& option : encoded.options) {
            EXPECT_LE(option.value.size(), kMaximumTicketOption);
            EXPECT_EQ(JobOptionFault(option), std::nullopt);
            total += option.value.size();
        }
        EXPECT_LE(total, kMaximumTicketOptions);
        encoded.options.push_back({u"copies"_s, u"2"_s});
        std::ranges::reverse(encoded.options);
        const DecodedTicket decoded = DecodeTicket(encoded.options);
        EXPECT_EQ(decoded.problem, QString()) << size;
        EXPECT_EQ(decoded.propertyList, ticket) << size;
        EXPECT_EQ(decoded.sealedPart, sealedPart);
    }
    EXPECT_EQ(EncodeTicket(Noise(70'000)).options.size(), 4u);
    const QByteArray repeated(4'000'000, 'x');
    EXPECT_EQ(DecodeTicket(EncodeTicket(repeated).options).propertyList, repeated);
    EXPECT_EQ(DecodeTicket(EncodeTicket(repeated, 2).options).propertyList, repeated);
}

TEST(TicketTransportTest, TooMuchIsRefusedAndNeverCut)
{
    for (const int version : {1, 2}) {
        const EncodedTicket large = EncodeTicket(Noise(75'000), version);
        EXPECT_TRUE(large.options.empty());
        EXPECT_NEAR(double(large.tooLarge), 100'000., 1'000.);
        EXPECT_LE(large.room, kMaximumTicketOptions);
    }
    EXPECT_GT(EncodeTicket(Noise(73'000), 2, QString(2000, u'x')).tooLarge, 0) << "a sealed part takes room, too";
    EXPECT_FALSE(EncodeTicket(QByteArray(kMaximumTicket + 1, 'x')).problem.isEmpty());
    EXPECT_FALSE(EncodeTicket({}).problem.isEmpty());
}

class TicketVersionTest : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Both, TicketVersionTest, testing::Values(1, 2));

TEST_P(TicketVersionTest, DamageIsAnError)
{
    const int version = GetParam();
    const JobOptions good = EncodeTicket(Noise(50'000), version).options;
    ASSERT_EQ(good.size(), 3u);
    EXPECT_TRUE(Problem({}).contains(u"no ticket"_s));

    JobOptions missing = good;
    missing.erase(missing.begin() + 1);
    EXPECT_TRUE(Problem(missing).contains(u"piece 2 of 3"_s));
    missing = good;
    missing.pop_back();
    EXPECT_TRUE(Problem(missing).contains(u"piece 3 of 3"_s));

    JobOptions swapped = good;
    std::swap(swapped[1].value, swapped[2].value);
    EXPECT_TRUE(Problem(swapped).contains(u"piece 2 of 3"_s));

    JobOptions cut = good;
    cut[2].value.chop(1);
    EXPECT_TRUE(Problem(cut).contains(u"damaged"_s));

    JobOptions mixed = good;
    mixed[1] = EncodeTicket(Noise(50'001), version).options[1];
    EXPECT_TRUE(Problem(mixed).contains(u"piece 2 of 3"_s));

    JobOptions more = good;
    SetJobOption(more, u"com.kesta.print.ticket.4", good[2].value);
    EXPECT_TRUE(Problem(more).contains(u"more pieces"_s));

    JobOptions foreign = good;
    foreign.push_back({QLatin1StringView(kTicketSealedOption), u"ks1-text"_s});
    EXPECT_TRUE(Problem(foreign).contains(u"not its own"_s));
    JobOptions unsealed = EncodeTicket(Noise(50'000), 2, u"ks1-text"_s).options;
    unsealed.pop_back();
    EXPECT_TRUE(Problem(unsealed).contains(u"sealed part is missing"_s));

    for (qsizetype i = 0; i < good[0].value.size(); i += 997) {
        JobOptions flipped = good;
        flipped[0].value[i] = flipped[0].value[i] == u'A' ? u'B' : u'A';
        EXPECT_NE(Problem(flipped), QString()) << i;
    }
}

TEST_P(TicketVersionTest, ABombDoesNotGoOff)
{
    const bool isFirst = GetParam() == 1;
    const auto piece = [isFirst](const QByteArray& content, const QByteArray& announced, const QByteArray& more = {}) {
        const QByteArray packed = PackTicket(isFirst ? TicketPacking::Zlib : TicketPacking::Bzip2, content) + more;
        const quint32 sum = quint32(crc32_z(0, reinterpret_cast<const Bytef*>(content.constData()), content.size()));
        const QByteArray value = (isFirst ? "kt1-1-1-" : "kt2-1-1-") + announced + '-' + QByteArray::number(sum, 16) +
                                 (isFirst ? "-" : "-0-") +
                                 packed.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
        return JobOptions{{u"com.kesta.print.ticket.1"_s, QString::fromLatin1(value)}};
    };
    const TicketPacking packing = isFirst ? TicketPacking::Zlib : TicketPacking::Bzip2;
    EXPECT_EQ(UnpackTicket(packing, PackTicket(packing, "abc"), 4), QByteArray());
    const QByteArray large(kMaximumTicket + 1, '\0');
    EXPECT_EQ(DecodeTicket(piece("abc", "3")).propertyList, "abc");
    EXPECT_NE(Problem(piece(large, QByteArray::number(large.size()))), QString());
    EXPECT_NE(Problem(piece(large, "1000")), QString());
    EXPECT_NE(Problem(piece("abc", "4")), QString());
    EXPECT_NE(Problem(piece("abc", "2")), QString());
    EXPECT_NE(Problem(piece("abc", "3", "x")), QString()) << "bytes behind what is packed";
    const QString fivePieces = isFirst ? u"kt1-1-5-3-0-AAAA"_s : u"kt2-1-5-3-0-0-AAAA"_s;
    EXPECT_TRUE(Problem({{u"com.kesta.print.ticket.1"_s, fivePieces}}).contains(u"newer"_s)) << "four may travel";
    for (const char* header : {"kt1", "kt1-1-1-5-0", "kt2-1-1-3-0-AAAA", "kt1-1-9-3-0-AAAA", "kt1-1-0-3-0-AAAA",
                               "kt1-1-1--3-0-AAAA", "kt1-1-1-3-zz-AAAA", "kt1-1-1-3-0-!!!!", "kt1-1-1-3-0-",
                               "kt2-1-1-3-0-2-AAAA", "kt2-1-1-3-0--1-AAAA", "kt2-1-1-3-0-0-", "kt3-1-1-3-0-0-AAAA", ""})
        EXPECT_NE(Problem({{u"com.kesta.print.ticket.1"_s, QString::fromLatin1(header)}}), QString()) << header;
}

} // namespace
} // namespace kesta::host
