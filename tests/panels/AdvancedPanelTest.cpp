#include "panels/advanced/AdvancedPanel.h"

#include "pde/MenuUtilities.h"
#include "pde/TicketKeys.h"
#include "pde/TicketUtilities.h"
#include "support/TestTexts.h"
#include "support/User.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace kesta::advanced {
namespace {

// The panel in a pane, over a session with an empty print-settings ticket, driven through its ten slots.
class AdvancedPanelTest : public testing::Test {
protected:
    AdvancedPanelTest()
    {
        LoadBundle(kPlugInIdentifier, test::BundleWithTexts({"Advanced", "On", "Off", "Enabled", "Disabled",
                                                             "Banner Sheet:", "OK Command"}));
        PMSessionSetDataInSession(session, kPMPrintSettingsTicket, ticket.reference());
        SetCurrentPrintSession(&session);

        const PanelInterfaceHolder* holder = nullptr;
        GetAdvancedPanelInterface(&holder);
        slots = holder->table;
        slots->Prologue(&prologue);
    }
    ~AdvancedPanelTest() override
    {
        slots->Terminate(prologue.context, noErr);
        PPDCloseCurrent();
        SetCurrentPrintSession(nullptr);
    }
    void open()
    {
        ASSERT_EQ(slots->Initialize(prologue.context, nullptr, nullptr, &pane, &session), noErr);
        ASSERT_EQ(slots->Open(prologue.context), noErr);
    }
    PopupButton* popup(Control number) { return FindPopupButton(&pane, {kSignature, number}); }
    OSStatus sync(bool toControls) { return slots->Sync(prologue.context, &session, toControls); }

    PrintSession session{.printer = PMPrinter{.ppdPath = QStringLiteral(TEST_DATA "/kesta.ppd")}};
    Ticket ticket;
    QWidget pane;
    const PanelInterface* slots = nullptr;
    KestaPrologue prologue{};
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
                 .optimization = 1},
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
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kOptimizationPopup)), 2) << "set when the panel opens only";
}

TEST_F(AdvancedPanelTest, TheOffsetIsHiddenOnASimpleCatchTrayButStillWritten)
{
    const test::WithFeatures fitted({QStringLiteral("SimpleCatchTrayKey")});
    open();
    EXPECT_TRUE(popup(kRequestOffsetPopup)->isHidden());
    EXPECT_TRUE(FindControl(&pane, {kSignature, kRequestOffsetLabel})->isHidden());
    EXPECT_FALSE(popup(kMirrorPopup)->isHidden());
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "Jog"), QStringLiteral("None"));
}

TEST_F(AdvancedPanelTest, SyncWorksBeforeThereAreControls)
{
    const TicketWriter writer(ticket, kPrintingManagerClient);
    WriteTicketValue(writer, key::PrintingOptimization, 1);
    ASSERT_EQ(slots->Initialize(prologue.context, nullptr, nullptr, &pane, &session), noErr);
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

TEST_F(AdvancedPanelTest, EveryControlOfTheCodeIsInTheInterfaceFileWithALabel)
{
    open();
    for (const SInt32 number : {kBookletOrderPopup, kOutputOptionsPopup, kBannerPopup, kRequestOffsetPopup,
                                kMirrorPopup, kOptimizationPopup}) {
        const PopupButton* control = FindPopupButton(&pane, {kSignature, number});
        ASSERT_TRUE(control) << number;
        const auto labels = pane.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel* label) { return label->buddy() == control; }))
            << number;
    }
    for (const SInt32 number : {kRequestOffsetLabel, kAboutButton, kWebLinksButton})
        EXPECT_TRUE(FindControl(&pane, {kSignature, number})) << number;
}

TEST_F(AdvancedPanelTest, TheAboutButtonRunsItsDialogModally)
{
    open();
    bool shown = false;
    test::ModalUser user;
    user.then([&](QWidget& window) {
        shown = window.isVisible();
        test::Press(window, kCommandOK);
    });
    ClickControl(FindControl(&pane, {kSignature, kAboutButton}));
    EXPECT_TRUE(shown);
}

} // namespace
} // namespace kesta::advanced
