#include "panels/booklet_watermark/booklet/BookletDialog.h"

#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/TicketUtilities.h"
#include "support/Accessories.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/PictureView.h"
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
    static QString picture(QWidget& window) { return get<PictureView>(window, kIllustration).picture(); }
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
    _BookletCreationParams params{.bundle = &bundle};
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
    EXPECT_EQ(RunModalBookletCreationDialog(params), noErr);
    const _BookletCreationParams chosen{.bundle = &bundle,
                                        .fold = kBookletFoldAndStaple,
                                        .layout = kBookletLayoutOn,
                                        .drawOutlines = kDrawPageBorders,
                                        .newPaperSize = size,
                                        .gutter = 100,
                                        .creep = 7};
    EXPECT_EQ(params, chosen);

    user.then(ok);
    EXPECT_EQ(RunModalBookletCreationDialog(params), noErr);
    EXPECT_EQ(params, chosen) << "shown and read back unchanged";
}

TEST_F(BookletDialogTest, CancelLeavesAllAsItWas)
{
    params.gutter = 500; // more than the field takes
    params.fold = 20;    // which no radio stands for
    const _BookletCreationParams before = params;
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_TRUE(get(window, kFoldNoneRadio).isChecked());
        get(window, kLayoutOnRadio).click();
        cancel(window);
    });
    EXPECT_EQ(RunModalBookletCreationDialog(params), kBookletDialogCancelled);
    EXPECT_EQ(params, before);
}

TEST_F(BookletDialogTest, TheLayoutsOptionsAreChoicesOnlyWhileItIsOn)
{
    ModalUser user;
    user.then([](QWidget& window) {
        const auto expectOptions = [&](bool enabled) {
            for (const Control number : {kDrawOutlinesBox, kNewSizePopup, kGutterField, kCreepField, kGutterRange})
                EXPECT_EQ(isEnabled(window, number), enabled) << number;
        };
        expectOptions(false);
        EXPECT_EQ(picture(window), u"BookletCreation_None.gif"_s);
        get(window, kLayoutOnRadio).click();
        expectOptions(true);
        get(window, kDrawOutlinesBox).click();
        get(window, kFoldRadio).click();
        EXPECT_EQ(picture(window), u"BookletCreation_Booklet-Fold-Outlines.gif"_s);
        get(window, kLayoutOffRadio).click();
        expectOptions(false);
    });
    user.then(cancel);
    RunModalBookletCreationDialog(params);
}

TEST_F(BookletDialogTest, SpecialPagesLockFoldAndLayout)
{
    settings.set(kPrintingManagerClient, key::SpecialPagesExceptionList, Array{Dictionary()});
    ModalUser user;
    user.then([](QWidget& window) {
        for (const Control number : {kFoldNoneRadio, kFoldRadio, kFoldAndStapleRadio, kLayoutOnRadio})
            EXPECT_FALSE(isEnabled(window, number)) << number;
        EXPECT_TRUE(isEnabled(window, kLayoutOffRadio)) << "the way out stays open";
    });
    user.then(cancel);
    RunModalBookletCreationDialog(params);
}

TEST_F(BookletDialogTest, TheOptionsDialogAsksForAFoldWhereOneIsInstalled)
{
    const auto windowWith = [this](std::set<QString> features) {
        const test::WithFeatures fitted(std::move(features));
        QString name;
        ModalUser user;
        user.then([&](QWidget& window) { name = window.objectName(); });
        user.then(ok);
        EXPECT_EQ(RunModalBookletOptionsDialog(params), noErr);
        return name.toStdString();
    };
    params.fold = kBookletFold;
    EXPECT_EQ(windowWith({}), "BookletOptions");
    EXPECT_EQ(params.fold, kBookletFold) << "not asked for";
    for (const char* feature : {"BookletFoldKey", "BiFoldMultiple", "BiFoldStapleMultiple"})
        EXPECT_EQ(windowWith({QString::fromLatin1(feature)}), "BookletFinishingOptions") << feature;
    EXPECT_EQ(params.fold, kBookletFold);
}

TEST_F(BookletDialogTest, WithoutItsWindowItChangesNothing)
{
    bundle.resourcesPath = u"/nowhere"_s;
    EXPECT_EQ(RunModalBookletOptionsDialog(params), kInterfaceFileUnreadable);
    _BookletCreationParams nobody;
    EXPECT_EQ(RunModalBookletCreationDialog(nobody), kMissingArgument);
}

} // namespace
} // namespace kesta::booklet
