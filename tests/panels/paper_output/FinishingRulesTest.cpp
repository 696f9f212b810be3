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

struct AccessoryCase {
    const char* finisher;
    const char* punchUnit;
    FinishingAccessories fitted;
    const char* finishing; // with a booklet maker
    const char* staples;   // without one
    const char* punches;
};

// clang-format off
constexpr AccessoryCase kAccessoryCases[] = {
    {"None", "None", {}, "", "Stp0=1", ""},
    {"OCT", "HolePunch23", {.hasPunch = true}, "", "Stp0=1", "Hpn0=1 Hpn2=3 Hpn3=4"},
    {"CClass", "None", {.hasStapler = true}, "", "Stp0=1 Stp1=5 Stp2=10 Stp4=54", ""},
    {"CClass", "HolePunch24", {.hasStapler = true, .hasPunch = true}, "",
     "Stp0=1 Stp1=5 Stp2=10 Stp4=54", "Hpn0=1 Hpn2=3 Hpn4=5"},
    {"CClass_BK", "None", {.hasStapler = true, .hasFolder = true},
     "Stp0=1 Stp1=5 Stp2=10 Stp4=54 -- -- Bkcr=0", "", ""},
    {"CClass_BK", "HolePunch23", {.hasStapler = true, .hasPunch = true, .hasFolder = true},
     "Stp0=1 Stp1=5 Stp2=10 Stp4=54 -- Hpn0=1 Hpn2=3 Hpn3=4 -- Bkcr=0", "", ""},
    {"DClass", "HolePunch23", {.hasStapler = true, .hasPunch = true, .hasFolder = true},
     "Stp0=1 Stp1=5 Stp2=10 Stp4=54 -- Hpn0=1 Hpn2=3 Hpn3=4 -- Fld0=1 Bfld=43 Zfol=36 -- Bkcr=0", "", ""},
    {"DClass_BK", "HolePunch24", {.hasStapler = true, .hasPunch = true, .hasFolder = true},
     "Stp0=1 Stp1=5 Stp2=10 Stp4=54 -- Hpn0=1 Hpn2=3 Hpn4=5 -- Fld0=1 Bfld=43 Cfld=19 Zfld=20 Zfol=36 -- Bkcr=0", "", ""},
};
// clang-format on

TEST(FinishingMenus, OfferWhatIsFitted)
{
    for (const AccessoryCase& one : kAccessoryCases) {
        SCOPED_TRACE(std::string(one.finisher) + ' ' + one.punchUnit);
        const test::WithAccessories fitted({{"Option2", one.finisher}, {"Option4", one.punchUnit}});
        EXPECT_EQ(GetFinishingAccessories(), one.fitted);
        if (one.fitted.hasFolder) {
            EXPECT_EQ(Items(FinishingMenu(Texts())), Words(one.finishing));
            continue;
        }
        EXPECT_EQ(Items(StapleMenu(Texts())), Words(one.staples));
        EXPECT_EQ(Items(PunchMenu(Texts())), Words(one.punches));
    }
}

TEST(FinishingMenus, AUnitForWhateverHolesHidesTheCountedOnes)
{
    const test::WithFeatures fitted({u"GenericPunchKey"_s, u"TriplePunchKey"_s});
    EXPECT_EQ(Items(PunchMenu(Texts())), Words("Hpn0=1 HPun=2"));
    EXPECT_EQ(PunchMenu(Texts()).items.back().title, u"STRING NOT FOUND"_s) << "the feature has no name";
}

using Options = PaperOutputOptions;

Options After(Options options, FourCharCode command, SInt32 value)
{
    EXPECT_TRUE(ApplyFinishingCommand(options, command, value));
    return options;
}

Options Stapled(SInt32 Options::*kind, SInt32 staple)
{
    Options options;
    options.*kind = staple;
    options.staplesChosen = true;
    return options;
}

TEST(FinishingRules, EachStapleEndsTheOthersAndTheFold)
{
    const Options before{
        .finishingOption = kFoldFinishing, .singleStaple = 5, .punchState = 32, .punch = kPunchTwo, .fold = kFoldZ};
    Options expected{.finishingOption = kDualStapleFinishing,
                     .dualStaple = kDualStaple,
                     .staplesChosen = true,
                     .punchState = 32,
                     .punch = kPunchTwo};
    const Options twice = After(before, kStapleTwice, kDualStaple);
    EXPECT_EQ(twice, expected) << "holes go with two staples";
    expected.finishingOption = kSingleStapleFinishing;
    expected.singleStaple = kSingleStaple;
    expected.dualStaple = kNone;
    const Options once = After(twice, kStapleOnce, kSingleStaple);
    EXPECT_EQ(once, expected);
    const Options four = After(once, kStapleFourTimes, 99);
    EXPECT_EQ(four, (Options{.finishingOption = kMultipleStapleFinishing,
                             .multipleStaple = kMultipleStaple, // whatever the item's value
                             .staplesChosen = true}));
    EXPECT_EQ(After(four, kNoStaple, kNone), Options{.finishingOption = kMultipleStapleFinishing}) << "which stays";
}

TEST(FinishingRules, HolesEndFourStaplesAndFoldsEndBoth)
{
    const Options punched = After({.multipleStaple = kMultipleStaple}, kThreeHoles, kPunchThree);
    EXPECT_EQ(punched, (Options{.finishingOption = kPunchFinishing, .punchState = 32, .punch = kPunchThree}));
    EXPECT_EQ(After({.dualStaple = 10}, kTwoHoles, kPunchTwo).dualStaple, 10);
    EXPECT_EQ(After(punched, kNoHoles, kNone).punch, kNone);
    const Options folded = After(punched, kHalfSheetZFold, kFoldZHalfSheet);
    EXPECT_EQ(folded, (Options{.finishingOption = kFoldFinishing, .fold = kFoldZHalfSheet}));
    EXPECT_EQ(After(folded, kNoFold, kNone), Options{.finishingOption = kFoldFinishing}) << "which stays";
}

TEST(FinishingRules, AnyOtherFinishingLeavesTheBookletFold)
{
    const Options booklet{.bookletLayout = kBookletOn,
                          .duplex = kTwoSidedShortEdge,
                          .finishingOption = kBookletFoldFinishing,
                          .fold = kFoldBiStaple};
    for (const FourCharCode command : {kNoStaple, kNoHoles}) {
        const Options left = After(booklet, command, kNone);
        EXPECT_EQ(left.finishingOption, kNoFinishing);
        EXPECT_EQ(left.fold, kNone);
        EXPECT_EQ(left.duplex, kTwoSidedLongEdge);
    }
    Options unchanged = booklet;
    for (const FourCharCode command : {kBookletCreation, "Xsep"_code, "Styp"_code, kNoCommand})
        EXPECT_FALSE(ApplyFinishingCommand(unchanged, command, 5));
    EXPECT_EQ(unchanged, booklet);
}

TEST(FinishingRules, TheStaplePopUpKnowsItsValues)
{
    const auto choose = [](SInt32 staple) {
        Options options = Stapled(&Options::singleStaple, 5);
        ChooseStaple(options, staple);
        return std::array{options.singleStaple, options.dualStaple, options.multipleStaple,
                          SInt32{options.staplesChosen}};
    };
    EXPECT_EQ(choose(6), (std::array{6, 1, 1, 1}));
    EXPECT_EQ(choose(12), (std::array{1, 12, 1, 1}));
    EXPECT_EQ(choose(54), (std::array{1, 1, 54, 1}));
    EXPECT_EQ(choose(1), (std::array{1, 1, 1, 1}));
    EXPECT_EQ(choose(11), (std::array{1, 1, 1, 0}));
}

TEST(FinishingRules, ABookletTakesTheFinishingOverAndGivesTwoSidedBack)
{
    Options options{.bookletLayout = kBookletOn,
                    .duplex = kTwoSidedLongEdge,
                    .dualStaple = kDualStaple,
                    .punch = kPunchTwo,
                    .fold = kFoldBi,
                    .offset = 2,
                    .offsetSubset = 1};
    ApplyBooklet(options, kTwoSidedLongEdge);
    EXPECT_EQ(options, (Options{.bookletLayout = kBookletOn,
                                .duplex = kTwoSidedLongEdge,
                                .duplexSaved = kTwoSidedLongEdge,
                                .finishingOption = kBookletFoldFinishing,
                                .fold = kFoldBi,
                                .bindValue = 1,
                                .offsetPagesPerSubset = 0}));
    options.duplex = kTwoSidedShortEdge; // what writing the booklet makes of it
    options.bookletLayout = kBookletOff;
    options.fold = kNone;
    ApplyBooklet(options, kTwoSidedShortEdge);
    EXPECT_EQ(options.finishingOption, kNoFinishing);
    EXPECT_EQ(options.duplex, kTwoSidedLongEdge);
    EXPECT_EQ(options.duplexSaved, kTwoSidedShortEdge);
}

TEST(FinishingRules, OtherFinishingOutlivesABookletDialogWithoutAFold)
{
    Options options = Stapled(&Options::singleStaple, 5);
    options.finishingOption = kSingleStapleFinishing;
    options.offset = 2;
    ApplyBooklet(options, std::nullopt);
    EXPECT_EQ(options.finishingOption, kSingleStapleFinishing);
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
    Menu menu{.items = {{.command = kStapleOnce}, {.command = kStapleFourTimes}, {.command = kPadPrinting}}};
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
    EXPECT_EQ(checked({.dualStaple = 10, .punch = kPunchThree}), Words("Stp2=10 Hpn3=4 Fld0=1"));
    EXPECT_EQ(checked({.multipleStaple = 54, .fold = kFoldC}), Words("Stp4=54 Hpn0=1 Cfld=19"));
    EXPECT_EQ(checked({.bookletLayout = kBookletOn, .singleStaple = 5}), Words("Bkcr=0"));
    EXPECT_EQ(checked({.finishingOption = kBookletFoldFinishing, .fold = kFoldBi}), Words("Bkcr=0"));
}

TEST(FinishingSummary, HasOneLineForEachKindOfFinishing)
{
    const auto summary = [](const Options& options, const FinishingAccessories& accessories) {
        return CreateFinishingString(Texts(), options, accessories);
    };
    constexpr FinishingAccessories kAll{.hasStapler = true, .hasPunch = true, .hasFolder = true};
    EXPECT_EQ(summary({.singleStaple = 5, .punch = 4}, {.hasStapler = true, .hasPunch = true}),
              u"- 1 Staple\n- 3 Hole Punch\n"_s);
    EXPECT_EQ(summary({}, kAll), u"- No Staple Value\n- NoHolePunch\n- No Fold\n"_s);
    EXPECT_EQ(summary({.multipleStaple = 54, .punch = 2, .fold = 36}, kAll),
              u"- 4 Staples\n- HolePunch\n- Z Fold Half Sheet\n"_s);
    EXPECT_EQ(summary({.dualStaple = 10, .punch = 5, .fold = 43}, kAll),
              u"- 2 Staples\n- 4 Hole Punch\n- BiFoldNoStaple\n"_s);
    EXPECT_EQ(summary({.finishingOption = 24, .fold = 53}, kAll), u"- Booklet FoldStaple\n"_s);
    EXPECT_EQ(summary({.bookletLayout = kBookletOn, .fold = 1}, kAll), u"- No Fold\n- Booklet Layout\n"_s);
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

TEST(PaperOutputPictures, ShowTheState)
{
    EXPECT_EQ(JobTypePicture(6), u"JobType_SecurePrint.gif"_s);
    EXPECT_EQ(JobTypePicture(4), QString());
    EXPECT_EQ(TwoSidedPicture({.duplex = 3}), u"2SidedPrinting_2SidedFlip.gif"_s);
    EXPECT_EQ(TwoSidedPicture({.bookletLayout = kBookletOn, .duplex = 3}), u"2SidedPrinting_2Sided.gif"_s);
    EXPECT_EQ(StaplePicture({.multipleStaple = 54}), u"OfficeFinishing_4St.gif"_s);
    EXPECT_EQ(PunchPicture(kPunchAny), u"OfficeFinishing_3Hp.gif"_s);
    EXPECT_EQ(PunchPicture(kNone), QString());
    EXPECT_EQ(FinishingPicture({.dualStaple = 10, .punch = 4}), u"OfficeFinishing_2St&3Hp.gif"_s);
    EXPECT_EQ(FinishingPicture({.singleStaple = 5}), u"OfficeFinishing_1St.gif"_s);
    EXPECT_EQ(FinishingPicture({.fold = 36}), u"ProductionFinishing_ZFold_Half_Left.gif"_s);
    EXPECT_EQ(FinishingPicture({.finishingOption = 24, .fold = 53}), u"OfficeFinishing_BKlt_Fold&Stple.gif"_s);
    EXPECT_EQ(FinishingPicture({.bookletLayout = 1, .fold = 53}), u"OfficeFinishing_Bklt_Fold&Stpl_Layout.gif"_s);
    EXPECT_EQ(FinishingPicture({}), QString());
    EXPECT_EQ(OutputColorPicture(1), u"OutputColor_BlackandWhite.gif"_s);
    EXPECT_EQ(OutputColorPicture(201), u"OutputColor_PrnDef.gif"_s);
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

} // namespace
} // namespace kesta::paper_output
