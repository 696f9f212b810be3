#include "host/job/SettingsMerge.h"

#include "host/job/JobPromises.h"
#include "host/job/MediaOption.h"
#include "host/job/TwoSided.h"
#include "pde/interface/TicketKeys.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

PrinterFacts Printer()
{
    return {.manufacturer = u"Kesta"_s,
            .choices = {{u"Duplex"_s, {u"None"_s, u"DuplexNoTumble"_s, u"DuplexTumble"_s}},
                        {u"OutputBin"_s, {u"Auto"_s, u"Top"_s}}},
            .defaults = {{u"Duplex"_s, u"None"_s}, {u"OutputBin"_s, u"Auto"_s}}};
}

TEST(SettingsMerge, ABookletIsTwoSidedWhateverIsSaid)
{
    JobTickets tickets;
    tickets.printSettings.set("x", key::BookletLayout, true);
    tickets.printSettings.set("x", key::FinishingDuplex, Number::SInt32(1));
    MergeSettings({.commandLine = {{u"sides"_s, u"one-sided"_s}}}, Printer(), tickets);
    EXPECT_EQ(DuplexingOf(tickets.printSettings), 3);
    EXPECT_EQ(*tickets.printSettings.ppdDict().string("Duplex"), u"DuplexTumble"_s);
    EXPECT_EQ(tickets.printSettings.client(key::FinishingDuplex), u"x"_s);
    EXPECT_FALSE(tickets.printSettings.values().find(key::PMDuplexing)) << "no place that was not there";
}

TEST(SettingsMerge, APrinterThatIsLeftTakesBackWhatItBrought)
{
    const SettingSources sources{.queueDefaults = {{u"sides"_s, u"two-sided-long-edge"_s}}};
    const auto leave = [&](JobTickets& tickets, const auto& change) {
        const Dictionary own = PrintersOwnChoices(sources, Printer(), tickets);
        MergeSettings(sources, Printer(), tickets);
        WriteInitialDuplexing(2, tickets.printSettings);
        EXPECT_EQ(DuplexingOf(tickets.printSettings), 2);
        change(tickets.printSettings);
        WithdrawChoices(own, tickets.printSettings);
    };
    JobTickets untouched;
    leave(untouched, [](Ticket& settings) { settings.ppdDict().set("OutputBin", "Auto"); });
    EXPECT_EQ(untouched.printSettings.ppdDict().count(), 0U);
    EXPECT_EQ(untouched.printSettings.values().count(), 0U);

    JobTickets chosen;
    leave(chosen, [](Ticket& settings) {
        settings.ppdDict().set("OutputBin", "Top");
        WriteDuplexing(3, settings);
    });
    EXPECT_TRUE(chosen.printSettings.ppdDict() == (Dictionary{{"Duplex", "DuplexTumble"}, {"OutputBin", "Top"}}));
    EXPECT_EQ(DuplexingOf(chosen.printSettings), 3);

    JobTickets saved; // the same as the printer's own, but said
    saved.printSettings.ppdDict() = {{"Duplex", "DuplexNoTumble"}, {"OutputBin", "Auto"}};
    leave(saved, [](Ticket&) {});
    EXPECT_EQ(saved.printSettings.ppdDict().count(), 2U);
}

TEST(SettingsMerge, FieldsAreAllThatAPlainPrinterGets)
{
    JobTickets tickets;
    WriteTickets({.jobName = u"Report"_s, .copies = 3, .orientation = Orientation::Landscape, .pagesPerSheet = 2},
                 tickets.printSettings, tickets.pageFormat);
    JobTickets plain;
    EXPECT_TRUE(CopyFields(tickets, plain));
    EXPECT_TRUE(plain.printSettings.values() == tickets.printSettings.values());
    tickets.printSettings.ppdDict().set("OutputBin", "Top");
    EXPECT_FALSE(CopyFields(tickets, plain));
    tickets.printSettings.ppdDict() = {};
    tickets.printSettings.set("x", key::FaxOptions, Dictionary());
    EXPECT_FALSE(CopyFields(tickets, plain));
    EXPECT_TRUE(ReadTickets(plain.printSettings, plain.pageFormat) ==
                ReadTickets(tickets.printSettings, tickets.pageFormat));
    EXPECT_FALSE(plain.printSettings.values().find(key::FaxOptions));
}

TEST(SettingsMerge, ASizeByItsOtherNameTakesThePlaceOfTheSavedOne)
{
    PrinterFacts printer = Printer();
    printer.choices[u"PageSize"_s] = {u"A4"_s, u"Letter"_s};
    const auto sizeWith = [&](const QString& media) {
        JobTickets tickets;
        tickets.printSettings.ppdDict().set("PageSize", "Letter");
        MergeSettings({.queueDefaults = {{u"media"_s, u"A4"_s}}, .commandLine = {{u"media"_s, media}}}, printer,
                      tickets);
        return *tickets.printSettings.ppdDict().string("PageSize");
    };
    EXPECT_EQ(sizeWith(u"a4"_s), u"A4"_s);
    EXPECT_EQ(sizeWith(u"Upper, iso_a4_210x297mm"_s), u"A4"_s);
    EXPECT_EQ(sizeWith(u"iso_a3_297x420mm"_s), u"Letter"_s);
    EXPECT_EQ(sizeWith(u"Upper"_s), u"Letter"_s) << "nor does a default take the place of what was saved";
    EXPECT_TRUE(IsTaken({u"media"_s, u"A4"_s}, printer));
    EXPECT_FALSE(IsTaken({u"media"_s, u"A4,Upper"_s}, printer)) << "the tray is for the print server";
    EXPECT_FALSE(IsTaken({u"media"_s, u"A4"_s}, Printer()));

    JobOptions options{{u"media"_s, u"Letter,a5, Upper"_s}, {u"PageSize"_s, u"A4"_s}};
    AlignMedia(options);
    EXPECT_EQ(FindJobOption(options, "media"), u" Upper"_s);
    SetJobOption(options, "media", u"na_letter_8.5x11in"_s);
    AlignMedia(options);
    EXPECT_EQ(FindJobOption(options, "media"), std::nullopt);
}

TEST(JobPromises, APasscodeThatNobodyCanTypeIsNone)
{
    const auto isMissing = [](const char* passcode) {
        Ticket settings;
        settings.set("x", key::JobType,
                     Dictionary{{key::JobTypeNumber, Number::Index(kJobTypeSecurePrint)},
                                {key::JobTypeSecurePrintPassword, passcode}});
        return MissingFor(settings).has_value();
    };
    EXPECT_FALSE(isMissing("8642"));
    EXPECT_FALSE(isMissing("0123456789"));
    for (const char* passcode : {"", "open sesame", "01234567890"})
        EXPECT_TRUE(isMissing(passcode)) << passcode;
}

// What the print server's filters do with both, and what an earlier source's word must not undo.
TEST(TwoSided, OneWordForOptionsOfTwoNames)
{
    EXPECT_EQ(DuplexingOf(JobOptions{{u"Duplex"_s, u"None"_s}, {u"sides"_s, u"two-sided-long-edge"_s}}), 1);
    EXPECT_EQ(DuplexingOf(JobOptions{{u"Duplex"_s, u"Sideways"_s}, {u"sides"_s, u"one-sided"_s}}), std::nullopt);
    JobOptions options{{u"Duplex"_s, u"DuplexTumble"_s}, {u"sides"_s, u"one-sided"_s}};
    AlignSides(options);
    EXPECT_EQ(FindJobOption(options, "sides"), u"two-sided-short-edge"_s);
    SetJobOption(options, "Duplex", u"Sideways"_s);
    AlignSides(options);
    EXPECT_EQ(FindJobOption(options, "sides"), std::nullopt);
    options = {{u"sides"_s, u"one-sided"_s}};
    AlignSides(options);
    EXPECT_EQ(options.size(), 1U);
}

} // namespace
} // namespace kesta::host
