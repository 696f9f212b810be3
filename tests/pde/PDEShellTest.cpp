#include "pde/PDEShell.h"

#include "pde/TicketKeys.h"
#include "pde/TicketUtilities.h"
#include "printer/PPDUtilities.h"
#include "support/TestTexts.h"
#include "support/User.h"

#include <gtest/gtest.h>

namespace kesta::shell {
namespace {

// Panels that note what is asked of them: "1<" panel 1 writes to the tickets, "1>" it reads them.
std::string calls;
int failuresBeforeLoading = 0;

template <char kName> struct FakePanel {
    static OSStatus Prologue(KestaPrologue* answer)
    {
        static char name = kName;
        static const char title[] = {kName, 0};
        *answer = {
            .context = &name, .creator = 0, .kind = "kind", .title = title, .maximumWidth = 0, .maximumHeight = 0};
        return noErr;
    }
    static OSStatus Sync(KestaContextRef, PrintSession*, bool toControls)
    {
        calls += kName;
        calls += toControls ? '>' : '<';
        return noErr;
    }
    static OSStatus Open(KestaContextRef)
    {
        calls += kName;
        return noErr;
    }
    static constexpr PanelInterface kTable{
        .Retain = nullptr,
        .Release = nullptr,
        .GetAPIVersion = nullptr,
        .Prologue = Prologue,
        .Initialize = [](KestaContextRef, const int32_t*, void*, QWidget*, PrintSession*) { return noErr; },
        .Sync = Sync,
        .GetSummaryText = nullptr,
        .Open = Open,
        .Close = nullptr,
        .Terminate = [](KestaContextRef, OSStatus) { return noErr; },
    };
    static constexpr PanelInterfaceHolder kHolder{&kTable};
    static OSStatus Get(const PanelInterfaceHolder** holder)
    {
        if (failuresBeforeLoading-- > 0)
            return kInvalidContext;
        *holder = &kHolder;
        return noErr;
    }
};

class PDEShellTest : public testing::Test {
protected:
    PDEShellTest()
    {
        GetShownPanel() = {};
        shell.bundle = &bundle;
        PMSessionSetDataInSession(session, kPMPrintSettingsTicket, ticket.reference());
        constexpr PanelInterfaceFunction kPanels[] = {FakePanel<'1'>::Get, FakePanel<'2'>::Get, FakePanel<'3'>::Get};
        LoadPanels(shell, kPanels);
        Initialize(shell, parentPane, session);
        calls.clear();
        failuresBeforeLoading = 0;
    }
    ~PDEShellTest() override { SetCurrentPrintSession(nullptr); }

    void click(Control number) { ClickControl(FindControl(&parentPane, {kSignature, number})); }
    PopupButton* choice() { return FindPopupButton(&parentPane, {kSignature, kPanelChoice}); }
    std::string callsOf(auto action)
    {
        calls.clear();
        action();
        return calls;
    }

    const Bundle bundle = test::BundleWithTexts({"Previous", "Next"});
    PrintSession session;
    Ticket ticket;
    QWidget parentPane;
    PDEShellContext shell;
};

TEST_F(PDEShellTest, OpenShowsTheFirstPanel)
{
    EXPECT_EQ(callsOf([&] { Open(shell); }), "1231>2>3>");
    EXPECT_EQ(choice()->menu().count(), 3);
    EXPECT_FALSE(shell.panels[0].userPane->isHidden());
    EXPECT_TRUE(shell.panels[1].userPane->isHidden());
    EXPECT_EQ(callsOf([&] { Open(shell); }), "1231<2>3>") << "opened again, it only opens the panels";
}

TEST_F(PDEShellTest, ThePanelLeftWritesAndTheOthersRead)
{
    Open(shell);
    EXPECT_EQ(callsOf([&] { test::Pick(choice(), 3); }), "1<2>3>");
    EXPECT_EQ(callsOf([&] { test::Pick(choice(), 3); }), "") << "already shown";
    EXPECT_EQ(callsOf([&] { test::Pick(choice(), 2); }), "3<1>2>");
    EXPECT_FALSE(shell.panels[1].userPane->isHidden());
    EXPECT_TRUE(shell.panels[2].userPane->isHidden());
}

TEST_F(PDEShellTest, NextAndPreviousWrap)
{
    Open(shell);
    const auto shownAfter = [&](auto action) {
        action();
        EXPECT_EQ(choice()->value(), GetShownPanel()._lastTabIndex);
        return GetShownPanel().gCurrentPanel;
    };
    const auto command = [&](FourCharCode code) {
        EXPECT_EQ(SendControlEvent(parentPane, {.kind = EventKind::Command, .command = code}), EventResult::NotHandled);
    };
    EXPECT_EQ(shownAfter([&] { click(kPreviousButton); }), 3);
    EXPECT_EQ(shownAfter([&] { click(kNextButton); }), 1);
    EXPECT_EQ(shownAfter([&] { command(kCommandPanelUp); }), 2) << "up goes to the next panel";
    EXPECT_EQ(shownAfter([&] { command(kCommandPanelDown); }), 1);
}

TEST_F(PDEShellTest, ThePanelShownIsSynchronisedLastAndOneWithoutAnIndexNever)
{
    Open(shell);
    selectPanel(2, shell);
    EXPECT_EQ(callsOf([&] { Sync(shell, session, SyncDirection::ControlsToTickets); }), "1<3<2<");
    shell.panels[0].index = kTakesNoPart;
    EXPECT_EQ(callsOf([&] { Sync(shell, session, SyncDirection::TicketsToControls); }), "3>2>");
}

TEST_F(PDEShellTest, WritingAddsTheKeysOfTheJob)
{
    ticket.set("X", key::RotateBooklet180Degrees, true);
    ticket.set("X", key::JobType, Dictionary{{"JobType", Number::Index(5)}});
    ASSERT_EQ(Sync(shell, session, SyncDirection::TicketsToControls), noErr);
    EXPECT_TRUE(ticket.values().find(key::RotateBooklet180Degrees)) << "reading changes nothing";

    ASSERT_EQ(Sync(shell, session, SyncDirection::ControlsToTickets), noErr);
    EXPECT_FALSE(ticket.values().find(key::RotateBooklet180Degrees));
    EXPECT_EQ(ticket.client(key::ControllerFamily), QStringLiteral("K"));
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "KSTColor"), QStringLiteral("BW")) << "a fax";

    session.data.clear();
    EXPECT_EQ(Sync(shell, session, SyncDirection::ControlsToTickets), kNoSuchTicket);
}

TEST_F(PDEShellTest, APanelThatFailsIsTriedAgainAndTheLastShownOutlivesThePane)
{
    Open(shell);
    selectPanel(3, shell);
    failuresBeforeLoading = 2;
    PDEShellContext next;
    constexpr PanelInterfaceFunction kPanels[] = {FakePanel<'1'>::Get};
    LoadPanels(next, kPanels);
    EXPECT_EQ(next.panels.size(), 1u);
    EXPECT_EQ(GetShownPanel().gCurrentPanel, 0);
    EXPECT_EQ(GetShownPanel()._lastTabIndex, 3);
}

} // namespace
} // namespace kesta::shell
