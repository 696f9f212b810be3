#include "panels/booklet_watermark/booklet/BookletRules.h"

#include "pde/interface/TicketKeys.h"
#include "printer/FinishingKinds.h"

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
