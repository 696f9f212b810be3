#include "host/ppd/Constraints.h"
#include "host/ppd/ListOptions.h"

#include "host/Words.h"
#include "support/PPDVariant.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

using kesta::test::PPDVariant;

TEST(ConstraintsTest, NamesTheConflictAndTheChangeInThePrintersWords)
{
    PPDVariant ppd;
    EXPECT_TRUE(FindConflicts(ppd.path(), {}).conflicts.empty()) << "the printer's defaults agree";
    EXPECT_TRUE(FindConflicts(ppd.path(), {{"KSPunch", "2HolePunch"}}).conflicts.empty());

    ppd.setDefault("Option4", "None");
    const Dictionary punched{{"KSPunch", "2HolePunch"}};
    const ConflictReport report = FindConflicts(ppd.path(), punched);
    ASSERT_EQ(report.conflicts.size(), 1u);
    const ChoiceConflict& conflict = report.conflicts.front();
    const QString sentence = test::OnConsole(conflict.sentence);
    EXPECT_TRUE(sentence.endsWith(u"can’t be used while Punch unit is “No punch unit”."_s)) << sentence.toStdString();
    EXPECT_EQ(test::OnConsole(conflict.changes.at(0).text).section(u' ', 0, 0), u"Set"_s);
    ASSERT_EQ(conflict.changes.size(), 1u);
    EXPECT_EQ(conflict.changes[0].keyword, u"KSPunch"_s);
    EXPECT_EQ(conflict.changes[0].choice, u"None"_s);
    EXPECT_TRUE(FindConflicts(ppd.path(), ApplyChanges(report, punched)).conflicts.empty());
}

TEST(ConstraintsTest, AllChangesTogetherLeaveNoConflictAndNoAccessoryIsTouched)
{
    PPDVariant ppd;
    ppd.setDefault("Option1", "None").setDefault("Option2", "OCT").setDefault("Option4", "None");
    const Dictionary choices{{"InputSlot", "Tray6"},
                             {"StapleLocation", "DualLandscape"},
                             {"KSFold", "Z"},
                             {"OutputBin", "Booklet"},
                             {"KSPunch", "3HolePunch"}};
    const ConflictReport report = FindConflicts(ppd.path(), choices);
    EXPECT_GE(report.conflicts.size(), 6u);
    for (const ChoiceConflict& conflict : report.conflicts) {
        EXPECT_FALSE(conflict.changes.empty()) << test::OnConsole(conflict.sentence).toStdString();
        for (const ChoiceChange& change : conflict.changes)
            EXPECT_FALSE(change.keyword.startsWith(u"Option"_s)) << change.keyword.toStdString();
    }
    const Dictionary changed = ApplyChanges(report, choices);
    EXPECT_TRUE(FindConflicts(ppd.path(), changed).conflicts.empty());
    EXPECT_EQ(changed.find("Option2"), nullptr);
}

TEST(ConstraintsTest, ReadsAllKindsOfRules)
{
    PPDVariant ppd;
    ppd.append(
        "*cupsUIConstraints: \"*Duplex *KSFold *OutputBin Middle\"\n"
        "*NonUIConstraints: *MediaType Transparency *Duplex\n"
        "*cupsUIConstraints other: \"*Nothing *KSFold\"\n"
        "*cupsUIConstraints none: \"\"\n"
        "*cupsUIConstraints broken: \"x y *\"\n"
        "*cupsUIConstraints accessories: \"*Option2 DClass_BK *Option4 HolePunch23\"\n"
        "*OpenUI *Glue/Glue: PickOne\n*DefaultGlue: Off\n*Glue Off/No: \"\"\n*Glue On/Yes: \"\"\n*CloseUI: *Glue\n"
        "*cupsUIConstraints glue: \"*Glue *KSFold\"\n");
    const Dictionary three{{"Duplex", "DuplexTumble"}, {"KSFold", "C"}, {"OutputBin", "Middle"}};
    const ConflictReport report = FindConflicts(ppd.path(), three);
    ASSERT_EQ(report.conflicts.size(), 1u) << "once for three options";
    EXPECT_EQ(test::OnConsole(report.conflicts[0].sentence).count(u" and "_s), 2);
    EXPECT_EQ(report.conflicts[0].changes.size(), 1u);
    Dictionary two = three;
    two.set("OutputBin", "Auto");
    EXPECT_TRUE(FindConflicts(ppd.path(), two).conflicts.empty());
    two.set("OutputBin", "Middle");
    two.set("Duplex", "None");
    EXPECT_TRUE(FindConflicts(ppd.path(), two).conflicts.empty()) << "an option that is off breaks no rule";
    const auto clear = FindConflicts(ppd.path(), {{"MediaType", "Transparency"}, {"Duplex", "DuplexTumble"}}).conflicts;
    ASSERT_FALSE(clear.empty());
    EXPECT_EQ(clear[0].changes.at(0).keyword, u"Duplex"_s) << "what is done to the sheets gives way to them";
}

TEST(ConstraintsTest, ReportsWhatThePrinterDoesNotHave)
{
    PPDVariant ppd;
    const ConflictReport report = FindConflicts(ppd.path(), {{"Duplex", "Triplex"},
                                                             {"NoSuch", "X"},
                                                             {"KSFold", true},
                                                             {"PageSize", "Custom.200x300"},
                                                             {"StapleLocation", "None"}});
    EXPECT_EQ(report.unknown, (QStringList{u"Duplex=Triplex"_s, u"KSFold="_s, u"NoSuch"_s}));
    EXPECT_FALSE(FindConflicts(u"/nowhere.ppd"_s, {}).problem.isEmpty());
    EXPECT_FALSE(ListOptions(u"/nowhere.ppd"_s, {}).problem.isEmpty());
}

TEST(ListOptionsTest, MarksDefaultsAndWhatIsAsked)
{
    PPDVariant ppd;
    const QString text = ListOptions(ppd.path(), {{u"Duplex"_s, u"DuplexTumble"_s}}).text;
    EXPECT_TRUE(text.contains(u"\nDuplex/Two-sided printing: None DuplexNoTumble *DuplexTumble\n"_s))
        << text.toStdString();
    EXPECT_TRUE(text.contains(u" Custom.WIDTHxHEIGHT"_s));
    EXPECT_FALSE(text.contains(u"PageRegion"_s));
    EXPECT_TRUE(text.contains(u"Option5/Fax: *True False\n"_s));
}

} // namespace
} // namespace kesta::host
