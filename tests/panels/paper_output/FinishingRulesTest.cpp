#include "panels/paper_output/FinishingRules.h"

#include "panels/paper_output/FinishingSummary.h"
#include "panels/paper_output/PaperOutputPictures.h"
#include "pde/interface/TicketKeys.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::paper_output {
namespace {

const Bundle& Texts()
{
    static const Bundle bundle = test::BundleWithAllTexts();
    return bundle;
}

QString FourCharacters(FourCharCode code)
{
    QString four;
    for (int shift = 24; shift >= 0; shift -= 8)
        four += QLatin1Char(static_cast<char>(code >> shift));
    return four;
}

// The items' commands and values, "--" for a separator.
QStringList Items(const Menu& menu)
{
    QStringList items;
    for (const MenuItem& item : menu.items)
        items << (item.separator ? u"--"_s : u"%1=%2"_s.arg(FourCharacters(item.command)).arg(item.value));
    return items;
}

QStringList Checked(const Menu& menu)
{
    Menu checked;
    for (const MenuItem& item : menu.items) {
        if (item.checked)
            checked.items.push_back(item);
    }
    return Items(checked);
}

QStringList Words(const char* words)
{
    return QString::fromLatin1(words).split(u' ', Qt::SkipEmptyParts);
}

TEST(FinishingMenus, AUnitForWhateverHolesHidesTheCountedOnes)
{
    const test::WithFeatures fitted({u"GenericPunchKey"_s, u"TriplePunchKey"_s});
    EXPECT_EQ(Items(PunchMenu(Texts())), Words("Hpn0=1 HPun=2"));
    EXPECT_EQ(PunchMenu(Texts()).items.back().title, u"STRING NOT FOUND"_s) << "the feature has no name";
}

using Options = PaperOutputOptions;

Options After(Options options, FourCharCode command)
{
    EXPECT_TRUE(ApplyFinishingCommand(options, command));
    return options;
}

Options Finished(SInt32 option, SInt32 staple, SInt32 punch, SInt32 fold)
{
    return {.booklet = {.fold = fold}, .finishingOption = option, .staple = staple, .punch = punch};
}

TEST(FinishingRules, OneOrTwoStaplesGoWithHolesAndTheRestGoesAlone)
{
    const Options holes = After(Finished(40, 1, 1, 20), "Hpn2"_code);
    EXPECT_EQ(holes, Finished(30, 1, 3, 1));
    const Options twice = After(holes, "Stp2"_code);
    EXPECT_EQ(twice, Finished(9, 10, 3, 1));
    EXPECT_EQ(After(twice, "Hpn3"_code), Finished(30, 10, 4, 1));
    const Options four = After(twice, "Stp4"_code);
    EXPECT_EQ(four, Finished(53, 54, 1, 1));
    EXPECT_EQ(After(four, "Hpn2"_code), Finished(30, 1, 3, 1));
    EXPECT_EQ(After(four, "Stp0"_code), Finished(53, 1, 1, 1)) << "the option stays";
    const Options folded = After(twice, "Zfol"_code);
    EXPECT_EQ(folded, Finished(40, 1, 1, 36));
    EXPECT_EQ(After(folded, "Stp1"_code), Finished(4, 5, 1, 1));
    EXPECT_EQ(After(folded, "Hpn0"_code), folded);
    EXPECT_EQ(After(folded, "Fld0"_code), Finished(40, 1, 1, 1));
}

TEST(FinishingRules, AnyOtherFinishingLeavesTheBookletFold)
{
    const Options booklet{.booklet = {.fold = kFoldBiStaple, .layout = kBookletLayoutOn},
                          .duplex = kTwoSidedShortEdge,
                          .finishingOption = kBookletFoldFinishing};
    for (const FourCharCode command : {"Stp0"_code, "Hpn0"_code}) {
        const Options left = After(booklet, command);
        EXPECT_EQ(left.finishingOption, kNoFinishing);
        EXPECT_EQ(left.booklet.fold, kNotFinished);
        EXPECT_EQ(left.duplex, kTwoSidedLongEdge);
    }
    Options unchanged = booklet;
    for (const FourCharCode command : {kBookletCreation, "Xsep"_code, "Styp"_code, kNoCommand})
        EXPECT_FALSE(ApplyFinishingCommand(unchanged, command));
    EXPECT_EQ(unchanged, booklet);
}

TEST(FinishingRules, TheStaplePopUpKnowsItsValues)
{
    Options options;
    for (const SInt32 staple : {5, 6, 12, 54, 1}) {
        ChooseStaple(options, staple);
        EXPECT_EQ(options.staple, staple);
    }
    ChooseStaple(options, 99);
    EXPECT_EQ(options.staple, kNotFinished);
}

TEST(FinishingRules, ABookletTakesTheFinishingOverAndGivesTwoSidedBack)
{
    Options options{.booklet = {.fold = kFoldBi, .layout = kBookletLayoutOn},
                    .duplex = kTwoSidedLongEdge,
                    .staple = 10,
                    .punch = 3,
                    .offset = 2,
                    .offsetSubset = 1};
    ApplyBooklet(options, kTwoSidedLongEdge);
    EXPECT_EQ(options, (Options{.booklet = {.fold = kFoldBi, .layout = kBookletLayoutOn},
                                .duplex = kTwoSidedLongEdge,
                                .duplexSaved = kTwoSidedLongEdge,
                                .finishingOption = kBookletFoldFinishing,
                                .bindValue = 1,
                                .offsetPagesPerSubset = 0}));
    options.duplex = kTwoSidedShortEdge; // what writing the booklet makes of it
    options.booklet = {};
    ApplyBooklet(options, kTwoSidedShortEdge);
    EXPECT_EQ(options.finishingOption, kNoFinishing);
    EXPECT_EQ(options.duplex, kTwoSidedLongEdge);
    EXPECT_EQ(options.duplexSaved, kTwoSidedShortEdge);
}

TEST(FinishingRules, OtherFinishingOutlivesABookletDialogWithoutAFold)
{
    Options options = Finished(4, 5, 1, 1);
    options.offset = 2;
    ApplyBooklet(options, std::nullopt);
    EXPECT_EQ(options.finishingOption, 4);
    EXPECT_EQ(options.staple, 5);
    EXPECT_EQ(options.offset, 2);
}

TEST(FinishingRules, PaperDecidesAboutCoilPunch)
{
    const test::WithFeatures fitted({u"GBCAdvancedPunchKey"_s});
    struct Case {
        SInt32 type, weight;
        bool allowed;
    };
    for (const Case& paper :
         {Case{1, kUnset, true}, Case{1, 79, false}, Case{1, 80, true}, Case{1, 216, true}, Case{1, 217, false},
          Case{kStockTypeLabels, 100, false}, Case{2, 100, false}, Case{kUnset, 100, true}}) {
        SCOPED_TRACE(std::to_string(paper.type) + ' ' + std::to_string(paper.weight));
        Menu menu{.items = {{.command = kCoilPunch, .checked = true}}};
        Options options{.finishingOption = kCoilPunchFinishing, .coilPunch = 1};
        options.stock.setType(paper.type);
        options.stock.setWeight(paper.weight);
        EXPECT_EQ(ApplyPaperRules(options, menu), !paper.allowed);
        EXPECT_EQ(menu.items.front().enabled, paper.allowed);
        EXPECT_EQ(menu.items.front().checked, paper.allowed);
        EXPECT_EQ(options.coilPunch, paper.allowed ? 1 : 0);
        EXPECT_EQ(options.finishingOption, paper.allowed ? kNoFinishing : kCoilPunchFinishing);
    }
    Menu menu;
    Options unknown;
    unknown.stock = Stock(Dictionary());
    unknown.coilPunch = 1;
    EXPECT_FALSE(ApplyPaperRules(unknown, menu));
    EXPECT_EQ(unknown.coilPunch, 1);
}

TEST(FinishingRules, PaperDecidesAboutSquareFold)
{
    Menu menu;
    Options options{.squareFold = true};
    options.stock.setType(kStockTypePrecutTab);
    EXPECT_FALSE(ApplyPaperRules(options, menu)) << "no trimmer is fitted";
    EXPECT_TRUE(options.squareFold);
    const test::WithFeatures fitted({u"SquareFoldTrimmerKey"_s});
    EXPECT_TRUE(ApplyPaperRules(options, menu));
    EXPECT_FALSE(options.squareFold);
    EXPECT_FALSE(options.squareFoldAllowed);
    options.stock.setType(kStockTypeStandard);
    EXPECT_FALSE(ApplyPaperRules(options, menu));
    EXPECT_TRUE(options.squareFoldAllowed);
}

TEST(FinishingRules, ABookletInTheTicketLocksTheStaples)
{
    Menu menu{.items = {{.command = "Stp1"_code}, {.command = "Stp4"_code}, {.command = kPadPrinting}}};
    const auto enabled = [&] {
        return std::array{menu.items[0].enabled, menu.items[1].enabled, menu.items[2].enabled};
    };
    Ticket ticket;
    ticket.set("X", key::BookletLayout, true);
    ticket.set("X", key::SpecialPagesInsertList, Array{Dictionary()});
    EnableFinishingItems(menu, ticket);
    EXPECT_EQ(enabled(), (std::array{false, false, false}));
    ticket.remove("X", key::BookletLayout);
    ticket.remove("X", key::SpecialPagesInsertList);
    EnableFinishingItems(menu, ticket);
    EXPECT_EQ(enabled(), (std::array{false, false, true})) << "without the key they stay as they are";
    ticket.set("X", key::BookletLayout, false);
    EnableFinishingItems(menu, ticket);
    EXPECT_EQ(enabled(), (std::array{true, true, true}));
    Menu without;
    EnableFinishingItems(without, ticket);
}

TEST(FinishingRules, MarksShowTheJobsFinishing)
{
    const test::WithAccessories fitted({{"Option2", "DClass_BK"}, {"Option4", "HolePunch23"}});
    Menu menu = FinishingMenu(Texts());
    const auto checked = [&](const Options& options) {
        MarkFinishingMenu(menu, options);
        return Checked(menu);
    };
    EXPECT_EQ(checked({}), Words("Stp0=1 Hpn0=1 Fld0=1"));
    EXPECT_EQ(checked(Finished(30, 10, 4, 1)), Words("Stp2=10 Hpn3=4 Fld0=1"));
    EXPECT_EQ(checked(Finished(40, 1, 1, 19)), Words("Stp0=1 Hpn0=1 Cfld=19"));
    EXPECT_EQ(checked({.booklet = {.layout = kBookletLayoutOn}, .staple = 5}), Words("Bkcr=0"));
    EXPECT_EQ(checked(Finished(kBookletFoldFinishing, 1, 1, kFoldBi)), Words("Bkcr=0"));
}

TEST(FinishingSummary, HasOneLineForEachKindOfFinishing)
{
    const auto summary = [](const Options& options, const FinishingAccessories& accessories) {
        return CreateFinishingString(Texts(), options, accessories);
    };
    constexpr FinishingAccessories kAll{.hasStapler = true, .hasPunch = true, .hasFolder = true};
    EXPECT_EQ(summary(Finished(4, 5, 4, 1), {.hasStapler = true, .hasPunch = true}), u"- 1 Staple\n- 3 Hole Punch\n"_s);
    EXPECT_EQ(summary(Finished(30, 1, kPunchAny, kFoldBiStaple), kAll),
              u"- No Staple Value\n- HolePunch\n- No Fold\n"_s)
        << "a booklet's fold without a booklet";
    EXPECT_EQ(summary(Finished(24, 1, 1, 53), kAll), u"- Booklet FoldStaple\n"_s);
    EXPECT_EQ(summary({.booklet = {.fold = 19, .layout = kBookletLayoutOn}}, kAll), u"- No Fold\n- Booklet Layout\n"_s);
    EXPECT_EQ(summary({}, {}), u""_s);
    EXPECT_FALSE(summary({}, {}).isNull()) << "an empty text is shown, none is not";
}

TEST(FinishingSummary, TransparenciesNameTheirSeparators)
{
    const test::CurrentPrinter printer;
    Options options{.separatorCount = 2};
    options.separatorStock.setColor(3);
    options.stock.setType(kStockTypeTransparency);
    const QString separators = u"\n- Separators:Yellow"_s;
    const auto summary = [&] { return PaperSummary(Texts(), PPDGetCurrent(), options); };
    EXPECT_TRUE(summary().endsWith(separators)) << summary().toStdString();
    options.separatorStock.setColor(kUnset);
    EXPECT_FALSE(summary().contains(u"Separators"_s)) << "a colour without a text";
    options.separatorStock.setColor(3);
    for (const SInt32 count : {1, 4}) {
        options.separatorCount = count;
        EXPECT_FALSE(summary().contains(u"Separators"_s));
    }
    options.separatorCount = 3;
    options.stock.setType(kStockTypeStandard);
    EXPECT_FALSE(summary().contains(u"Separators"_s));
}

// Of states that no choice leads to; the others are golden choices.
TEST(PaperOutputPictures, ShowTheState)
{
    EXPECT_EQ(JobTypePicture(9), u"JobType_BackgroundForm.gif"_s);
    EXPECT_EQ(JobTypePicture(4), QString());
    EXPECT_EQ(TwoSidedPicture({.booklet = {.layout = kBookletLayoutOn}, .duplex = 3}), u"2SidedPrinting_2Sided.gif"_s);
    EXPECT_EQ(PunchPicture(kPunchAny), u"OfficeFinishing_3Hp.gif"_s);
    EXPECT_EQ(FinishingPicture(Finished(30, 10, 4, 1)), u"OfficeFinishing_2St&3Hp.gif"_s);
    EXPECT_EQ(FinishingPicture(Finished(24, 1, 1, kFoldBiStaple)), u"OfficeFinishing_BKlt_Fold&Stple.gif"_s);
    EXPECT_EQ(FinishingPicture({.booklet = {.fold = kFoldBiStaple, .layout = kBookletLayoutOn}}),
              u"OfficeFinishing_Bklt_Fold&Stpl_Layout.gif"_s);
}

TEST(JobTypes, WithASetupAreSix)
{
    std::vector<SInt32> withSetup;
    for (SInt32 type = -1; type < 40; ++type) {
        if (JobTypeNeedsSetup(type))
            withSetup.push_back(type);
    }
    EXPECT_EQ(withSetup, (std::vector<SInt32>{3, 4, 5, 6, 7, 9}));
}

TEST(JobTypes, OfATicketAreNine)
{
    for (const auto& [stored, read] : {std::pair(0, 1), {1, 1}, {4, 4}, {9, 9}, {10, 1}}) {
        Ticket ticket;
        ticket.set("X", key::JobType, Dictionary{{"JobType", Number::SInt32(stored)}});
        JobType job;
        ReadJobType(job, ticket);
        EXPECT_EQ(job.number, read) << stored;
    }
}

} // namespace
} // namespace kesta::paper_output
