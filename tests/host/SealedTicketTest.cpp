#include "host/job/SealedTicket.h"

#include "host/job/TicketSeal.h"
#include "host/ppd/PPDFacts.h"
#include "pde/interface/TicketKeys.h"
#include "platform/values/PropertyList.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

#include <sodium.h>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// Every secret of the table, in a dictionary, below another one and in an array; "7351" is in all of them.
Dictionary Ticket()
{
    Dictionary ticket;
    for (const auto& [key, entry] : kJobSecrets) {
        if (!ticket.find(key))
            ticket.set(key, Dictionary{{"JobType", Number::Index(6)}, {"Copies", Array{"1", Dictionary{{"a", "b"}}}}});
        Dictionary& place = *ticket.dictionary(key);
        place.set(entry, "7351");
        place.array("Copies")->at(1).dictionary()->set(entry, "73510");
        place.set("Within", Dictionary{{entry, "173512"}, {"Other", true}});
    }
    ticket.set(key::FaxRecipientList, Array{Dictionary{{"CreditCard", "no secret here"}}});
    return ticket;
}

TicketReader ReaderFor(const TicketKeys& keys)
{
    return {.publicKeys = {keys.publicKey}};
}

class SealedTicketTest : public testing::Test {
protected:
    const TicketKeys keys = MakeTicketKeys().value();
    const QByteArray whole = WritePropertyList(Ticket());
    const JobOptions sent = EncodeJobTicket(Ticket(), ReaderFor(keys)).options;

    // The options with another sealed part.
    JobOptions with(const QByteArray& sealedPart) const
    {
        JobOptions options = sent;
        SetJobOption(options, kTicketSealedOption, QString::fromLatin1(sealedPart));
        return options;
    }
    QByteArray sealedPart() const { return FindJobOption(sent, kTicketSealedOption).value().toLatin1(); }
    // What a forger with the public key, which everybody may know, could seal for the open part of "sent".
    QByteArray forge(const Value& secrets) const
    {
        return SealBytes(TicketDigest(DecodeTicket(sent).propertyList) + WritePropertyList(secrets), keys.publicKey);
    }
    void expectRefused(const JobOptions& options) const
    {
        const JobTicket ticket = DecodeJobTicket(options, keys.privateKey);
        EXPECT_TRUE(ticket.propertyList.isEmpty());
        EXPECT_TRUE(ticket.problem.contains(u"sealed part"_s)) << ticket.problem.toStdString();
    }
};

TEST_F(SealedTicketTest, OnlyThePrivateKeyBringsTheSecretsBack)
{
    const QByteArray openPart = DecodeTicket(sent).propertyList;
    EXPECT_FALSE(openPart.contains("7351"));
    EXPECT_TRUE(openPart.contains("no secret here"));
    EXPECT_EQ(DecodeJobTicket(sent, "# ours\n\n  " + keys.privateKey + "\n").propertyList, whole);
    EXPECT_EQ(DecodeJobTicket(sent, MakeTicketKeys()->privateKey + '\n' + keys.privateKey).propertyList, whole);

    for (const QByteArray& others : {QByteArray(), MakeTicketKeys()->privateKey, keys.privateKey.chopped(1),
                                     QByteArray(keys.privateKey).replace(8, 1, "*"), keys.publicKey}) {
        const JobTicket ticket = DecodeJobTicket(sent, others);
        EXPECT_EQ(ticket.propertyList, openPart) << others.constData();
        EXPECT_EQ(ticket.problem, QString());
        EXPECT_NE(ticket.secrets, JobTicket::Secrets::There);
    }
    EXPECT_NE(EncodeJobTicket(Ticket(), ReaderFor(keys)).options.back(), sent.back()) << "no two seals are alike";
}

TEST_F(SealedTicketTest, WithoutAKeyEverythingTravelsAsBefore)
{
    const JobOptions first = EncodeJobTicket(Ticket(), {}).options;
    EXPECT_TRUE(first[0].value.startsWith(u"kt1-"_s));
    EXPECT_TRUE(EncodeJobTicket(Ticket(), {.version = 2}).options[0].value.startsWith(u"kt2-"_s));
    EXPECT_EQ(DecodeJobTicket(first, {}).propertyList, whole);
    EXPECT_EQ(EncodeJobTicket({{"a", "b"}}, ReaderFor(keys)).options.size(), 1U) << "no secrets, no seal";
    EXPECT_FALSE(EncodeJobTicket(Ticket(), {.problem = Say("File Unreadable")}).problem.isEmpty());
    EXPECT_TRUE(EncodeJobTicket({{"a", "b"}}, {.problem = Say("File Unreadable")}).problem.isEmpty());
}

// A point that gives every sender the same seal, with a true ID.
QByteArray WeakKey()
{
    const QByteArray zero(32, '\0');
    QByteArray hash(16, '\0');
    crypto_generichash(reinterpret_cast<unsigned char*>(hash.data()), 16,
                       reinterpret_cast<const unsigned char*>(zero.constData()), 32, nullptr, 0);
    return "kk1-" + zero.toBase64(QByteArray::OmitTrailingEquals) + '-' + hash.first(4).toHex();
}

TEST_F(SealedTicketTest, ADamagedKeyIsNeverUsed)
{
    QByteArrayList damaged{"",
                           "kk1-",
                           "x",
                           keys.publicKey.chopped(1),
                           keys.publicKey + 'a',
                           keys.privateKey,
                           WeakKey(),
                           "kk2-" + keys.publicKey.sliced(4)};
    for (qsizetype i = 0; i < keys.publicKey.size(); ++i) {
        QByteArray changed = keys.publicKey;
        changed[i] = changed[i] == '1' ? '0' : '1';
        damaged << changed;
    }
    QByteArray another = keys.publicKey;
    ++another[46]; // the last of the key: two of its bits stand for nothing
    damaged << another;
    for (const QByteArray& key : damaged) {
        const EncodedTicket refused = EncodeJobTicket(Ticket(), {.version = 2, .publicKeys = {key}});
        EXPECT_TRUE(refused.options.empty()) << key.constData();
        EXPECT_EQ(refused.problem.key, u"Ticket Key Unusable"_s) << key.constData();
    }
    EXPECT_FALSE(
        EncodeJobTicket(Ticket(), {.publicKeys = {keys.publicKey, MakeTicketKeys()->publicKey}}).problem.isEmpty());
}

TEST_F(SealedTicketTest, AForeignOrDamagedSealIsRefused)
{
    Dictionary other = Ticket();
    other.set("Other", true);
    const JobOptions foreign = EncodeJobTicket(other, ReaderFor(keys)).options;
    expectRefused(with(FindJobOption(foreign, kTicketSealedOption)->toLatin1()));
    for (qsizetype i = 13; i < sealedPart().size(); i += 41) {
        QByteArray changed = sealedPart();
        changed[i] = changed[i] == 'A' ? 'B' : 'A';
        expectRefused(with(changed));
    }
    for (const char* text : {"ks2-", "ks1-", "ks1-12345678-", "ks1-12345678-!!!!", "x"})
        expectRefused(with(text));

    const auto secret = [](Array path) { return Dictionary{{"Path", std::move(path)}, {"Value", "x"}}; };
    EXPECT_FALSE(
        DecodeJobTicket(with(forge(Array{secret({key::JobType, "New"})})), keys.privateKey).propertyList.isEmpty());
    for (const Dictionary& bad : {secret({key::JobType, "JobType"}), secret({key::JobType}), secret({"New", "a"}),
                                  secret({key::JobType, "JobType", "a"}), secret({}), secret({key::JobType, true, "a"}),
                                  secret({key::FaxRecipientList, "1", "a"}), Dictionary{{"Path", "x"}}})
        expectRefused(with(forge(Array{bad})));
    expectRefused(with(forge("no array")));
}

TEST_F(SealedTicketTest, TooMuchIsNamed)
{
    Array recipients;
    for (int i = 0; i < 20'000; ++i)
        recipients.emplace_back(Dictionary{{"FaxNumber", QString::number(i * 7919LL * 104'729LL)}});
    Dictionary ticket = Ticket();
    ticket.set(key::FaxRecipientList, std::move(recipients));
    const EncodedTicket refused = EncodeJobTicket(ticket, ReaderFor(keys));
    EXPECT_TRUE(refused.options.empty());
    EXPECT_EQ(refused.problem.key, u"Ticket Too Large"_s);
    EXPECT_EQ(refused.problem.arguments.back().key, u"Leave Out Recipients"_s);
}

// Syllables at random, so that names differ as people's do and no text is there twice.
QString CyrillicName(std::mt19937& random)
{
    static const QStringList syllables =
        u"ва не ко ми ла ро ни ти со ре мо да ле га ша ви ри но бе зо ху чи фё ля юр ян гр ст ск ов ев ин"_s.split(
            u' ');
    QString name;
    for (int i = 0; i < 4; ++i)
        name += syllables[int(random() % unsigned(syllables.size()))];
    name[0] = name[0].toUpper();
    return name;
}

Dictionary Recipient(std::mt19937& random)
{
    const auto number = [&random] { return u"+7 495 "_s + QString::number(1'000'000 + random() % 9'000'000); };
    const QString last = CyrillicName(random);
    return {{"FirstName", CyrillicName(random)},
            {"LastName", last},
            {"FaxNumber", number()},
            {"FaxNumberLabel", QString(u"рабочий факс"_s)},
            {"Organization", QString(u"ООО «"_s + CyrillicName(random) + CyrillicName(random).toLower() + u'»')},
            {"PhoneNumber", number()},
            {"EmailAddress", QString(last.toLower() + u'@' + CyrillicName(random).toLower() + u".рф"_s)},
            {"Mailbox", QString::number(random() % 10'000)},
            {"UID", QString::number(random(), 16) + QString::number(random(), 16) + QString::number(random(), 16)}};
}

TEST_F(SealedTicketTest, AFaxToAThousandNamesTravels)
{
    std::mt19937 random(1);
    Array recipients;
    for (int i = 0; i < 1000; ++i)
        recipients.emplace_back(Recipient(random));
    Dictionary ticket = Ticket();
    ticket.set(key::FaxRecipientList, std::move(recipients));
    const auto size = [](const JobOptions& options) {
        qsizetype bytes = 0;
        for (const JobOption& option : options)
            bytes += option.value.size();
        return bytes;
    };
    EXPECT_EQ(size(EncodeJobTicket(ticket, {.version = 1}).options), 0);
    const qsizetype sealedSize = size(EncodeJobTicket(ticket, ReaderFor(keys)).options);
    EXPECT_GT(sealedSize, 0);
    EXPECT_LT(sealedSize, 72 * 1024) << "three quarters of what may travel";
}

TEST_F(SealedTicketTest, ThePPDSaysWhatTheServerReads)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"printer.ppd"_s);
    const auto read = [&path](const QByteArray& lines) {
        QFile ppd(path);
        QFile original(QStringLiteral(KESTA_PPD));
        EXPECT_TRUE(original.open(QIODevice::ReadOnly) && ppd.open(QIODevice::WriteOnly));
        QByteArray content = original.readAll();
        content.replace("*KSTicketVersion: \"2\"\n", "");
        ppd.write(content + lines);
        ppd.close();
        return ReadPPDFacts(path, {});
    };
    const PPDFacts none = read("");
    EXPECT_EQ(none.ticketReader.version, 1);
    EXPECT_TRUE(none.ticketReader.publicKeys.isEmpty());
    const PPDFacts both = read("*KSTicketVersion: \"2\"\n*KSTicketKey: \"" + keys.publicKey + "\"\n");
    EXPECT_EQ(both.ticketReader.version, 2);
    EXPECT_EQ(TicketReaderProblem(both.ticketReader), std::nullopt);
    EXPECT_EQ(both.ticketReader.publicKeys, QByteArrayList{keys.publicKey});
    for (const char* line : {"*KSTicketKey:", "*KSTicketKey: \"\"", "*KSTicketKey x: \"kk1\"", "*ksticketkey: \"kk1\"",
                             "*KSTicketKey: \"kk1\"\n*KSTicketKey: \"kk2\""}) {
        const PPDFacts facts = read(QByteArray(line) + '\n');
        EXPECT_TRUE(TicketReaderProblem(facts.ticketReader)) << line;
    }
    EXPECT_FALSE(read("*KSTicketKey \"kk1\"\n").ticketReader.problem.isEmpty()) << "no colon";
}

} // namespace
} // namespace kesta::host
