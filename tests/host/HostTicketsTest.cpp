#include "host/job/HostTickets.h"
#include "host/job/PageRanges.h"
#include "host/job/SavedSettings.h"
#include "platform/printsystem/PrintSystemKeys.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

TEST(PageRanges, ReadsWhatPeopleType)
{
    const auto cases = std::to_array<std::pair<const char*, const char*>>({
        {"", ""},
        {"  ", ""},
        {"7", "7"},
        {"1-4, 7", "1-4,7"},
        {" 1 - 4 ; 7 ", "1-4,7"},
        {"7,1-4", "1-4,7"},
        {"1-4,3-6,7", "1-7"},
        {"3-", "3-"},
        {"-3", "1-3"},
        {"5-,2", "2,5-"},
        {"2,5-,8", "2,5-"},
        {"99999", "99999"},
        {"1\xe2\x80\x93"
         "4",
         "1-4"},
    });
    for (const auto& [typed, written] : cases) {
        const PageRanges read = ParsePageRanges(QString::fromUtf8(typed));
        EXPECT_EQ(read.problem, PageRangesProblem::None) << typed;
        EXPECT_EQ(WritePageRanges(read.ranges, u","_s), QString::fromLatin1(written)) << typed;
    }
    EXPECT_EQ(WritePageRanges(ParsePageRanges(u"1-4,7"_s).ranges, u", "_s), u"1-4, 7"_s);
}

TEST(PageRanges, SaysWhatIsWrong)
{
    using enum PageRangesProblem;
    const auto cases = std::to_array<std::pair<QString, PageRangesProblem>>({
        {u"a"_s, NotANumber},
        {u"1,"_s, NotANumber},
        {u","_s, NotANumber},
        {u"-"_s, NotANumber},
        {u"1-2-3"_s, NotANumber},
        {u"1 2"_s, NotANumber},
        {u"+1"_s, NotANumber},
        {u"1.5"_s, NotANumber},
        {u"\u0663"_s, NotANumber},
        {u"0"_s, NoSuchPage},
        {u"0-3"_s, NoSuchPage},
        {u"100000"_s, NoSuchPage},
        {u"99999999999999999999"_s, NoSuchPage},
        {u"7-3"_s, Backwards},
        {u"1,"_s.repeated(kMostRanges) + u"1"_s, TooMany},
    });
    for (const auto& [typed, problem] : cases) {
        const PageRanges read = ParsePageRanges(typed);
        EXPECT_EQ(read.problem, problem) << typed.left(20).toStdString();
        EXPECT_TRUE(read.ranges.empty());
    }
}

TEST(HostTickets, EveryFieldComesBack)
{
    const HostSettings settings{.jobName = u"Report"_s,
                                .copies = 25,
                                .pageRanges = u"1-4,7"_s,
                                .orientation = Orientation::ReverseLandscape,
                                .pagesPerSheet = 6};
    Ticket printSettings;
    Ticket pageFormat;
    WriteTickets(settings, printSettings, pageFormat);

    EXPECT_TRUE(ReadTickets(printSettings, pageFormat) == settings);
    EXPECT_TRUE(printSettings.values() == (Dictionary{{key::PMJobName, u"Report"_s},
                                                      {key::PMCopies, Number::Index(25)},
                                                      {key::PMLayoutNUp, true},
                                                      {key::PagesPerSheet, Number::Index(6)},
                                                      {key::PageRanges, u"1-4,7"_s}}));
    EXPECT_TRUE(pageFormat.values() == (Dictionary{{key::PMOrientation, Number::Index(4)}}));
    EXPECT_EQ(printSettings.client(key::PMLayoutNUp), QString::fromLatin1(kHostClient));

    WriteTickets({}, printSettings, pageFormat);
    EXPECT_TRUE(ReadTickets(printSettings, pageFormat) == HostSettings{});
    EXPECT_EQ(printSettings.values().boolean(key::PMLayoutNUp), false);
    EXPECT_FALSE(printSettings.values().find(key::PageRanges));
}

TEST(HostTickets, ForeignValuesGiveDefaults)
{
    Ticket printSettings;
    Ticket pageFormat;
    EXPECT_TRUE(ReadTickets(printSettings, pageFormat) == HostSettings{});

    printSettings.set("x", key::PMJobName, true);
    printSettings.set("x", key::PMCopies, Number::Index(-3));
    printSettings.set("x", key::PagesPerSheet, Number::Index(3));
    printSettings.set("x", key::PageRanges, "seven");
    pageFormat.set("x", key::PMOrientation, Number::Index(5));
    EXPECT_TRUE(ReadTickets(printSettings, pageFormat) == HostSettings{});

    printSettings.set("x", key::PMCopies, Number::SInt64(1LL << 40));
    EXPECT_EQ(ReadTickets(printSettings, pageFormat).copies, 1);
    printSettings.set("x", key::PMCopies, Number::Index(1'000'000));
    EXPECT_EQ(ReadTickets(printSettings, pageFormat).copies, 1);
}

TEST(HostTickets, PaperAndSides)
{
    Ticket printSettings;
    Ticket pageFormat;
    const PaperRect a4{.top = 0, .left = 0, .bottom = 842, .right = 595};
    EXPECT_FALSE(ReadPaperRect(pageFormat));
    WritePaperRect(a4, pageFormat);
    EXPECT_TRUE(ReadPaperRect(pageFormat) == a4);
    pageFormat.set("x", key::PMUnadjustedPaperRect, Array{Number::Index(1)});
    EXPECT_FALSE(ReadPaperRect(pageFormat));

    WriteInitialDuplexing(3, printSettings);
    WriteInitialDuplexing(2, printSettings); // the first stays
    EXPECT_TRUE(*printSettings.values().find(key::PMDuplexing) == Value(Number::Index(3)));
}

// A file that this program writes, it reads again; one that it would not, it does not write.
TEST(SavedSettings, WhatCouldNotBeReadAgainIsNotWritten)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"saved.plist"_s);
    JobTickets tickets;
    tickets.printSettings.set("x", key::PMJobName, "first");
    EXPECT_EQ(SaveSettings(path, tickets), std::nullopt);
    tickets.printSettings.set("x", key::PMJobName, QString(kLargestJobSettings, u'x'));
    EXPECT_EQ(SaveSettings(path, tickets).value_or(Message()).key, u"Settings Too Large To Save"_s);
    Value deep(Array{});
    for (int depth = 0; depth < 60; ++depth)
        deep = Array{deep};
    tickets.printSettings.set("x", key::PMJobName, deep);
    EXPECT_TRUE(SaveSettings(path, tickets));
    JobTickets read;
    EXPECT_EQ(ReadSavedSettings(path, read), std::nullopt);
    EXPECT_TRUE(read.printSettings.values() == (Dictionary{{key::PMJobName, "first"}}));
}

} // namespace
} // namespace kesta::host
