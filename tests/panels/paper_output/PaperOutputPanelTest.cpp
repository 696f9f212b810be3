#include "panels/paper_output/PaperOutputPanel.h"

#include "panels/PanelFixture.h"
#include "panels/booklet_watermark/booklet/BookletDialog.h"
#include "panels/paper_output/DelayedPrint.h"
#include "panels/paper_output/PasscodeFields.h"
#include "panels/paper_output/SavedJob.h"
#include "panels/paper_output/SecurePrint.h"
#include "panels/special_pages/paper/SeparatorsDialog.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/TicketUtilities.h"
#include "support/Accessories.h"
#include "support/Recorders.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/windows/WindowSummary.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::paper_output {
namespace {

class PaperOutputPanelTest : public test::PanelTest {
protected:
    PaperOutputPanelTest() : PanelTest(GetPaperOutputPanelInterface, kSignature, test::BundleWithAllTexts()) {}
    MenuButton* menu(Control number) { return FindControlAs<MenuButton>(&pane, {kSignature, number}); }
    QString text(Control number)
    {
        const auto* view = FindControlAs<SummaryTextView>(&pane, {kSignature, number});
        return view ? view->text() : u"no view"_s;
    }
    bool choose(Control number, FourCharCode command)
    {
        int position = 0;
        for (const MenuItem& item : menu(number)->menu().items) {
            ++position;
            if (item.command == command)
                return menu(number)->chooseItem(position);
        }
        return false;
    }
    PaperOutputOptions& options() { return _paperOutputContext->options; }

    test::WithAccessories accessories{{"Option2", "DClass_BK"}, {"Option4", "HolePunch23"}};
};

TEST_F(PaperOutputPanelTest, WhatTheUserPicksReachesTheTicketAndComesBack)
{
    open();
    EXPECT_TRUE(test::Pick(popup(kJobTypePopup), 8));
    EXPECT_TRUE(test::Pick(popup(kTwoSidedPopup), kTwoSidedLongEdge));
    EXPECT_TRUE(test::Pick(popup(kQualityPopup), 200));
    EXPECT_TRUE(test::Pick(popup(kDestinationPopup), 4));
    EXPECT_TRUE(choose(kFinishingMenuButton, "Stp2"_code));
    EXPECT_TRUE(choose(kFinishingMenuButton, "Hpn3"_code));
    EXPECT_EQ(text(kFinishingSummary), u"- 2 Staples\n- 3 Hole Punch\n- No Fold"_s);
    EXPECT_EQ(picture(kFinishingPicture), u"OfficeFinishing_2St&3Hp.gif"_s);
    EXPECT_EQ(picture(kJobTypePicture), u"JobType_SampleSet.gif"_s);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ticket.ppdDict(), (Dictionary{{"Duplex", "DuplexNoTumble"},
                                            {"KSFold", "None"},
                                            {"KSPunch", "3HolePunch"},
                                            {"MediaColor", "PrinterDefaultColor"},
                                            {"MediaType", "SystemDefault"},
                                            {"OutputBin", "Stacker"},
                                            {"StapleLocation", "DualLandscape"}}));
    EXPECT_EQ(ReadTicketValue(ticket, key::FinishingOutputColor), 200);

    EXPECT_TRUE(test::Pick(popup(kJobTypePopup), 1));
    EXPECT_TRUE(test::Pick(popup(kDestinationPopup), 1));
    EXPECT_TRUE(choose(kFinishingMenuButton, "Cfld"_code));
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kJobTypePopup)), 8);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kDestinationPopup)), 4);
    EXPECT_EQ(text(kFinishingSummary), u"- 2 Staples\n- 3 Hole Punch\n- No Fold"_s);
}

TEST_F(PaperOutputPanelTest, ThePaperMenuChangesTheJobsPaper)
{
    open();
    const int colors = 1, types = 2;
    MenuButton* paper = menu(kStockMenuButton);
    const auto position = [&](int submenu, SInt32 value) {
        const auto& items = paper->menu().items.at(submenu - 1).submenu;
        return static_cast<int>(std::ranges::find(items, value, &MenuItem::value) - items.begin()) + 1;
    };
    EXPECT_TRUE(paper->chooseItem(colors, position(colors, 3)));
    EXPECT_EQ(text(kPaperSummary), u"- Yellow\n- Printer default type"_s);
    EXPECT_EQ(picture(kPaperPicture), u"Paper_Plain-Yellow.gif"_s);

    options().separatorCount = kSeparatorsBlank;
    options().separatorStock.setColor(5);
    EXPECT_TRUE(paper->chooseItem(types, position(types, kStockTypeTransparency)));
    EXPECT_TRUE(text(kPaperSummary).endsWith(u"\n- Separators:Pink"_s)) << text(kPaperSummary).toStdString();
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "MediaType"), u"Transparency"_s);
}

TEST_F(PaperOutputPanelTest, TheSeparatorsAreChosenFromThePaperMenu)
{
    open();
    test::ModalUser user;
    user.then([](QWidget& window) {
        test::Pick(FindPopupButton(&window, {separators::kSignature, separators::kOptionPopup}), kSeparatorsPrinted);
        test::Pick(FindPopupButton(&window, {separators::kSignature, separators::kColorPopup}), 4);
        test::Press(window, kCommandOK);
    });
    const auto isMarked = [&] {
        SendControlEvent(*menu(kStockMenuButton), MenuEnableItemsEvent{});
        return menu(kStockMenuButton)->menu().items.back().checked;
    };
    EXPECT_FALSE(isMarked());
    EXPECT_TRUE(choose(kStockMenuButton, kSeparatorsCommand));
    EXPECT_EQ(options().separatorCount, kSeparatorsPrinted);
    EXPECT_EQ(options().separatorStock.color(), 4);
    EXPECT_TRUE(isMarked()) << "whatever the paper is";
}

TEST_F(PaperOutputPanelTest, SecurePrintAsksForItsPasscodeAtOnceAndHoldsPrintBackWithoutOne)
{
    open();
    const JobTypeCheck* check = GetJobTypeCheck();
    ASSERT_TRUE(check);
    test::ModalUser user;
    user.then([](QWidget& window) { test::Press(window, kCommandCancel); });
    EXPECT_TRUE(test::Pick(popup(kJobTypePopup), kJobTypeSecurePrint));
    EXPECT_EQ(check->jobType(), kJobTypeSecurePrint);
    EXPECT_FALSE(check->hasPasscode());

    user.then([](QWidget& window) {
        FindTextField(&window, {jobtypes::kSecurePrintSignature, jobtypes::kPasscodeField})->setText(u"4711"_s);
        FindTextField(&window, {jobtypes::kSecurePrintSignature, jobtypes::kConfirmationField})->setText(u"4711"_s);
        test::Press(window, kCommandOK);
    });
    ClickControl(control(kJobTypeSetupButton));
    EXPECT_TRUE(check->hasPasscode());
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(*ticket.values().dictionary(key::JobType)->string("SecurePrintPassword"), u"4711"_s);
}

TEST_F(PaperOutputPanelTest, AFaxKeepsItsDataAndSaysWhyItCantBeSetUp)
{
    ticket.set("X", key::JobType, Dictionary{{"JobType", Number::SInt32(kJobTypeFax)}});
    ticket.set("X", key::FaxOptions, Dictionary{{"Prefix", "9"}});
    ticket.set("X", key::FaxRecipientList, Array{Dictionary{{"kFaxRecipientFaxNumberProperty", "1"}}});
    open();
    QWidget* button = control(kJobTypeSetupButton);
    EXPECT_FALSE(button->isEnabled());
    EXPECT_EQ(button->toolTip(), u"Fax Setup Unavailable Header"_s);
    EXPECT_EQ(button->accessibleDescription(), button->toolTip());
    EXPECT_TRUE(GetJobTypeCheck()->hasFaxRecipients());
    const test::RecordingNotices heard;
    GetJobTypeCheck()->runFaxSetup(*_paperOutputContext->bundle);
    EXPECT_EQ(heard.titles, QStringList(u"Fax Setup Unavailable Header"_s));
    EXPECT_TRUE(test::Pick(popup(kJobTypePopup), 1));
    EXPECT_EQ(button->toolTip(), QString());
    EXPECT_TRUE(test::Pick(popup(kJobTypePopup), kJobTypeFax)) << "no dialog comes up";
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(*ticket.values().dictionary(key::FaxOptions), (Dictionary{{"Prefix", "9"}}));
    ASSERT_TRUE(ticket.values().array(key::FaxRecipientList));
    EXPECT_EQ(ticket.values().array(key::FaxRecipientList)->size(), 1U);
}

TEST_F(PaperOutputPanelTest, ABookletHoldsTwoSidedAndGivesItBack)
{
    open();
    EXPECT_TRUE(test::Pick(popup(kTwoSidedPopup), kTwoSidedShortEdge));
    ASSERT_EQ(sync(false), noErr);
    const auto create = [&](booklet::Control layout, booklet::Control fold) {
        test::ModalUser user;
        user.then([=](QWidget& window) {
            for (const SInt32 radio : {layout, fold})
                ClickControl(FindControl(&window, {booklet::kSignature, radio}));
            test::Press(window, kCommandOK);
        });
        EXPECT_TRUE(choose(kFinishingMenuButton, kBookletCreation));
    };
    create(booklet::kLayoutOnRadio, booklet::kFoldRadio);
    EXPECT_EQ(ticket.values().boolean(key::BookletLayout), true) << "at once";
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kTwoSidedPopup)), kTwoSidedLongEdge);
    EXPECT_FALSE(popup(kTwoSidedPopup)->isEnabled());
    EXPECT_EQ(text(kFinishingSummary), u"- Booklet Fold\n- Booklet Layout"_s);
    EXPECT_EQ(options().finishingOption, kBookletFoldFinishing);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "Duplex"), u"DuplexTumble"_s);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "KSFold"), u"BiFold"_s);
    ASSERT_EQ(sync(true), noErr);
    EXPECT_FALSE(popup(kTwoSidedPopup)->isEnabled());
    EXPECT_FALSE(choose(kFinishingMenuButton, "Stp1"_code)) << "locked by the booklet";

    create(booklet::kLayoutOffRadio, booklet::kFoldNoneRadio);
    EXPECT_TRUE(popup(kTwoSidedPopup)->isEnabled());
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kTwoSidedPopup)), kTwoSidedShortEdge) << "what it was before";
    EXPECT_EQ(options().finishingOption, kNoFinishing);
}

TEST_F(PaperOutputPanelTest, TwoSidedIsShownAsTheJobHasIt)
{
    ticket.set("X", key::FinishingDuplex, Number::Index(3));
    open();
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kTwoSidedPopup)), kTwoSidedShortEdge);
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kTwoSidedPopup)), kTwoSidedShortEdge);
    ticket.set("X", key::FinishingDuplex, Number::Index(2));
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kTwoSidedPopup)), kTwoSidedLongEdge);
    test::ModalUser user;
    user.then([](QWidget& window) { test::Press(window, kCommandOK); });
    EXPECT_TRUE(choose(kFinishingMenuButton, kBookletCreation));
    EXPECT_EQ(options().duplex, kTwoSidedLongEdge) << "no booklet gives back what the job had";
}

// Settings of a printer with everything, on one with nothing.
TEST_F(PaperOutputPanelTest, WhatThisPrinterCantDoIsShownAsWhatItIsUntilSomethingElseIsChosen)
{
    const test::WithAccessories fitted({{"Option2", "None"}, {"Option4", "None"}, {"Option8", "False"}});
    ticket.set("X", key::JobType, Dictionary{{"JobType", Number::SInt32(kJobTypeSavedJob)}});
    ticket.set("X", key::FinishingOutputColor, Number::Index(77));
    PPDSetCurrentChoice(ticket, "OutputBin", "Middle2");
    PPDSetCurrentChoice(ticket, "StapleLocation", "DualLandscape");
    PPDSetCurrentChoice(ticket, "KSPunch", "4HolePunch");
    open();
    const auto words = [this] {
        QStringList found;
        for (const NotOffered& one : FindNotOffered(pane))
            found << one.shown + u" > "_s + one.instead;
        return found;
    };
    EXPECT_EQ(popup(kJobTypePopup)->text(), u"Not On This Printer SavedJob"_s);
    EXPECT_EQ(popup(kDestinationPopup)->text(), u"Not On This Printer Middle2"_s);
    EXPECT_EQ(words().size(), 5) << words().join(u'\n').toStdString();
    EXPECT_TRUE(words().contains(u"Not On This Printer 4 Hole Punch > NoHolePunch"_s));
    EXPECT_TRUE(WindowSummary(pane).contains(WithCaution(u"Not On This Printer SavedJob"_s)));
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "OutputBin"), u"Middle2"_s);
    EXPECT_EQ(ReadTicketValue(ticket, key::FinishingOutputColor), 77);

    EXPECT_FALSE(popup(kJobTypePopup)->chooseItem(popup(kJobTypePopup)->value()));
    ReplaceNotOffered(pane);
    EXPECT_EQ(words(), QStringList());
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kJobTypePopup)), kJobTypeNormal);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "StapleLocation"), u"None"_s);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "KSPunch"), u"None"_s);
    EXPECT_EQ(ReadTicketValue(ticket, key::FinishingOutputColor), kStandardQuality);
}

TEST_F(PaperOutputPanelTest, WithoutABookletMakerTheTwoSidedRowSaysWhatHoldsItAndEndsIt)
{
    const test::WithAccessories fitted({{"Option2", "CClass"}, {"Option4", "None"}});
    ticket.set("X", key::BookletLayout, true);
    ticket.set("X", key::FinishingDuplex, Number::Index(3));
    PPDSetCurrentChoice(ticket, "KSFold", "BiFold");
    open();
    QWidget *reason = control(kTwoSidedReason), *end = control(kEndBookletButton);
    EXPECT_FALSE(popup(kTwoSidedPopup)->isEnabled());
    EXPECT_EQ(popup(kTwoSidedPopup)->accessibleDescription(), u"Booklet Holds Two Sided"_s);
    EXPECT_TRUE(reason->isVisibleTo(&pane) && end->isVisibleTo(&pane));
    ClickControl(end);
    EXPECT_FALSE(reason->isVisibleTo(&pane) || end->isVisibleTo(&pane));
    EXPECT_TRUE(control(kTwoSidedTrailing)->isVisibleTo(&pane));
    EXPECT_TRUE(popup(kTwoSidedPopup)->isEnabled());
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kTwoSidedPopup)), kTwoSidedShortEdge);
    EXPECT_EQ(ticket.values().boolean(key::BookletLayout), false) << "at once";
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "KSFold"), u"None"_s);
}

TEST_F(PaperOutputPanelTest, AJobThatIsABookletOpensOnLongEdge)
{
    ticket.set("X", key::FinishingDuplex, Number::Index(3));
    ticket.set("X", key::BookletLayout, true);
    open();
    EXPECT_EQ(options().duplex, kTwoSidedLongEdge);
}

TEST_F(PaperOutputPanelTest, PaperDecidesAboutTheFinishingWithEveryEvent)
{
    const test::WithFeatures fitted({u"GBCAdvancedPunchKey"_s});
    open();
    options().stock.setType(kStockTypeLabels);
    options().coilPunch = 1;
    EXPECT_TRUE(test::Pick(popup(kQualityPopup), 200));
    EXPECT_EQ(options().coilPunch, 0);
    options().coilPunch = 1;
    EXPECT_EQ(SendControlEvent(pane, CommandEvent{.command = kNoCommand}), EventResult::NotHandled);
    EXPECT_EQ(options().coilPunch, 0);
}

TEST_F(PaperOutputPanelTest, APageThatIsTurnedTurnsItsStaple)
{
    open();
    EXPECT_TRUE(choose(kFinishingMenuButton, "Stp1"_code));
    pageFormat.set("X", key::PMOrientation, Number::Index(2));
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(PPDCopyCurrentChoice(ticket, "StapleLocation"), u"SingleLandscape"_s);
}

TEST_F(PaperOutputPanelTest, TwoSidedAndBookletAreLeftToTheirOwners)
{
    ASSERT_EQ(initialize(), noErr);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_FALSE(ticket.values().find(key::FinishingDuplex)) << "the panel has not been opened";
    ASSERT_EQ(slots->Open(prologue.context), noErr);
    ticket.set("X", key::BookletLayout, true);
    pane.setEnabled(false); // another panel is shown
    ASSERT_EQ(sync(false), noErr);
    EXPECT_TRUE(ticket.values().find(key::FinishingDuplex));
    EXPECT_EQ(ticket.values().boolean(key::BookletLayout), true);
}

TEST_F(PaperOutputPanelTest, ClosedAndOpenedAgainItShowsTheSameInNewSummaries)
{
    open();
    EXPECT_TRUE(choose(kFinishingMenuButton, "Stp2"_code));
    const QString paper = text(kPaperSummary), finishing = text(kFinishingSummary);
    const auto linesOf = [this](Control view) { return control(view)->property("lines").toInt(); };
    const int lines = linesOf(kFinishingSummary);
    EXPECT_GT(lines, 1);
    const PopupButton* popupBefore = popup(kJobTypePopup);
    EXPECT_EQ(slots->Close(prologue.context), noErr);
    EXPECT_EQ(text(kPaperSummary), u"no view"_s);
    EXPECT_EQ(slots->Close(prologue.context), noErr);
    EXPECT_EQ(slots->Open(prologue.context), noErr);
    EXPECT_EQ(text(kPaperSummary), paper);
    EXPECT_EQ(text(kFinishingSummary), finishing);
    EXPECT_EQ(linesOf(kFinishingSummary), lines);
    EXPECT_EQ(popup(kJobTypePopup), popupBefore);
    EXPECT_TRUE(menu(kStockMenuButton)->chooseItem(1, 3));
    EXPECT_NE(text(kPaperSummary), paper) << "the paper menu shows in the new view";
}

TEST_F(PaperOutputPanelTest, WithoutAnInterfaceFileItStaysEmptyAndStillSyncs)
{
    LoadBundle(kPlugInIdentifier, Bundle{.resourcesPath = u"/nowhere"_s, .strings = {}});
    terminate();
    slots->Prologue(&prologue);
    open();
    EXPECT_EQ(pane.findChildren<QWidget*>().size(), 0);
    EXPECT_EQ(sync(true), noErr);
    EXPECT_EQ(sync(false), noErr);
    EXPECT_EQ(slots->Close(prologue.context), noErr);
    EXPECT_EQ(slots->Open(prologue.context), noErr);
}

TEST_F(PaperOutputPanelTest, WhatIsMissingIsAnsweredWithItsStatus)
{
    EXPECT_EQ(slots->Open(prologue.context), kInvalidContext) << "never initialized";
    session.data.erase(QString::fromLatin1(kPMPageFormatTicket));
    EXPECT_EQ(initialize(), kNoSuchTicket);
    EXPECT_EQ(sync(false), noErr);
    session.data.clear();
    EXPECT_EQ(sync(true), kNoSuchTicket);
    EXPECT_EQ(sync(false), kNoSuchTicket);
    EXPECT_EQ(prologue.creator, "lhsX"_code);
}

TEST_F(PaperOutputPanelTest, TheLiveContextLastsFromInitializeToTerminate)
{
    EXPECT_EQ(_paperOutputContext, nullptr);
    open();
    EXPECT_TRUE(_paperOutputContext);
    EXPECT_TRUE(GetJobTypeCheck());
    terminate();
    EXPECT_EQ(_paperOutputContext, nullptr);
    EXPECT_EQ(GetJobTypeCheck(), nullptr);
}

TEST_F(PaperOutputPanelTest, ASimpleTrayHidesDestinationAndFinishing)
{
    const test::WithAccessories fitted({{"Option2", "None"}, {"Option4", "None"}});
    open();
    EXPECT_TRUE(control(kDestinationPopup)->isHidden());
    EXPECT_TRUE(control(kDestinationLabel)->isHidden());
    for (const SInt32 view : {kFinishingView, kStaplingView, kPunchView, kOfficeFinishingRow})
        EXPECT_FALSE(control(view)) << view;
}

} // namespace
} // namespace kesta::paper_output
