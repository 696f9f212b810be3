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
    SInt32 kept = 7, defaulted = 7, bin = 7, shown = 7;

    bool operator==(const Record&) const = default;
};

constexpr auto _SpeedMap = std::to_array<SettingRow>({{"Slow", 1}, {"Fast", 2}});
constexpr auto kBindings = std::to_array<Binding<Record>>({
    {1, kMember<&Record::kept>, {.map = _SpeedMap, .key = "a"}},
    {2, kMember<&Record::defaulted>, {.key = "b", .otherwise = 5}},
    {3, kMember<&Record::bin>, {.option = PPDKeyword("Duplex"), .otherwise = kUnset}},
    {4, kMember<&Record::shown>, {.map = _SpeedMap}},
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
    const Record written{.kept = 9, .defaulted = 8, .bin = 3, .shown = 4};
    WriteBindings(kBindings, written, TicketWriter(ticket, kPrintingManagerClient));
    EXPECT_EQ(ticket.client("a"), QLatin1StringView(kPrintingManagerClient));
    EXPECT_EQ(ticket.values().count(), 2u) << "what has no key is in no entry";
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "Duplex"), u"DuplexTumble"_s);
    EXPECT_EQ(read(), (Record{.kept = 9, .defaulted = 8, .bin = 3}));
}

TEST_F(BindingTest, ATicketThatDoesNotSayMeansWhatTheRuleSays)
{
    EXPECT_EQ(read(), (Record{.defaulted = 5, .bin = kUnset}));
    WriteTicketValue(TicketWriter(ticket, "X"), "a", 99);
    EXPECT_EQ(read(), (Record{.kept = 99, .defaulted = 5, .bin = kUnset})) << "also what is not offered";
    const test::CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    EXPECT_NE(read(PPDGetCurrent()).bin, kUnset) << "the printer's default";
}

TEST_F(BindingTest, TheMenuIsOfTheMapOrOfThePrintersChoices)
{
    const Bundle bundle = test::BundleWithTexts({"Slow", "Fast"});
    const test::CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    EXPECT_EQ(MenuOfRule(bundle, kBindings[0].rule, PPDGetCurrent()).menu.items[1].title, u"Fast"_s);
    EXPECT_EQ(MenuOfRule(bundle, kBindings[2].rule, PPDGetCurrent()).menu.count(), 3);
    EXPECT_EQ(MenuOfRule(bundle, kBindings[2].rule, nullptr).menu.count(), 0);
}

TEST_F(BindingTest, WhatNoItemStandsForHasANameOrANumber)
{
    constexpr auto _FaxMap = std::to_array<SettingRow>({{"Slow", 1}, {"Fast", 2, kNoCommand, "FaxKey", true}});
    Bundle bundle = test::BundleWithAllTexts();
    for (const char* key : {"Slow", "Fast", "Named", "%1!"})
        bundle.strings.dictionary("Localizable")->set(key, key);
    test::CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    PMSessionSetDataInSession(printer.session, kPMPrintSettingsTicket, ticket.reference());
    ppd_file_t* ppd = PPDGetCurrent();
    const auto other = [&](const BindingRule& rule, SInt32 value, SInt32 initial = 0) {
        return ItemForOther(bundle, rule, ppd, MenuOfRule(bundle, rule, ppd).menu, value, initial);
    };
    const auto title = [&](const BindingRule& rule, SInt32 value) {
        const std::optional<MenuItem> item = other(rule, value);
        return item && item->notOffered ? item->title.section(u"Not On This Printer "_s, 1) : u"not marked"_s;
    };
    EXPECT_EQ(title({.map = _FaxMap}, 2), u"Fast"_s) << "its accessory is missing";
    EXPECT_EQ(title({.map = _FaxMap}, 31), u"Other Value 31"_s);
    EXPECT_EQ(title({.map = _FaxMap, .other = "%1!"}, 31), u"31!"_s);
    EXPECT_EQ(title({.map = _FaxMap, .nameOf = [](SInt32) { return "Named"; }}, 31), u"Named"_s);
    EXPECT_EQ(title({.option = PPDKeyword("OutputBin")}, 15), u"Middle2"_s) << "the keyword";
    EXPECT_EQ(other({.map = _FaxMap, .otherwise = 1}, 2)->instead, 1);
    EXPECT_FALSE(other({.map = _FaxMap, .otherwise = 9}, 9)) << "what goes without saying";
    PPDSetCurrentChoice(ticket, "OutputBin", "Attic");
    EXPECT_EQ(title({.option = PPDKeyword("OutputBin")}, kUnmappedChoice), u"Attic"_s);
    PPDSetCurrentChoice(ticket, "Duplex", "DuplexTumble");
    EXPECT_EQ(title({.option = PPDKeyword("Duplex")}, kUnmappedChoice), u"not marked"_s) << "the printer has it";

    test::PPDVariant bare;
    bare.removeOption("KSEconomode");
    PPDCloseCurrent();
    printer.setPPD(bare.path());
    ppd = PPDGetCurrent();
    EXPECT_FALSE(other({.option = PPDKeyword("KSEconomode")}, 5, 5));
    EXPECT_EQ(title({.option = PPDKeyword("KSEconomode")}, 1), u"Draft"_s);
    ppd = nullptr;
    EXPECT_FALSE(other({.option = PPDKeyword("KSEconomode")}, 1)) << "nobody knows";
}

} // namespace
} // namespace kesta
