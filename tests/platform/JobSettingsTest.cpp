#include "platform/printsystem/JobSettings.h"

#include "platform/values/PropertyList.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

namespace kesta {
namespace {

void FillTickets(JobTickets& tickets)
{
    tickets.printSettings.set("com.kesta.print", "stock", Dictionary{{"Size", Number::SInt32(204)}});
    tickets.printSettings.set("K", "options", Array{Value(true)}, Ticket::Lock::Locked);
    tickets.printSettings.set("", "nobody's", "text");
    tickets.printSettings.ppdDict().set("Duplex", "DuplexTumble");
    tickets.pageFormat.set("com.kesta.print", "orientation", Number::Float32(0.1f));
    tickets.printerInfo.set("K", "seen", Date{0});
}

TEST(JobSettings, AreReadWholeAndWrittenAsTheSameBytes)
{
    JobTickets saved, restored;
    FillTickets(saved);
    restored.printSettings.set("other", "options", false, Ticket::Lock::Locked);
    restored.printerInfo.set("other", "goes", true);
    const TicketReference reference = restored.printSettings.reference();

    const QByteArray bytes = WriteJobSettings(saved);
    ASSERT_EQ(ReadJobSettings(bytes, restored), std::nullopt);
    EXPECT_EQ(WriteJobSettings(restored), bytes);
    EXPECT_EQ(restored.printSettings.client("options"), QStringLiteral("K"));
    EXPECT_EQ(restored.printSettings.client("nobody's"), QString());
    EXPECT_EQ(restored.printSettings.values().dictionary("stock")->number("Size")->as<SInt32>(), 204);
    EXPECT_EQ(restored.printSettings.ppdDict(), saved.printSettings.ppdDict());
    EXPECT_FALSE(restored.printerInfo.values().find("goes"));
    EXPECT_EQ(restored.printSettings.set("anybody", "options", true), noErr) << "locks are not saved";
    EXPECT_EQ(TicketFromReference(reference), &restored.printSettings);

    PrintSession session;
    AddToSession(restored, session);
    EXPECT_EQ(PMSessionGetDataFromSession(session, kPMPageFormatTicket), restored.pageFormat.reference());
}

TEST(JobSettings, SecretsAreLeftOutAndNothingElse)
{
    JobTickets tickets, without;
    FillTickets(tickets);
    FillTickets(without);
    tickets.printSettings.set("com.kesta.print", "stock",
                              Dictionary{{"Size", Number::SInt32(204)}, {"Secret", "4711"}});
    constexpr NestedEntry kSecrets[] = {{"options", "Secret"}, {"stock", "Secret"}, {"none", "Secret"}};
    EXPECT_EQ(WriteJobSettings(tickets, kSecrets), WriteJobSettings(without));
}

TEST(JobSettings, AMissingEntryCountsAsEmpty)
{
    JobTickets tickets;
    FillTickets(tickets);
    EXPECT_EQ(ReadJobSettings(WritePropertyList(Dictionary{{"PPD", Dictionary()}}), tickets), std::nullopt);
    EXPECT_EQ(WriteJobSettings(tickets), WriteJobSettings(JobTickets()));
}

// A later version may add entries to the root; they change nothing of what this one reads.
TEST(JobSettings, EntriesOfALaterVersionAreLeftAlone)
{
    JobTickets tickets;
    FillTickets(tickets);
    const QByteArray written = WriteJobSettings(tickets);
    Dictionary later = *ParsePropertyList(written).value->dictionary();
    later.set("Preset", Dictionary{{"Name", "Blue"}});
    later.set("two\nlines", true);
    JobTickets read;
    EXPECT_EQ(ReadJobSettings(WritePropertyList(later), read), std::nullopt);
    EXPECT_EQ(WriteJobSettings(read), written);
}

TEST(JobSettings, WhatIsNotOursIsRefusedAndNothingOfItUsed)
{
    const Dictionary settings{{"PMPrintSettingsTicket", Dictionary{{"key", true}}}};
    const auto with = [&settings](const char* name, Value value) {
        Dictionary root = settings;
        root.set(name, std::move(value));
        return root;
    };
    const Value wrong[] = {
        Value("text"),
        Dictionary(),
        Dictionary{{"Preset", Dictionary()}},
        with("PMPageFormatTicket", Array()),
        with("PPD", Dictionary{{"Duplex", Number::Index(1)}}),
        with("PPD", "Duplex"),
        with("Clients", Array()),
        with("Clients", Dictionary{{"PMPrintSettingsTicket", "K"}}),
        with("Clients", Dictionary{{"Unheard", Dictionary{{"key", "K"}}}}),
        with("Clients", Dictionary{{"PMPrintSettingsTicket", Dictionary{{"key", true}}}}),
        with("Clients", Dictionary{{"PMPrintSettingsTicket", Dictionary{{"absent", "K"}}}}),
        with("Clients", Dictionary{{"PMPageFormatTicket", Dictionary{{"key", "K"}}}}),
        with("Clients", Dictionary{{"two\nlines", true}}),
    };
    JobTickets tickets;
    FillTickets(tickets);
    const QByteArray before = WriteJobSettings(tickets);
    const auto expectRefusal = [&](const QByteArray& bytes, QStringView beginning) {
        const std::optional<Message> problem = ReadJobSettings(bytes, tickets);
        ASSERT_TRUE(problem) << bytes.toStdString();
        EXPECT_TRUE(test::Bare(*problem).startsWith(beginning)) << testing::PrintToString(*problem);
        EXPECT_FALSE(test::Bare(*problem).contains(u'\n'));
        EXPECT_EQ(WriteJobSettings(tickets), before);
    };
    for (const Value& root : wrong)
        expectRefusal(WritePropertyList(root), u"Settings Of Another Kind: ");
    expectRefusal(before.first(before.size() / 2), u"line ");
    expectRefusal(QByteArray(17 * 1024 * 1024, ' '), u"line 1, column 1: larger than");
}

} // namespace
} // namespace kesta
