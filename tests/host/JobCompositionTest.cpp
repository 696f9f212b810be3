#include "host/job/JobComposition.h"

#include "host/Words.h"
#include "host/job/TicketTransport.h"
#include "platform/values/PropertyList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

JobSources Sources()
{
    return {.queueDefaults = {{u"Duplex"_s, u"None"_s}, {u"copies"_s, u"1"_s}, {u"job-sheets"_s, u"none"_s}},
            .ppdChoices = {{"Duplex", "DuplexTumble"}, {"KSFold", "C"}},
            .commandLine = {{u"ksfold"_s, u"Z"_s}, {u"copies"_s, u"2"_s}, {u"landscape"_s, u"true"_s}},
            .fields = {},
            .ticket = {{"com.kesta.print.Density", true}}};
}

TEST(JobCompositionTest, LaterSourcesPrevail)
{
    JobSources sources = Sources();
    const JobOptions options = ComposeJobOptions(sources).options;
    EXPECT_EQ(FindJobOption(options, "Duplex"), u"DuplexTumble"_s) << "settings prevail over the queue's defaults";
    EXPECT_EQ(FindJobOption(options, "KSFold"), u"Z"_s) << "-o prevails over settings";
    EXPECT_EQ(FindJobOption(options, "copies"), u"2"_s);
    EXPECT_EQ(FindJobOption(options, "job-sheets"), u"none"_s);
    EXPECT_EQ(DecodeTicket(options).propertyList, WritePropertyList(sources.ticket));
    EXPECT_EQ(options.size(), 6u) << "no name twice";

    sources.fields = {
        .copies = 5, .pageRanges = u"2-3"_s, .orientation = Orientation::ReversePortrait, .pagesPerSheet = 4};
    const JobOptions printed = ComposeJobOptions(sources).options;
    EXPECT_EQ(FindJobOption(printed, "copies"), u"5"_s) << "fields prevail over -o";
    EXPECT_EQ(FindJobOption(printed, "page-ranges"), u"2-3"_s);
    EXPECT_EQ(FindJobOption(printed, "number-up"), u"4"_s);
    EXPECT_EQ(FindJobOption(printed, "orientation-requested"), u"6"_s);
    EXPECT_EQ(FindJobOption(printed, "landscape"), std::nullopt);
    sources.fields.orientation = Orientation::Portrait;
    EXPECT_EQ(FindJobOption(ComposeJobOptions(sources).options, "orientation-requested"), std::nullopt);
    sources.fields.orientation = Orientation::Landscape;
    EXPECT_EQ(FindJobOption(ComposeJobOptions(sources).options, "orientation-requested"), u"4"_s);
    sources.fields.orientation = Orientation::ReverseLandscape;
    EXPECT_EQ(FindJobOption(ComposeJobOptions(sources).options, "orientation-requested"), u"5"_s);
    sources.ticket = {};
    EXPECT_EQ(FindJobOption(ComposeJobOptions(sources).options, "com.kesta.print.ticket.1"), std::nullopt);
}

TEST(JobCompositionTest, RefusesWhatWouldArriveDamaged)
{
    JobSources forged = Sources();
    forged.commandLine.push_back({u"COM.kesta.print.ticket.1"_s, u"x"_s});
    EXPECT_TRUE(test::OnConsole(ComposeJobOptions(forged).problem).contains(u"COM.kesta.print.ticket.1"_s));

    forged.commandLine.back().name = QLatin1StringView(kTicketSealedOption);
    EXPECT_EQ(ComposeJobOptions(forged).problem.key, u"Option Made Here"_s);
    JobSources damaged = Sources();
    damaged.ticket = {};
    damaged.reader.publicKeys = {"kk1-short"};
    EXPECT_EQ(ComposeJobOptions(damaged).problem.key, u"Ticket Key Unusable"_s)
        << "also where there is nothing to seal";

    JobSources cut = Sources();
    cut.ppdChoices.set("Owner", QString(u"a\rb"_s));
    EXPECT_TRUE(test::OnConsole(ComposeJobOptions(cut).problem).contains(u"Owner"_s));
    JobSources named = Sources();
    named.ppdChoices.set("Two words", "x");
    EXPECT_TRUE(test::OnConsole(ComposeJobOptions(named).problem).contains(u"Two words"_s));
    JobSources longOne = Sources();
    longOne.commandLine.push_back({u"Note"_s, QString(40'000, u'x')});
    const ComposedOptions refused = ComposeJobOptions(longOne);
    EXPECT_TRUE(test::OnConsole(refused.problem).contains(u"Note"_s));
    EXPECT_TRUE(refused.options.empty());
}

TEST(JobCompositionTest, OptionsAreAsLongAsTheProtocolTakes)
{
    const auto fits = [](qsizetype name, qsizetype value, QChar c = u'x') {
        return !JobOptionFault({QString(name, c), QString(value, c)});
    };
    EXPECT_TRUE(fits(255, 32'767));
    EXPECT_FALSE(fits(256, 1) || fits(1, 32'768) || fits(0, 1));
    EXPECT_FALSE(fits(128, 1, u'ü') || fits(1, 16'384, u'ü')) << "bytes count";
}

TEST(JobCompositionTest, OptionsStringsAreReadAsAFilterGetsThem)
{
    JobOptions options;
    ParseJobOptions("Flag noOther Name=a\\ b\\\"c\\\\d Path='x y' list=1,2", options);
    const JobOptions expected{{u"Flag"_s, u"true"_s},
                              {u"Other"_s, u"false"_s},
                              {u"Name"_s, u"a b\"c\\d"_s},
                              {u"Path"_s, u"x y"_s},
                              {u"list"_s, u"1,2"_s}};
    EXPECT_EQ(options.size(), expected.size());
    for (const JobOption& option : expected)
        EXPECT_EQ(FindJobOption(options, option.name), option.value) << option.name.toStdString();
}

} // namespace
} // namespace kesta::host
