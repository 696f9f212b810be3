#include "host/job/TicketTransport.h"

#include <gtest/gtest.h>

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
    for (const qsizetype size : {1, 300, 18'000, 24'000, 36'000, 70'000}) {
        const QByteArray ticket = Noise(size);
        EncodedTicket encoded = EncodeTicket(ticket);
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
    }
    EXPECT_EQ(EncodeTicket(Noise(70'000)).options.size(), 4u);
    const QByteArray repeated(4'000'000, 'x');
    EXPECT_EQ(DecodeTicket(EncodeTicket(repeated).options).propertyList, repeated);
}

TEST(TicketTransportTest, TooMuchIsRefusedAndNeverCut)
{
    const EncodedTicket large = EncodeTicket(Noise(75'000));
    EXPECT_TRUE(large.options.empty());
    EXPECT_EQ(large.problem.key, u"Ticket Too Large"_s);
    EXPECT_FALSE(EncodeTicket(QByteArray(kMaximumTicket + 1, 'x')).problem.isEmpty());
    EXPECT_FALSE(EncodeTicket({}).problem.isEmpty());
}

TEST(TicketTransportTest, DamageIsAnError)
{
    const JobOptions good = EncodeTicket(Noise(50'000)).options;
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
    mixed[1] = EncodeTicket(Noise(50'001)).options[1];
    EXPECT_TRUE(Problem(mixed).contains(u"piece 2 of 3"_s));

    JobOptions more = good;
    SetJobOption(more, u"com.kesta.print.ticket.4", good[2].value);
    EXPECT_TRUE(Problem(more).contains(u"more pieces"_s));

    for (qsizetype i = 0; i < good[0].value.size(); i += 97) {
        JobOptions flipped = good;
        flipped[0].value[i] = flipped[0].value[i] == u'A' ? u'B' : u'A';
        EXPECT_NE(Problem(flipped), QString()) << i;
    }
}

TEST(TicketTransportTest, ABombDoesNotGoOff)
{
    const auto piece = [](const QByteArray& content, const QByteArray& announced) {
        uLongf size = compressBound(content.size());
        QByteArray packed(qsizetype(size), Qt::Uninitialized);
        compress(reinterpret_cast<Bytef*>(packed.data()), &size, reinterpret_cast<const Bytef*>(content.constData()),
                 content.size());
        packed.resize(qsizetype(size));
        const QByteArray value = "kt1-1-1-" + announced + "-0-" +
                                 packed.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
        return JobOptions{{u"com.kesta.print.ticket.1"_s, QString::fromLatin1(value)}};
    };
    const QByteArray large(60'000'000, '\0');
    EXPECT_NE(Problem(piece(large, "60000000")), QString());
    EXPECT_NE(Problem(piece(large, "1000")), QString());
    EXPECT_NE(Problem(piece("abc", "4")), QString());
    for (const char* header : {"kt1", "kt1-1-1-5-0", "kt2-1-1-3-0-AAAA", "kt1-1-9-3-0-AAAA", "kt1-1-0-3-0-AAAA",
                               "kt1-1-1--3-0-AAAA", "kt1-1-1-3-zz-AAAA", "kt1-1-1-3-0-!!!!", "kt1-1-1-3-0-", ""})
        EXPECT_NE(Problem({{u"com.kesta.print.ticket.1"_s, QString::fromLatin1(header)}}), QString()) << header;
}

} // namespace
} // namespace kesta::host
