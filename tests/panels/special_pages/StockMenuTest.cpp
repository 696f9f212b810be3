#include "panels/special_pages/paper/StockMenu.h"

#include "panels/special_pages/paper/CustomStockSizeDialog.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/controls/SummaryTextView.h"

#include <gtest/gtest.h>

#include <QPixmap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

// A paper menu button with both of its views, as a dialog has it.
class StockMenuTest : public testing::Test {
protected:
    StockMenuTest()
    {
        data.bundle = &bundle;
        data.stock = &stock;
        data.summaryView = &summary;
        data.iconView = &icon;
        stock.setColor(kUnset);
    }
    void initialize(JobContext context)
    {
        data.context = context;
        InitializeStockMenuButton(&button, data);
    }
    bool choose(FourCharCode command, SInt32 value)
    {
        const std::vector<MenuItem>& items = button.menu().items;
        for (std::size_t i = 0; i < items.size(); ++i) {
            const auto found = std::ranges::find_if(
                items[i].submenu, [=](const MenuItem& item) { return item.command == command && item.value == value; });
            if (found != items[i].submenu.end())
                return button.chooseItem(static_cast<int>(i) + 1,
                                         static_cast<int>(found - items[i].submenu.begin()) + 1);
        }
        return false;
    }

    const test::CurrentPrinter printer;
    Bundle bundle = test::BundleWithAllTexts();
    QWidget window;
    MenuButton button{&window};
    SummaryTextView summary{&window};
    PictureView icon{&window};
    Stock stock;
    _StockMenuCommandEventHandlerData data;
};

TEST_F(StockMenuTest, HandlersAroundTheButtonSeeTheStockChanged)
{
    initialize(JobContext::ExceptionPage);
    SInt32 seen = 0;
    const EventHandler around = InstallEventHandler(window, [&](const CommandEvent& event) {
        if (event.command == kStockTypeCommand)
            seen = stock.type();
        return EventResult::Handled;
    });
    EXPECT_TRUE(choose(kStockTypeCommand, kStockTypeTabStock));
    EXPECT_EQ(seen, kStockTypeTabStock);
    FinalizeStockMenuButton(data);
    EXPECT_TRUE(choose(kStockTypeCommand, kStockTypeBond));
    EXPECT_EQ(stock.type(), kStockTypeTabStock) << "finalized";
}

TEST_F(StockMenuTest, ACancelledCustomSizeStillTakesTrayAndNameAway)
{
    initialize(JobContext::Insert);
    stock.setSize(kStockSizeLetter);
    stock.setCustomName(u"Invoices"_s);
    stock.setCustomNameOnly(true);
    stock.setSource(kStockSourcePostPrintInserter);
    test::ModalUser user;
    user.then([](QWidget& dialog) { test::Press(dialog, kCommandCancel); });
    EXPECT_TRUE(choose(kStockSizeCommand, kStockSizeCustom));
    EXPECT_EQ(stock.size(), kStockSizeLetter);
    EXPECT_EQ(stock.customName(), QString());
    EXPECT_FALSE(stock.customNameOnly());
    EXPECT_EQ(stock.source(), kUnset);
    EXPECT_EQ(summary.text(), u"- Letter (8.5 x 11 in)"_s);
}

TEST_F(StockMenuTest, ACustomSizeComesFromItsDialog)
{
    gCurrentUnits = SizeUnits::Millimetres;
    initialize(JobContext::Insert);
    stock.setWidth(20000);
    stock.setLength(25000);
    test::ModalUser user;
    user.then([](QWidget& dialog) {
        auto* length = FindControl(&dialog, {customsize::kSignature, customsize::kLengthField});
        EXPECT_EQ(length->property("value").toDouble(), 250.0);
        length->setProperty("value", 260.0);
        test::Press(dialog, kCommandOK);
    });
    EXPECT_TRUE(choose(kStockSizeCommand, kStockSizeCustom));
    EXPECT_EQ(stock.size(), kStockSizeCustom);
    EXPECT_EQ(stock.width(), 20000);
    EXPECT_EQ(stock.length(), 26000);
}

TEST_F(StockMenuTest, AdvancedForgetsTheNameOnOKOnly)
{
    initialize(JobContext::Insert);
    stock.setCustomName(u"Invoices"_s);
    test::ModalUser user;
    user.then([](QWidget& dialog) { test::Press(dialog, kCommandCancel); });
    StockMenuCommandEventHandler(data, {.command = kStockAdvancedCommand});
    EXPECT_EQ(stock.customName(), u"Invoices"_s);
    user.then([](QWidget& dialog) { test::Press(dialog, kCommandOK); });
    StockMenuCommandEventHandler(data, {.command = kStockAdvancedCommand});
    EXPECT_EQ(stock.customName(), QString());
}

TEST_F(StockMenuTest, TheIconShowsThePaperAsItIsWhenDrawn)
{
    initialize(JobContext::Job);
    stock.setColor(kStockColorPink);
    icon.grab();
    EXPECT_EQ(icon.pictures(), QStringList({u"Paper_Plain-Pink.gif"_s}));
    data.stock = nullptr;
    icon.grab();
    EXPECT_TRUE(icon.pictures().isEmpty());
    EXPECT_TRUE(choose(kStockColorCommand, kStockColorRed)) << "nothing to change, nothing happens";
}

TEST_F(StockMenuTest, APopupOfSizesAlone)
{
    PopupButton popup(&window);
    data.context = JobContext::Insert;
    InitializeStockSizeMenuButton(&popup, data);
    EXPECT_TRUE(test::Pick(&popup, kStockSizeA4));
    EXPECT_EQ(stock.size(), kStockSizeA4);
    FinalizeStockSizeMenuButton(data);
    EXPECT_TRUE(test::Pick(&popup, kStockSizeLetter));
    EXPECT_EQ(stock.size(), kStockSizeA4);
}

TEST_F(StockMenuTest, WhatIsMissingIsPassedOver)
{
    EXPECT_EQ(ShowStockSummary(bundle, nullptr, &stock, JobContext::Job), kMissingArgument);
    EXPECT_EQ(ShowStockSummary(bundle, &summary, nullptr, JobContext::Job), noErr);
    EXPECT_EQ(summary.text(), QString());
    InitializeStockMenuButton(nullptr, data);
    data.iconView = nullptr;
    data.summaryView = nullptr;
    initialize(JobContext::Job);
    EXPECT_TRUE(choose(kStockColorCommand, kStockColorRed));
    EXPECT_EQ(stock.color(), kStockColorRed);
}

} // namespace
} // namespace kesta
