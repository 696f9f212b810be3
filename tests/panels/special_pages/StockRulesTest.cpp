#include "panels/special_pages/paper/StockIcon.h"
#include "panels/special_pages/paper/StockMenuRules.h"
#include "panels/special_pages/paper/StockSummary.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class StockRulesTest : public testing::Test {
protected:
    QString summary(JobContext context = JobContext::Job)
    {
        return GenerateStockSummary(bundle, context, stock, u"; "_s);
    }
    QStringList pictures() { return StockIconPictures(&stock); }

    const Bundle bundle = test::BundleWithAllTexts();
    const test::CurrentPrinter printer;
    Stock stock;
};

TEST_F(StockRulesTest, ASpecialPagesSummaryNamesWhatIsSetAndAJobsNeverTheSize)
{
    stock.setSize(kStockSizeLetter);
    stock.setColor(kStockColorYellow);
    stock.setType(kStockTypeLetterhead);
    stock.setCustomName(u"Invoices"_s);
    EXPECT_EQ(summary(JobContext::Insert), u"StockName:Invoices; - Letter (8.5 x 11 in); - Yellow; - Letterhead"_s);
    EXPECT_EQ(summary(), u"StockName:Invoices; - Yellow; - Letterhead"_s);

    stock.setColor(kStockColorText);
    stock.setCustomColor(u"Teal"_s);
    EXPECT_EQ(summary(), u"StockName:Invoices; StockColor:Teal; - Letterhead"_s);
    stock.setCustomNameOnly(true);
    EXPECT_EQ(summary(JobContext::Cover), u"StockName:Invoices"_s);
}

TEST_F(StockRulesTest, TheTypeIsNamedWithItsModulusAndItsOwnText)
{
    stock.setColor(kUnset);
    stock.setModulus(5);
    stock.setCustomType(u"Dividers"_s);
    const auto type = [&](SInt32 value) {
        stock.setType(value);
        return summary(JobContext::Insert);
    };
    EXPECT_EQ(type(kStockTypePrecutTab), u"- StockTypePrecutTab (5)"_s);
    EXPECT_EQ(type(kStockTypeOrdered), u"- Dividers (5)"_s);
    EXPECT_EQ(type(kStockTypeTabStock), u"- Tabs (5)"_s);
    EXPECT_EQ(type(kStockTypeHeavyTabStock), u"- Heavyweight tabs (5)"_s);
    EXPECT_EQ(type(kStockTypeText), u"- Dividers"_s);
    EXPECT_EQ(type(kStockTypeRecycled), u"- Recycled"_s);
    stock.setModulus(0);
    EXPECT_EQ(type(kStockTypeTabStock), u"- Tabs"_s);
    stock.setModulus(kUnset);
    EXPECT_EQ(type(kStockTypePrecutTab), u"- StockTypePrecutTab"_s);
}

TEST_F(StockRulesTest, OfPaperFromATrayOnlyTheInserterIsNamed)
{
    const test::WithAccessories fitted({{"Option2", "DClass"}});
    stock.setSize(kStockSizeLetter);
    stock.setCustomName(u"Invoices"_s);
    stock.setSource(kStockSourcePostPrintInserter);
    EXPECT_EQ(summary(JobContext::Insert), u"- Tray 8 Inserter Value"_s);
    {
        const test::WithAccessories without({{"Option2", "CClass"}});
        EXPECT_EQ(summary(JobContext::Insert), u"- Inserter Not Fitted"_s);
    }
    stock.setSource(3);
    EXPECT_EQ(summary(JobContext::Insert), QString());
}

TEST_F(StockRulesTest, WhatHasNoTextIsLeftOutAndNothingAtAllHasAWord)
{
    stock.setColor(kUnset);
    EXPECT_EQ(summary(), QString()) << "neither an unset colour nor an unset type is a choice of the PPD";
    EXPECT_EQ(StockSummaryText(bundle, &stock, JobContext::Job), u"PrinterDefault"_s);
    EXPECT_EQ(StockSummaryText(bundle, &stock, JobContext::Insert), u"UseJobSetting"_s);
    EXPECT_EQ(StockSummaryText(bundle, nullptr, JobContext::Insert), QString());

    stock.setType(kStockTypeText);
    stock.setColor(kStockColorText);
    stock.setSize(9999);
    EXPECT_EQ(summary(JobContext::Insert), QString());
    stock.setType(kStockTypeBond);
    stock.setColor(kStockColorRed);
    EXPECT_EQ(StockSummaryText(bundle, &stock, JobContext::Job), u"- Red\n- Bond"_s);

    test::PPDVariant without;
    without.replaceLines("*MediaColor Red/", "");
    PPDCloseCurrent();
    const test::CurrentPrinter other(without);
    EXPECT_EQ(summary(), u"- "_s + WithCaution(u"Not On This Printer Red"_s) + u"; - Bond"_s);
}

TEST_F(StockRulesTest, APrinterWithoutTheOptionHasAnEmptySubmenuThatCanNotBeOpened)
{
    test::PPDVariant bare;
    bare.removeOption("MediaColor");
    const test::CurrentPrinter other(bare);
    Menu menu;
    PopulateStockMenu(menu, bundle, JobContext::Job);
    EXPECT_FALSE(menu.items[0].enabled);
    EXPECT_TRUE(menu.items[1].enabled);
}

TEST_F(StockRulesTest, ASubmenuIsDisabledByItsTitle)
{
    const test::WithAccessories fitted({{"Option2", "DClass"}});
    Menu menu;
    PopulateStockMenu(menu, bundle, JobContext::Cover);
    EnableStockCommand(menu, kStockSizeCommand, false);
    EnableStockCommand(menu, kStockSourceCommand, false);
    EXPECT_FALSE(menu.items.front().enabled || menu.items.back().enabled);
    EXPECT_TRUE(menu.items.front().submenu.front().enabled);
    EXPECT_TRUE(menu.items[1].enabled);
    EnableStockCommand(menu, kStockSizeCommand, true);
    EXPECT_TRUE(menu.items.front().enabled);
}

TEST_F(StockRulesTest, ChoosingPaperTakesItsTrayAndNameAway)
{
    struct Choice {
        FourCharCode command;
        SInt32 value;
        SInt32 (Stock::*field)() const;
    };
    for (const Choice& choice :
         {Choice{kStockSizeCommand, kStockSizeA4, &Stock::size}, Choice{kStockColorCommand, kUnset, &Stock::color},
          Choice{kStockTypeCommand, kStockTypeRecycled, &Stock::type}}) {
        stock.setSource(kStockSourcePostPrintInserter);
        stock.setCustomName(u"Invoices"_s);
        stock.setCustomNameOnly(true);
        EXPECT_TRUE(ApplyStockCommand(stock, JobContext::Insert, choice.command, choice.value));
        EXPECT_EQ((stock.*choice.field)(), choice.value);
        EXPECT_EQ(stock.source(), kUnset);
        EXPECT_EQ(stock.customName(), QString());
        EXPECT_FALSE(stock.customNameOnly());
    }
}

TEST_F(StockRulesTest, TheOtherCommandsTouchWhatTheyAreFor)
{
    stock.setCustomName(u"Invoices"_s);
    stock.setType(kStockTypeBond);
    EXPECT_TRUE(ApplyStockCommand(stock, JobContext::Insert, kStockSourceCommand, kStockSourcePostPrintInserter));
    EXPECT_EQ(stock.source(), kStockSourcePostPrintInserter);
    EXPECT_EQ(stock.customName(), u"Invoices"_s);
    EXPECT_EQ(stock.type(), kStockTypeBond);

    EXPECT_TRUE(ApplyStockCommand(stock, JobContext::Insert, kStockDefaultsCommand, 0));
    EXPECT_EQ(stock.type(), kUnset);
    EXPECT_EQ(stock.source(), kStockSourcePostPrintInserter) << "defaults leave the tray";
    EXPECT_TRUE(ApplyStockCommand(stock, JobContext::Job, kStockDefaultsCommand, 0));
    EXPECT_EQ(stock.size(), kStockSizeLetter);

    const Stock before = stock;
    EXPECT_FALSE(ApplyStockCommand(stock, JobContext::Job, kStockSizeCommand, kStockSizeCustom));
    EXPECT_FALSE(ApplyStockCommand(stock, JobContext::Job, kStockAdvancedCommand, 0));
    EXPECT_FALSE(ApplyStockCommand(stock, JobContext::Job, "Xsep"_code, 0));
    EXPECT_EQ(stock, before);
}

TEST_F(StockRulesTest, OverlaysLieOverEachOtherInOrder)
{
    stock.setType(kStockTypeHeavyLabels);
    stock.setPunched(kStockPunched);
    EXPECT_EQ(pictures(), QStringList({u"Paper_Plain-White.gif"_s, u"Paper_Overlay-Labels.gif"_s,
                                       u"Paper_Overlay-HolePunched.gif"_s, u"Paper_Overlay-LablesHeavyweight.gif"_s}));
    stock.setType(kStockTypeArchival);
    stock.setPunched(kStockNotPunched);
    stock.setColor(kUnset);
    EXPECT_EQ(pictures(), QStringList({u"Paper_Plain-White.gif"_s, u"Paper_Overlay-Archival.gif"_s,
                                       u"Paper_Overlay-Heavyweight.gif"_s}));
    stock.setType(kStockTypeEnvelopes);
    stock.setPunched(kStockPunched);
    stock.setColor(kStockColorGoldenrod);
    EXPECT_EQ(pictures(), QStringList({u"Paper_Envelope-Goldenrod.gif"_s, u"Paper_Overlay-HolePunchedEnvelope.gif"_s}));
    ApplyStockCommand(stock, JobContext::Job, kStockTypeCommand, kStockTypeTransparency);
    stock.setPunched(kStockNotPunched);
    EXPECT_EQ(pictures(), QStringList({u"Paper_Plain-Clear.gif"_s})) << "without gloss";
    stock.setColor(kStockColorGoldenrod);
    EXPECT_EQ(pictures(), QStringList({u"Paper_Plain-Goldenrod.gif"_s, u"Paper_Overlay-LightweightGloss.gif"_s}));
    EXPECT_TRUE(StockIconPictures(nullptr).isEmpty());
}

} // namespace
} // namespace kesta
