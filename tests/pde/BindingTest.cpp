#include "pde/menus/Binding.h"

#include "pde/interface/TicketKeys.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

struct Record {
    SInt32 kept = 7, defaulted = 7, offered = 7, bin = 7, shown = 7;

    bool operator==(const Record&) const = default;
};

constexpr auto _SpeedMap = std::to_array<SettingRow>({{"Slow", 1}, {"Fast", 2}});
constexpr auto kBindings = std::to_array<Binding<Record>>({
    {1, kMember<&Record::kept>, {.map = _SpeedMap, .key = "a"}},
    {2, kMember<&Record::defaulted>, {.key = "b", .otherwise = 5}},
    {3, kMember<&Record::offered>, {.map = _SpeedMap, .key = "c", .otherwise = 2, .onlyOffered = true}},
    {4, kMember<&Record::bin>, {.option = PPDKeyword("Duplex"), .otherwise = kUnset}},
    {5, kMember<&Record::shown>, {.map = _SpeedMap}},
});

class BindingTest : public testing::Test {
protected:
    Record read(ppd_file_t* ppd = nullptr) const
    {
        Record record;
        ReadBindings(kBindings, record, ticket, ppd);
        return record;
    }

    Ticket ticket;
};

TEST_F(BindingTest, WhatIsWrittenIsReadAndTheRestStays)
{
    const Record written{.kept = 9, .defaulted = 8, .offered = 1, .bin = 3, .shown = 4};
    WriteBindings(kBindings, written, TicketWriter(ticket, kPrintingManagerClient));
    EXPECT_EQ(ticket.client("a"), QLatin1StringView(kPrintingManagerClient));
    EXPECT_EQ(ticket.values().count(), 3u) << "what has no key is in no entry";
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "Duplex"), u"DuplexTumble"_s);
    EXPECT_EQ(read(), (Record{.kept = 9, .defaulted = 8, .offered = 1, .bin = 3}));
}

TEST_F(BindingTest, ATicketThatDoesNotSayMeansWhatTheRuleSays)
{
    EXPECT_EQ(read(), (Record{.defaulted = 5, .offered = 2, .bin = kUnset}));
    WriteTicketValue(TicketWriter(ticket, "X"), "a", 99);
    WriteTicketValue(TicketWriter(ticket, "X"), "c", 99);
    EXPECT_EQ(read(), (Record{.kept = 99, .defaulted = 5, .offered = 2, .bin = kUnset})) << "99 is not offered";
    const test::CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    EXPECT_NE(read(PPDGetCurrent()).bin, kUnset) << "the printer's default";
}

TEST_F(BindingTest, TheMenuIsOfTheMapOrOfThePrintersChoices)
{
    const Bundle bundle = test::BundleWithTexts({"Slow", "Fast", "Other %1"});
    const test::CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    EXPECT_EQ(MenuOfRule(bundle, kBindings[0].rule, PPDGetCurrent()).menu.items[1].title, u"Fast"_s);
    EXPECT_EQ(MenuOfRule(bundle, kBindings[3].rule, PPDGetCurrent()).menu.count(), 3);
    EXPECT_EQ(MenuOfRule(bundle, kBindings[3].rule, nullptr).menu.count(), 0);

    const BindingRule withOther{.map = _SpeedMap, .other = "Other %1"};
    EXPECT_EQ(MenuOfRule(bundle, withOther, nullptr, 2).menu.count(), 2);
    const BoundMenu made = MenuOfRule(bundle, withOther, nullptr, 31);
    EXPECT_EQ(made.menu.items.back().title, u"Other 31"_s);
    EXPECT_EQ(made.menu.items.back().value, 31);
    EXPECT_EQ(made.maximum, 3) << "it can be chosen";
}

} // namespace
} // namespace kesta
