#include "panels/advanced/AdvancedPanel.h"

#include "panels/PanelFixture.h"
#include "panels/advanced/AboutDialog.h"
#include "panels/advanced/AdvancedOptions.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/TicketUtilities.h"
#include "printer/InstallableOptions.h"
#include "product/InstalledFeatures.h"
#include "support/Accessories.h"

#include <QLabel>

namespace kesta::advanced {
namespace {

Bundle Texts()
{
    Bundle bundle = test::BundleWithAllTexts();
    bundle.info.set("CFBundleShortVersionString", "1.2.3");
    return bundle;
}

class AdvancedPanelTest : public test::PanelTest {
protected:
    AdvancedPanelTest() : PanelTest(GetAdvancedPanelInterface, kSignature, Texts()) {}
};

TEST_F(AdvancedPanelTest, WhatTheUserPicksReachesTheTicketAndComesBack)
{
    open();
    EXPECT_TRUE(popup(kBookletOrderPopup)->chooseItem(2));
    EXPECT_TRUE(test::Pick(popup(kOutputOptionsPopup), 0));
    EXPECT_TRUE(popup(kBannerPopup)->chooseItem(2));
    EXPECT_TRUE(test::Pick(popup(kRequestOffsetPopup), 1));
    EXPECT_TRUE(test::Pick(popup(kMirrorPopup), 1));
    EXPECT_TRUE(test::Pick(popup(kOptimizationPopup), 1));
    ASSERT_EQ(sync(false), noErr);

    Ticket expected;
    WriteTicket({.bookletOrder = kSharedValue,
                 .outputOption = 0,
                 .banner = 2,
                 .requestOffset = 1,
                 .mirror = 1,
                 .optimization = 1,
                 .bannerIsOption = true},
                expected);
    EXPECT_EQ(ticket.values(), expected.values());
    EXPECT_EQ(ticket.ppdDict(), expected.ppdDict());

    popup(kMirrorPopup)->setValue(2);
    popup(kRequestOffsetPopup)->setValue(1);
    popup(kOptimizationPopup)->setValue(2);
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kMirrorPopup)), 1);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kRequestOffsetPopup)), 1);
    EXPECT_EQ(popup(kBannerPopup)->value(), 2) << "0 is no item's value, so the selection stays";
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kOptimizationPopup)), 1);
}

TEST_F(AdvancedPanelTest, TheOffsetIsHiddenOnASimpleCatchTrayButStillWritten)
{
    const test::WithFeatures fitted({QStringLiteral("SimpleCatchTrayKey")});
    open();
    EXPECT_TRUE(popup(kRequestOffsetPopup)->isHidden());
    EXPECT_TRUE(control(kRequestOffsetLabel)->isHidden());
    EXPECT_FALSE(popup(kMirrorPopup)->isHidden());
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "Jog"), QStringLiteral("None"));
}

TEST_F(AdvancedPanelTest, SyncWorksBeforeThereAreControls)
{
    const TicketWriter writer(ticket, kPrintingManagerClient);
    WriteTicketValue(writer, key::PrintingOptimization, 1);
    ASSERT_EQ(initialize(), noErr);
    ticket.remove(kPrintingManagerClient, key::PrintingOptimization);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ReadTicketValue(ticket, key::PrintingOptimization), 1);
}

TEST_F(AdvancedPanelTest, AMissingInterfaceFileLeavesThePanelEmpty)
{
    LoadBundle(kPlugInIdentifier, Bundle{.resourcesPath = QStringLiteral("/nowhere"), .strings = {}});
    open();
    EXPECT_EQ(pane.findChildren<QWidget*>().size(), 0);
    EXPECT_EQ(sync(false), noErr);
}

TEST_F(AdvancedPanelTest, WhatIsMissingIsAnsweredWithItsStatus)
{
    EXPECT_EQ(slots->Initialize(nullptr, nullptr, nullptr, &pane, &session), kInvalidContext);
    EXPECT_EQ(slots->Initialize(prologue.context, nullptr, nullptr, &pane, nullptr), kInvalidContext);
    EXPECT_EQ(slots->Sync(nullptr, &session, true), kSyncWithoutContext);
    EXPECT_EQ(slots->Sync(prologue.context, nullptr, true), kSyncWithoutContext);
    EXPECT_EQ(slots->Close(nullptr), kInvalidContext);
    EXPECT_EQ(slots->Terminate(nullptr, noErr), kInvalidContext);
    const char* const* texts = &prologue.title;
    EXPECT_EQ(slots->GetSummaryText(prologue.context, &texts, &texts), noErr);
    EXPECT_EQ(texts, nullptr);

    session.data.clear();
    EXPECT_EQ(sync(true), kNoSuchTicket);
    EXPECT_STREQ(prologue.title, "Advanced");
}

TEST_F(AdvancedPanelTest, WithoutADialogBehindItTheWebLinksButtonIsOutOfView)
{
    open();
    EXPECT_TRUE(control(kWebLinksButton)->isHidden());
    EXPECT_FALSE(control(kAboutButton)->isHidden());
}

TEST_F(AdvancedPanelTest, OpenedAgainItHasItsControlsAndShowsWhatIsChosen)
{
    open();
    const PopupButton* before = popup(kMirrorPopup);
    EXPECT_EQ(slots->Close(prologue.context), noErr);
    WriteTicket({.mirror = 1, .optimization = 1}, ticket);
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(slots->Open(prologue.context), noErr);
    EXPECT_EQ(popup(kMirrorPopup), before);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kOptimizationPopup)), 1);
}

TEST_F(AdvancedPanelTest, ANewPaneShowsTheBannerThatIsSent)
{
    WriteTicketValue(TicketWriter(ticket, "X"), key::BannerPage, 0);
    WriteTicketValue(TicketWriter(ticket, "X"), key::PrintingOptimization, 7);
    open();
    EXPECT_EQ(popup(kBannerPopup)->value(), 2);
    EXPECT_EQ(popup(kOptimizationPopup)->text(), QStringLiteral("Not On This Printer Other Value 7"));
    PPDSetCurrentChoice(ticket, "JCLBanner", "True");
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(popup(kBannerPopup)->value(), 1) << "the choice alone was changed";
    PPDSetCurrentChoice(ticket, "JCLBanner", "False");
    WriteTicketValue(TicketWriter(ticket, "X"), key::BannerPage, 1);
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(popup(kBannerPopup)->value(), 2);
}

TEST_F(AdvancedPanelTest, AFreshJobIsThePrintersOwnDefault)
{
    open();
    ASSERT_EQ(sync(false), noErr);
    ASSERT_GT(ticket.ppdDict().count(), 2u);
    for (const auto& [keyword, choice] : ticket.ppdDict())
        EXPECT_EQ(choice, Value(PPDCopyDefaultChoice(PPDGetCurrent(), keyword).value_or(QString())))
            << keyword.toStdString();
}

TEST_F(AdvancedPanelTest, AboutNamesThePrinterAndWhatIsFitted)
{
    LoadInstallableOptions(PPDGetCurrent(), InstalledFeatures);
    open();
    const auto text = [](QWidget& window, SInt32 number) {
        const auto* label = qobject_cast<QLabel*>(FindControl(&window, {about::kSignature, number}));
        return label ? label->text() : QString();
    };
    test::ModalUser user;
    user.then([&](QWidget& window) {
        EXPECT_EQ(text(window, about::kVersionText), QStringLiteral("About Version 1.2.3"));
        EXPECT_EQ(text(window, about::kModelText), QStringLiteral("Kesta Veltra 4100-4200-4300"));
        EXPECT_EQ(text(window, about::kAccessoriesText),
                  QStringLiteral("Paper feeder: High-capacity feeder\n"
                                 "Finisher: Production finisher with booklet maker and folder\n"
                                 "Punch unit: 2 and 3 holes\nFax\nJob storage"));
        auto* picture = FindControlAs<PictureView>(&window, {about::kSignature, about::kPicture});
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->picture(), QStringLiteral("Mimic_ED_Westmarch_HiCap-LtProd+Fold.gif"));
        test::Press(window, kCommandOK);
    });
    ClickControl(control(kAboutButton));
    UnloadInstallableOptions();
}

} // namespace
} // namespace kesta::advanced
