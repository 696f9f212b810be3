#include "pde/ShellFixture.h"
#include "pde/shell/CentredLayout.h"
#include "pde/ticket/TicketUtilities.h"
#include "printer/DeviceProfile.h"
#include "printer/InstallableOptions.h"
#include "support/User.h"
#include "toolkit/controls/ControlProperties.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kesta::shell {
namespace {

using test::CallsOf;
using PDEShellTest = test::ShellTest;

TEST_F(PDEShellTest, APaneFromPrologueToTerminate)
{
    EXPECT_EQ(CallsOf([&] { slots.Prologue(&prologue); }), "1P2P3P");
    EXPECT_STREQ(prologue.title, "PDE Shell");
    EXPECT_STREQ(prologue.kind, "com.kesta.print.pde.kestafeatureskind");
    EXPECT_EQ(prologue.creator, "pde "_code);
    EXPECT_EQ(prologue.maximumWidth, 540u);
    EXPECT_EQ(prologue.maximumHeight, 491u);

    const auto initialize = [&] { return slots.Initialize(prologue.context, nullptr, nullptr, &pane, &session()); };
    EXPECT_EQ(CallsOf([&] { EXPECT_EQ(initialize(), noErr); }), "1I2I3I1>2>3>");
    EXPECT_EQ(GetCurrentPrintSession(), &session());
    EXPECT_EQ(GetPDEBundle(), FindBundle(kPlugInIdentifier));
    EXPECT_EQ(GetControlBundle(print, kCreator), GetPDEBundle());
    EXPECT_TRUE(getInstalledFeature("JobStorage")) << "as the PPD says";
    EXPECT_TRUE(KDPGetFeature("Staple")) << "as the device profile says";
    EXPECT_TRUE(userPane(2)->isHidden());

    EXPECT_EQ(CallsOf([&] { EXPECT_EQ(slots.Open(prologue.context), noErr); }), "1O2O3O1>2>3>");
    EXPECT_EQ(choice()->menu().count(), 3);
    EXPECT_EQ(choice()->maximum(), 3);
    EXPECT_EQ(choice()->menu().items[1].title, u"Panel 2");
    EXPECT_FALSE(userPane(1)->isHidden());
    EXPECT_TRUE(userPane(2)->isHidden());
    EXPECT_FALSE(userPane(2)->isEnabled());

    EXPECT_EQ(CallsOf([&] { EXPECT_EQ(slots.Close(prologue.context), noErr); }), "1C2C3C");
    EXPECT_EQ(CallsOf([&] { EXPECT_EQ(slots.Open(prologue.context), noErr); }), "1O2O3O1<2>3>");
    EXPECT_EQ(pane.findChildren<PopupButton*>().size(), 1) << "opened again, it only opens the panels";

    EXPECT_EQ(CallsOf([&] { EXPECT_EQ(terminate(), noErr); }), "1T2T3T");
    EXPECT_EQ(GetCurrentPrintSession(), nullptr);
    EXPECT_FALSE(getInstalledFeature("JobStorage") || KDPGetFeature("Staple"));
    EXPECT_EQ(PDESync(&session(), SyncDirection::TicketsToControls), kSyncWithoutContext);
    EXPECT_EQ(command(kCommandPanelUp), EventResult::NotHandled) << "no handler stays behind";
}

TEST_F(PDEShellTest, WhatIsMissingIsAnsweredWithItsStatus)
{
    const char* const* texts = nullptr;
    slots.Prologue(&prologue);
    EXPECT_EQ(slots.Initialize(nullptr, nullptr, nullptr, &pane, &session()), kInvalidContext);
    EXPECT_EQ(slots.Initialize(prologue.context, nullptr, nullptr, &pane, nullptr), kInvalidContext);
    EXPECT_EQ(slots.Sync(nullptr, &session(), true), kSyncWithoutContext);
    EXPECT_EQ(slots.Sync(prologue.context, nullptr, false), kSyncWithoutContext);
    EXPECT_EQ(slots.GetSummaryText(nullptr, &texts, &texts), kInvalidContext);
    EXPECT_EQ(slots.Open(nullptr), kInvalidContext);
    EXPECT_EQ(slots.Open(prologue.context), kInvalidContext) << "never initialized";
    EXPECT_EQ(slots.Close(nullptr), kInvalidContext);
    EXPECT_EQ(slots.Terminate(nullptr, noErr), kInvalidContext);
}

TEST_F(PDEShellTest, OnlyThisMakersPrintersAreServed)
{
    for (const char* maker : {"Kesta Inc", "KESTA", "kesta", "Kesta "}) {
        test::PPDVariant ppd;
        ppd.replaceLines("*Manufacturer:", QByteArray("*Manufacturer: \"") + maker + '"');
        PPDCloseCurrent();
        printer.setPPD(ppd.path());
        slots.Prologue(&prologue);
        testing::internal::CaptureStderr();
        EXPECT_EQ(slots.Initialize(prologue.context, nullptr, nullptr, &pane, &session()), kInvalidContext) << maker;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "Initialize()::GetTicketFromSession() failed.\n");
        terminate();
    }
}

TEST_F(PDEShellTest, AMissingInterfaceFileIsNamedInTheLog)
{
    const QTemporaryDir empty;
    const auto logOf = [&](const QString& resources) {
        Bundle bundle = *FindBundle(kPlugInIdentifier);
        bundle.resourcesPath = resources;
        LoadBundle(kPlugInIdentifier, std::move(bundle));
        slots.Prologue(&prologue);
        testing::internal::CaptureStderr();
        EXPECT_EQ(slots.Initialize(prologue.context, nullptr, nullptr, &pane, &session()), kInvalidContext);
        terminate();
        return QString::fromStdString(testing::internal::GetCapturedStderr());
    };
    EXPECT_EQ(logOf(empty.path()), u"Initialize()::CreateNibReferenceWithCFBundle() failed.\n");
    ASSERT_TRUE(QDir(empty.path()).mkdir(u"PDE_Shell"_s));
    EXPECT_TRUE(logOf(empty.path()).endsWith(u"Initialize()::CreateWindowFromNib() failed.\n"));
}

TEST_F(PDEShellTest, ThePanelLeftWritesAndTheOthersRead)
{
    open();
    EXPECT_EQ(CallsOf([&] { test::Pick(choice(), 3); }), "1<2>3>");
    EXPECT_EQ(CallsOf([&] { test::Pick(choice(), 3); }), "") << "already shown";
    EXPECT_EQ(CallsOf([&] { test::Pick(choice(), 2); }), "3<1>2>");
    EXPECT_FALSE(userPane(2)->isHidden());
    EXPECT_TRUE(userPane(3)->isHidden());
}

TEST_F(PDEShellTest, NextAndPreviousWrap)
{
    open();
    const auto shownAfter = [&](auto action) {
        action();
        EXPECT_EQ(choice()->value(), GetShownPanel()._lastTabIndex);
        return GetShownPanel().gCurrentPanel;
    };
    EXPECT_EQ(shownAfter([&] { ClickControl(control(kPreviousButton)); }), 3);
    EXPECT_EQ(shownAfter([&] { ClickControl(control(kNextButton)); }), 1);
    EXPECT_EQ(shownAfter([&] { EXPECT_EQ(command(kCommandPanelUp), EventResult::NotHandled); }), 2)
        << "up goes to the next panel, and by one";
    EXPECT_EQ(shownAfter([&] { command(kCommandPanelUp); }), 3) << "the last";
    EXPECT_EQ(shownAfter([&] { command(kCommandPanelUp); }), 1);
    EXPECT_EQ(shownAfter([&] { command(kCommandPanelDown); }), 3);
    EXPECT_EQ(shownAfter([&] { command(kCommandPanelUp); }), 1);
    slots.Close(prologue.context);
    EXPECT_EQ(shownAfter([&] { command(kCommandPanelUp); }), 2) << "before 10.5 and after, the dialog has a handler";
}

TEST_F(PDEShellTest, BeforeVersion105OnlyTheDialogsButtonsAreWatched)
{
    system.version = SystemVersion{10, 4, 11};
    initialize();
    const int shown = GetShownPanel()._lastTabIndex;
    SendControlEvent(pane, CommandEvent{.command = kCommandPanelUp});
    EXPECT_EQ(GetShownPanel()._lastTabIndex, shown);
    command(kCommandPanelUp);
    EXPECT_NE(GetShownPanel()._lastTabIndex, shown);
}

TEST_F(PDEShellTest, TheLastShownPanelOutlivesAPaneButThePaneBeginsWithTheFirst)
{
    open();
    test::Pick(choice(), 3);
    terminate();
    open();
    EXPECT_EQ(GetShownPanel().gCurrentPanel, 1);
    EXPECT_EQ(choice()->value(), 1);
    terminate();
    slots.Prologue(&prologue);
    EXPECT_EQ(GetShownPanel().gCurrentPanel, 0);
    EXPECT_EQ(GetShownPanel()._lastTabIndex, 1);
}

TEST_F(PDEShellTest, ATerminatedPaneLeavesItsPlaceToTheNext)
{
    open();
    terminate();
    EXPECT_TRUE(pane.findChildren<QWidget*>().isEmpty());
    open();
    test::Pick(choice(), 2);
    EXPECT_FALSE(userPane(2)->isHidden());
    EXPECT_EQ(pane.findChildren<PopupButton*>().size(), 1);
    terminate();
    initialize();
    terminate();
    EXPECT_TRUE(pane.findChildren<QWidget*>().isEmpty()) << "never opened";
}

TEST_F(PDEShellTest, TheSummaryIsWhatTheLastPanelLeaves)
{
    initialize();
    const char* const* titles = &prologue.title;
    const char* const* summaries = &prologue.title;
    EXPECT_EQ(CallsOf([&] { slots.GetSummaryText(prologue.context, &titles, &summaries); }), "1S2S3S");
    EXPECT_EQ(titles, nullptr) << "panel 3 has none";
    terminate();
    usePanels({"Get3", "Get2"});
    initialize();
    slots.GetSummaryText(prologue.context, &titles, &summaries);
    EXPECT_STREQ(titles[0], "2");
}

TEST_F(PDEShellTest, AButtonWithoutItsPictureIsHidden)
{
    Bundle bundle = *FindBundle(kPlugInIdentifier);
    const QTemporaryDir bare;
    ASSERT_TRUE(QDir(bare.path()).mkdir(u"PDE_Shell"_s));
    ASSERT_TRUE(QFile::copy(bundle.resourcesPath + u"/PDE_Shell/Window.ui"_s, bare.filePath(u"PDE_Shell/Window.ui"_s)));
    bundle.resourcesPath = bare.path();
    LoadBundle(kPlugInIdentifier, std::move(bundle));
    open();
    EXPECT_TRUE(control(kPreviousButton)->isHidden());
    EXPECT_TRUE(control(kNextButton)->isHidden());
    EXPECT_FALSE(choice()->isHidden());
}

TEST(CentredPosition, IsNeverLeftOfTheParentButMayBeAboveIt)
{
    EXPECT_EQ(CentredPosition({640, 500}, {540, 491}), QPoint(50, 5));
    EXPECT_EQ(CentredPosition({500, 400}, {540, 491}), QPoint(0, -45));
}

TEST(CentredLayout, FillsTheParentAndIsAsHighAsWhatIsShown)
{
    QWidget parent;
    auto* layout = new CentredLayout(parent);
    QWidget small, large;
    small.setMinimumSize(50, 20);
    large.setMinimumSize(200, 100);
    layout->addWidget(&small);
    layout->addWidget(&large);
    large.hide();
    EXPECT_EQ(layout->minimumSize(), QSize(200, 20));
    layout->setGeometry({0, 0, 300, 150});
    EXPECT_EQ(small.geometry(), QRect(0, 0, 300, 150));
    layout->setGeometry({0, 0, 100, 60});
    EXPECT_EQ(large.geometry(), QRect(0, -20, 200, 100));
}

TEST(SelectItemOfTabControl, ShowsOnePaneOfTheList)
{
    QWidget window;
    QWidget tabs(&window), first(&window), second(&window), other(&window);
    SetControlID(tabs, {"Tabs"_code, 1});
    SetControlID(first, {"Tabs"_code, 7});
    SetControlID(second, {"Tabs"_code, 8});
    SetControlID(other, {"Tabs"_code, 9});
    constexpr SInt32 kPanes[] = {2, 7, 8, 9}; // two, whatever follows
    selectItemOfTabControl(tabs, 2, kPanes);
    EXPECT_TRUE(first.isHidden());
    EXPECT_FALSE(first.isEnabled());
    EXPECT_FALSE(second.isHidden());
    EXPECT_FALSE(other.isHidden());
    selectItemOfTabControl(tabs, 1, kPanes);
    EXPECT_FALSE(first.isHidden());
    EXPECT_TRUE(first.isEnabled());
    EXPECT_TRUE(second.isHidden());
    constexpr SInt32 kTooMany[] = {1000, 7};
    selectItemOfTabControl(tabs, 5, kTooMany);
    EXPECT_TRUE(first.isHidden());

    selectItemOfTabControl(tabs, 1, kPanes);
    selectItemOfTabControl(tabs, 0, kPanes);
    EXPECT_TRUE(first.isHidden() && second.isHidden());
}

} // namespace
} // namespace kesta::shell
