#include "panels/booklet_watermark/booklet/BookletDialog.h"

#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/TicketUtilities.h"
#include "printer/FinishingKinds.h"
#include "support/Accessories.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/SpinField.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kesta::booklet {
namespace {

using test::ModalUser;
using test::Press;

class BookletDialogTest : public testing::Test {
protected:
    BookletDialogTest()
    {
        PMSessionSetDataInSession(printer.session, kPMPrintSettingsTicket, settings.reference());
        SetCurrentPrintSession(&printer.session);
    }
    ~BookletDialogTest() override { SetCurrentPrintSession(nullptr); }

    template <class Widget = QAbstractButton> static Widget& get(QWidget& window, Control number)
    {
        auto* found = FindControlAs<Widget>(&window, {kSignature, number});
        return found ? *found : throw std::out_of_range("no such control");
    }
    static bool isEnabled(QWidget& window, Control number) { return get<QWidget>(window, number).isEnabled(); }
    static SInt32 anySize(QWidget& window) // one that the menu offers
    {
        for (const MenuItem& item : get<PopupButton>(window, kNewSizePopup).menu().items)
            if (item.enabled && item.value != kUnset)
                return item.value;
        throw std::out_of_range("no sizes");
    }
    static void cancel(QWidget& window) { Press(window, kCommandCancel); }
    static void ok(QWidget& window) { Press(window, kCommandOK); }

    test::CurrentPrinter printer;
    Ticket settings;
    Bundle bundle = test::BundleWithAllTexts();
    Booklet booklet;
};

TEST_F(BookletDialogTest, WhatTheUserChoosesReachesTheParametersAndComesBack)
{
    SInt32 size = 0;
    ModalUser user;
    user.then([&](QWidget& window) {
        EXPECT_EQ(window.objectName(), u"BookletCreation"_s);
        EXPECT_TRUE(get(window, kFoldNoneRadio).isChecked());
        EXPECT_TRUE(get(window, kLayoutOffRadio).isChecked());
        EXPECT_EQ(get<QLabel>(window, kGutterRange).text(), u"Gutter Range Label 0 216"_s);
        EXPECT_EQ(get<QLabel>(window, kCreepRange).text(), u"Creep Range Label 0.0 1.0"_s);
        EXPECT_EQ(get<PopupButton>(window, kNewSizePopup).selectedItem()->title, u"Off"_s);

        get(window, kFoldAndStapleRadio).click();
        get(window, kLayoutOnRadio).click();
        get(window, kDrawOutlinesBox).click();
        size = anySize(window);
        EXPECT_TRUE(test::Pick(&get<PopupButton>(window, kNewSizePopup), size));
        get<SpinField>(window, kGutterField).setNumber(100);
        get<SpinField>(window, kCreepField).setNumber(7);
        EXPECT_EQ(get<SpinField>(window, kCreepField).text(), u"0.7"_s);
    });
    user.then(ok);
    EXPECT_EQ(RunModalBookletCreationDialog(bundle, booklet), noErr);
    const Booklet chosen{.fold = kFoldBiStaple,
                         .layout = kBookletLayoutOn,
                         .drawOutlines = kDrawPageBorders,
                         .newPaperSize = size,
                         .gutter = 100,
                         .creep = 7};
    EXPECT_EQ(booklet, chosen);

    user.then(ok);
    EXPECT_EQ(RunModalBookletCreationDialog(bundle, booklet), noErr);
    EXPECT_EQ(booklet, chosen) << "shown and read back unchanged";
}

TEST_F(BookletDialogTest, CancelLeavesAllAsItWas)
{
    booklet.gutter = 500; // more than the field takes
    booklet.fold = 20;    // which no radio stands for
    const Booklet before = booklet;
    ModalUser user;
    user.then([](QWidget& window) {
        for (const Control number : {kFoldNoneRadio, kFoldRadio, kFoldAndStapleRadio})
            EXPECT_FALSE(get(window, number).isChecked()) << number;
        EXPECT_TRUE(get<QLabel>(window, kWithoutLayoutHint).text().isEmpty()) << "no booklet's fold";
        get(window, kLayoutOnRadio).click();
        cancel(window);
    });
    EXPECT_EQ(RunModalBookletCreationDialog(bundle, booklet), kBookletDialogCancelled);
    EXPECT_EQ(booklet, before);

    booklet.gutter = 30;
    user.then(ok);
    EXPECT_EQ(RunModalBookletCreationDialog(bundle, booklet), noErr);
    EXPECT_EQ(booklet.fold, 20) << "another fold stays what it is";
}

TEST_F(BookletDialogTest, SpecialPagesLockFoldAndLayout)
{
    settings.set(kPrintingManagerClient, key::SpecialPagesExceptionList, Array{Dictionary()});
    ModalUser user;
    user.then([](QWidget& window) {
        for (const Control number : {kFoldNoneRadio, kFoldRadio, kFoldAndStapleRadio, kLayoutOnRadio})
            EXPECT_FALSE(isEnabled(window, number)) << number;
        EXPECT_TRUE(get<QWidget>(window, kLockRow).isVisibleTo(&window)) << "and it says why";
        EXPECT_TRUE(isEnabled(window, kLayoutOffRadio)) << "the way out stays open";
    });
    user.then(cancel);
    RunModalBookletCreationDialog(bundle, booklet);
}

TEST_F(BookletDialogTest, TheOptionsDialogAsksForAFoldWhereOneIsInstalled)
{
    const auto windowWith = [this](std::set<QString> features) {
        const test::WithFeatures fitted(std::move(features));
        QString name;
        ModalUser user;
        user.then([&](QWidget& window) { name = window.objectName(); });
        user.then(ok);
        EXPECT_EQ(RunModalBookletOptionsDialog(bundle, booklet), noErr);
        return name.toStdString();
    };
    booklet.fold = kFoldBi;
    EXPECT_EQ(windowWith({}), "BookletOptions");
    EXPECT_EQ(booklet.fold, kFoldBi) << "not asked for";
    for (const char* feature : {"BookletFoldKey", "BiFoldMultiple", "BiFoldStapleMultiple"})
        EXPECT_EQ(windowWith({QString::fromLatin1(feature)}), "BookletFinishingOptions") << feature;
    EXPECT_EQ(booklet.fold, kFoldBi);
}

TEST_F(BookletDialogTest, WithoutItsWindowItChangesNothing)
{
    bundle.resourcesPath = u"/nowhere"_s;
    EXPECT_EQ(RunModalBookletOptionsDialog(bundle, booklet), kInterfaceFileUnreadable);
}

} // namespace
} // namespace kesta::booklet
