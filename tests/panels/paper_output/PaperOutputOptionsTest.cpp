#include "panels/paper_output/PaperOutputOptions.h"

#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/printsystem/JobSettings.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::paper_output {
namespace {

const Dictionary* JobTypeOf(const Ticket& settings)
{
    return settings.values().dictionary(key::JobType);
}

// Every field that the ticket keeps, at a value that is not its default.
PaperOutputOptions Chosen()
{
    PaperOutputOptions chosen;
    chosen.stock = Stock(Dictionary{{"Size", Number::Index(4)}, {"Weight", Number::Index(160)}});
    chosen.stock.setColor(3);
    chosen.stock.setType(12);
    chosen.separatorCount = 3;
    chosen.separatorStock.setColor(5);
    chosen.outputBin = 4;
    chosen.printQuality = 200;
    chosen.jobType = {.number = kJobTypeSavedJob,
                      .securePasscode = u"4711"_s,
                      .hasPasscode = true,
                      .delayedPrintTime = 3'900'000'000,
                      .saveDisposition = 2,
                      .savedJobName = u"Minutes"_s,
                      .useJobName = false,
                      .savedJobLocation = u"file:///archive/"_s,
                      .useDefaultLocation = false,
                      .mediaTypeInJob = 3};
    chosen.faxOptions = Dictionary{{"CoverSheet", true}};
    chosen.recipientList.emplace(Array{Dictionary{{"kFaxRecipientFaxNumberProperty", "123"}}});
    chosen.booklet = {
        .fold = 20, .layout = kBookletLayoutOn, .drawOutlines = 2, .newPaperSize = 4, .gutter = 36, .creep = 7};
    chosen.duplex = kTwoSidedShortEdge;
    chosen.finishingOption = 30;
    chosen.staple = 10;
    chosen.punch = 4;
    chosen.bindValue = 2;
    chosen.offset = 2;
    chosen.offsetSubset = 1;
    chosen.offsetPagesPerSubset = 12;
    chosen.slipSheet = 1;
    chosen.finishingCustom = u"Perfect"_s;
    return chosen;
}

TEST(PaperOutputOptions, EveryFieldSurvivesTheTicket)
{
    PaperOutputOptions chosen = Chosen();
    Ticket first, second;
    EXPECT_EQ(WriteTicket(chosen, first), noErr);
    PaperOutputOptions read;
    ReadTicket(read, first, nullptr);
    EXPECT_EQ(WriteTicket(read, second), noErr);

    EXPECT_EQ(second.values(), first.values());
    EXPECT_EQ(second.ppdDict(), first.ppdDict());
    chosen.jobType.entries = read.jobType.entries; // made by the writing
    EXPECT_EQ(read, chosen);
    EXPECT_EQ(first.ppdDict(), (Dictionary{{"Duplex", "DuplexTumble"},
                                           {"KSFold", "Z"},
                                           {"KSPunch", "3HolePunch"},
                                           {"MediaColor", "Yellow"},
                                           {"MediaType", "CardStock"},
                                           {"OutputBin", "Stacker"},
                                           {"StapleLocation", "DualLandscape"}}));
    EXPECT_EQ(first.client(key::FinishingOptions), QLatin1StringView(kPrintingManagerClient));
}

TEST(PaperOutputOptions, NumbersKeepTheirStoredTypes)
{
    PaperOutputOptions chosen = Chosen();
    Ticket ticket;
    WriteTicket(chosen, ticket);
    const Dictionary& job = *JobTypeOf(ticket);
    EXPECT_EQ(*job.number("JobType"), Number::SInt32(3));
    EXPECT_EQ(*job.number("MediaType"), Number::Index(3));
    EXPECT_EQ(*job.number("DelayedPrintTime"), Number::SInt64(3'900'000'000));
    EXPECT_EQ(*job.number("SaveDisposition"), Number::Index(2));
    EXPECT_EQ(*ticket.values().number(key::FinishingOptions), Number::Index(30));
    EXPECT_EQ(*ticket.values().number(key::FinishingOffset), Number::SInt32(2));
    EXPECT_EQ(*ticket.values().number(key::FinishingOutputColor), Number::Index(200));
}

TEST(PaperOutputOptions, ATicketWithoutAJobTypeIsANormalJobNamedAfterItsDocument)
{
    PaperOutputOptions options;
    options.jobType.savedJobName = u"Report"_s;
    options.jobType.number = kJobTypeSavedJob;
    Ticket ticket;
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.jobType.number, kJobTypeNormal);
    EXPECT_TRUE(options.jobType.useJobName);
    EXPECT_EQ(options.jobType.savedJobName, QString(u""_s));
    EXPECT_FALSE(options.jobType.hasPasscode);

    WriteTicket(options, ticket);
    EXPECT_EQ(*JobTypeOf(ticket), (Dictionary{{"JobType", Number::SInt32(1)},
                                              {"MediaType", Number::Index(1)},
                                              {"UseJobName", true},
                                              {"DelayedPrintTime", Number::SInt64(0)}}));
}

TEST(PaperOutputOptions, WhatASavedJobAloneNeedsGoesWithTheJobType)
{
    PaperOutputOptions options = Chosen();
    Ticket ticket;
    WriteTicket(options, ticket);
    EXPECT_TRUE(JobTypeOf(ticket)->find("SaveDisposition"));

    options.jobType.number = kJobTypeNormal;
    options.jobType.useJobName = options.jobType.useDefaultLocation = true;
    options.jobType.securePasscode.reset();
    WriteTicket(options, ticket);
    EXPECT_FALSE(JobTypeOf(ticket)->find("SaveDisposition"));
    EXPECT_FALSE(JobTypeOf(ticket)->find("SavedJobName"));
    EXPECT_FALSE(JobTypeOf(ticket)->find("SavedJobLocation"));
    EXPECT_EQ(*JobTypeOf(ticket)->string("SecurePrintPassword"), u"4711"_s) << "never taken away";
}

TEST(PaperOutputOptions, EntriesOfTheJobTypeThatAreNobodysHerePassThrough)
{
    Ticket ticket;
    ticket.set("X", key::JobType, Dictionary{{"JobType", Number::SInt32(8)}, {"Folder", "A"}});
    PaperOutputOptions options;
    ReadTicket(options, ticket, nullptr);
    WriteTicket(options, ticket);
    EXPECT_EQ(*JobTypeOf(ticket)->string("Folder"), u"A"_s);
}

TEST(PaperOutputOptions, ABookletForcesShortEdgeInAllThreePlaces)
{
    PaperOutputOptions options{.booklet = {.layout = kBookletLayoutOn}, .duplex = kTwoSidedLongEdge};
    options.stock.setSize(kStockSizeLetter);
    Ticket ticket;
    WriteTicket(options, ticket);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "Duplex"), u"DuplexTumble"_s);
    EXPECT_EQ(ReadTicketValue(ticket, key::FinishingDuplex), 3);
    EXPECT_EQ(ReadTicketValue(ticket, key::PMDuplexing), 3);
    EXPECT_EQ(options.duplex, kTwoSidedShortEdge);
    EXPECT_FALSE(ticket.values().dictionary(key::JobLevelStock)->find("Size")) << "no size is forced";
    EXPECT_EQ(ticket.values().boolean(key::BookletForceNewSize), false);
}

TEST(PaperOutputOptions, BookletAndDuplexAreWrittenOnlyByWhomTheyBelongTo)
{
    PaperOutputOptions options{.booklet = {.layout = kBookletLayoutOn}};
    Ticket ticket;
    WriteTicket(options, ticket, {.booklet = false, .duplex = false});
    for (const char* key : {key::BookletLayout, key::Gutter, key::FinishingDuplex, key::PMDuplexing})
        EXPECT_FALSE(ticket.values().find(key)) << key;
    EXPECT_FALSE(PPDCopyCurrentChoice(ticket, "Duplex"));
    options.booklet.layout = kBookletLayoutOff;
    WriteTicket(options, ticket);
    EXPECT_FALSE(ticket.values().find(key::Gutter)) << "nor of a booklet that is none";
}

TEST(PaperOutputOptions, AForcedBookletSizeIsReadWithItsFlagOnly)
{
    PaperOutputOptions options = Chosen();
    Ticket ticket;
    WriteTicket(options, ticket);
    ticket.set("X", key::BookletForceNewSize, false);
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.booklet.newPaperSize, kUnset);
}

TEST(PaperOutputOptions, TwoSidedComesFromTheFirstPlaceThatSaysIt)
{
    PaperOutputOptions options;
    Ticket ticket;
    PPDSetCurrentChoice(ticket, "Duplex", "DuplexTumble");
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.duplex, kTwoSidedShortEdge);
    ticket.set("X", key::PMDuplexing, Number::Index(1));
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.duplex, kOneSided);
    ticket.set("X", key::FinishingDuplex, Number::Index(2));
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.duplex, kTwoSidedLongEdge);
    ticket.set("X", key::FinishingDuplex, Number::Index(4)); // says nothing
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.duplex, kOneSided);
}

TEST(PaperOutputOptions, ASingleStapleFollowsTheOrientation)
{
    struct Case {
        SInt32 orientation;
        const char* choice;
    };
    for (const Case& page : {Case{1, "SinglePortrait"}, Case{2, "SingleLandscape"}, Case{3, "SinglePortrait"}}) {
        PaperOutputOptions options{.orientation = page.orientation, .staple = 5};
        Ticket ticket;
        WriteTicket(options, ticket);
        EXPECT_EQ(PPDCopyCurrentChoice(ticket, "StapleLocation"), QLatin1StringView(page.choice));
        PaperOutputOptions read;
        ReadTicket(read, ticket, nullptr);
        EXPECT_EQ(read.staple, 5) << page.choice;
    }
}

TEST(PaperOutputOptions, WhatTheTicketLacksComesFromThePPD)
{
    test::PPDVariant ppd;
    ppd.setDefault("Duplex", "DuplexNoTumble").setDefault("KSPunch", "2HolePunch").setDefault("OutputBin", "Top");
    ppd.setDefault("StapleLocation", "DualLandscape").setDefault("MediaColor", "Blue").setDefault("KSFold", "C");
    const test::CurrentPrinter printer(ppd);
    PaperOutputOptions options;
    ReadTicket(options, Ticket(), PPDGetCurrent());
    EXPECT_EQ(options.duplex, kTwoSidedLongEdge);
    EXPECT_EQ(options.punch, 3);
    EXPECT_EQ(options.booklet.fold, 19);
    EXPECT_EQ(options.outputBin, 2);
    EXPECT_EQ(options.staple, 10);
    EXPECT_EQ(options.stock.color(), 2);
    EXPECT_EQ(options.stock.size(), kStockSizeLetter);
}

TEST(PaperOutputOptions, MissingSeparatorsColourIsOnlyTheWritersStatus)
{
    Ticket ticket;
    ticket.set("X", key::SeparatorOption, Number::Index(2), Ticket::Lock::Locked);
    PaperOutputOptions options;
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.separatorCount, 2);
    EXPECT_EQ(options.separatorStock.color(), kUnset);
    EXPECT_EQ(WriteTicket(options, ticket), noErr);

    Ticket others;
    others.set("Y", key::SeparatorOption, Number::Index(1), Ticket::Lock::Locked);
    ReadTicket(options, others, nullptr);
    EXPECT_EQ(WriteTicket(options, others), kTicketEntryLocked);
    EXPECT_TRUE(others.values().find(key::FinishingCustom)) << "the rest is written all the same";
}

TEST(PaperOutputOptions, SpecialPagesAreAnsweredByTheFirstEntryThatIsThere)
{
    Ticket ticket;
    EXPECT_FALSE(isSpecialPageConfigured(ticket));
    ticket.set("X", key::SpecialPagesFrontCover, Dictionary{{"Sides", Number::Index(1)}});
    EXPECT_TRUE(isSpecialPageConfigured(ticket));
    ticket.set("X", key::SpecialPagesInsertList, Array());
    EXPECT_FALSE(isSpecialPageConfigured(ticket)) << "the cover after it is not looked at";
    ticket.set("X", key::SpecialPagesExceptionList, Array{Dictionary()});
    EXPECT_TRUE(isSpecialPageConfigured(ticket));

    PaperOutputOptions options{.padPrintEnabled = 1};
    ReadTicket(options, ticket, nullptr);
    EXPECT_EQ(options.padPrintEnabled, 0);
}

// A ticket in which every entry is of the wrong kind, or out of all bounds.
TEST(PaperOutputOptions, ADamagedTicketReadsAsAnEmptyOne)
{
    PaperOutputOptions valid = Chosen();
    Ticket written;
    WriteTicket(valid, written);
    PaperOutputOptions untouched;
    ReadTicket(untouched, Ticket(), nullptr);

    const QString huge(10'000'000, u'x');
    for (const Value& wrong : {Value(huge), Value(Array{huge}), Value(Number::Float64(1e300)),
                               Value(Number::Index(99'999)), Value(Date{1})}) {
        Ticket damaged;
        for (const Ticket::Entry& entry : written.entries())
            damaged.set("X", entry.key, wrong);
        damaged.set("X", key::JobType,
                    Dictionary{{"JobType", wrong},
                               {"MediaType", Value(Date{2})},
                               {"UseJobName", wrong},
                               {"SavedJobName", Value(Date{3})},
                               {"SecurePrintPassword", Value(Array())},
                               {"DelayedPrintTime", Value(u"soon"_s)}});
        PaperOutputOptions options;
        ReadTicket(options, damaged, nullptr);
        EXPECT_EQ(options.jobType.number, kJobTypeNormal);
        EXPECT_EQ(options.printQuality, kStandardQuality);
        EXPECT_EQ(options.duplex, kOneSided);
        EXPECT_EQ(options.booklet.layout, kBookletLayoutOff);
        EXPECT_EQ(options.jobType.securePasscode, std::nullopt);
        EXPECT_TRUE(options.jobType.useJobName);
        EXPECT_EQ(options.stock, untouched.stock);
        EXPECT_FALSE(options.faxOptions);
        Ticket rewritten;
        WriteTicket(options, rewritten);
        EXPECT_EQ(rewritten.values().dictionary(key::JobType)->number("JobType")->as<SInt32>(), 1);
    }
}

} // namespace
} // namespace kesta::paper_output
