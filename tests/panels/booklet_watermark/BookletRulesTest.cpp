#include "panels/booklet_watermark/booklet/BookletRules.h"

#include "pde/interface/TicketKeys.h"
#include "printer/FinishingKinds.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <string>

namespace kesta {
namespace {

struct SpecialPages {
    const char* key;
    Value value;
};

bool LocksBooklet(std::initializer_list<SpecialPages> entries)
{
    Ticket settings;
    for (const SpecialPages& entry : entries)
        settings.set(kPrintingManagerClient, entry.key, entry.value);
    return SpecialPagesLockBooklet(settings);
}

TEST(BookletRules, TheFirstSpecialPagesOfATicketLockTheBookletOrNot)
{
    const Value none = Array(), some = Array{Dictionary{{"StartPage", Number::Index(1)}}};
    const Value cover = Dictionary{{"StartPage", Number::Index(1)}};
    EXPECT_FALSE(LocksBooklet({}));
    EXPECT_TRUE(LocksBooklet({{key::SpecialPagesExceptionList, some}}));
    EXPECT_FALSE(LocksBooklet({{key::SpecialPagesExceptionList, none}, {key::SpecialPagesInsertList, some}}));
    EXPECT_TRUE(LocksBooklet({{key::SpecialPagesInsertList, some}}));
    EXPECT_FALSE(LocksBooklet({{key::SpecialPagesInsertList, none}, {key::SpecialPagesBackCover, cover}}));
    EXPECT_FALSE(LocksBooklet({{key::SpecialPagesFrontCover, cover}, {key::SpecialPagesBackCover, cover}}));
    EXPECT_TRUE(LocksBooklet({{key::SpecialPagesBackCover, cover}}));
    EXPECT_FALSE(LocksBooklet({{key::SpecialPagesBackCover, Dictionary()}}));
    EXPECT_FALSE(LocksBooklet({{key::SpecialPagesExceptionList, Value("damaged")}}));
}

// What each ticket value of staples does; "SingleLandscape" has none.
TEST(BookletRules, StaplesOfACornerAndOfALongEdgeLockTheBooklet)
{
    Ticket settings;
    const auto locks = [&](const char* choice) {
        PPDSetCurrentChoice(settings, OptionOf(Finishing::Staple), choice);
        return BookletLockOf(settings, nullptr).byStaple;
    };
    EXPECT_FALSE(BookletLockOf(settings, nullptr).isLocked());
    EXPECT_TRUE(locks("SingleLandscape"));
    for (const ChoiceRow& row : PPDKeyword(OptionOf(Finishing::Staple)).choices()) {
        const bool isOfTwoKinds = (row.value >= 5 && row.value <= 8) || (row.value >= 10 && row.value <= 13);
        EXPECT_EQ(locks(row.choice), isOfTwoKinds) << row.choice;
    }
}

TEST(BookletRules, TheReasonNamesAllThatStandsInTheWay)
{
    const Bundle bundle = test::BundleWithAllTexts();
    const auto reason = [&](const BookletLock& lock) { return BookletLockReason(bundle, lock).toStdString(); };
    EXPECT_EQ(reason({}), "");
    EXPECT_EQ(reason({.byStaple = true}), "Booklet Locked By Staple");
    EXPECT_EQ(reason({.bySpecialPages = true, .byStaple = true, .hasInserts = true}),
              "Booklet Locked By Pages List Of One Locking Inserts");
    EXPECT_EQ(reason({.bySpecialPages = true, .hasExceptions = true, .hasInserts = true, .hasBackCover = true}),
              "Booklet Locked By Pages List Of Three Locking Inserts Locking Exceptions Locking Back Cover");

    Ticket settings;
    settings.set(kPrintingManagerClient, key::SpecialPagesExceptionList, Array{Dictionary()});
    settings.set(kPrintingManagerClient, key::SpecialPagesBackCover, Dictionary{{"StartPage", Number::Index(1)}});
    EXPECT_EQ(BookletLockOf(settings, nullptr),
              (BookletLock{.bySpecialPages = true, .hasExceptions = true, .hasBackCover = true}));
}

TEST(BookletRules, TheIllustrationShowsFoldLayoutAndBorders)
{
    const auto picture = [](SInt32 layout, SInt32 fold, SInt32 outlines) {
        return std::string(BookletIllustration({.fold = fold, .layout = layout, .drawOutlines = outlines}));
    };
    EXPECT_EQ(picture(kBookletLayoutOff, kFoldBi, kDrawPageBorders), "BookletCreation_Fold.gif");
    EXPECT_EQ(picture(kBookletLayoutOff, kFoldBiStaple, kNoPageBorders), "BookletCreation_Fold-Staple.gif");
    EXPECT_EQ(picture(kBookletLayoutOff, kNotFinished, kDrawPageBorders), "BookletCreation_None.gif");
    EXPECT_EQ(picture(kBookletLayoutOn, kFoldBi, kDrawPageBorders), "BookletCreation_Booklet-Fold-Outlines.gif");
    EXPECT_EQ(picture(kBookletLayoutOn, kFoldBiStaple, kNoPageBorders), "BookletCreation_Booklet-Fold-Staple.gif");
    EXPECT_EQ(picture(kBookletLayoutOn, 20, kDrawPageBorders), "BookletCreation_Booklet-Outlines.gif");
    EXPECT_EQ(picture(kBookletLayoutOn, 0, 0), "BookletCreation_Booklet.gif");
}

} // namespace
} // namespace kesta
