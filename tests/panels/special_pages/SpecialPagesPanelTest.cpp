#include "panels/special_pages/SpecialPagesPanel.h"

#include "panels/PanelFixture.h"
#include "panels/special_pages/editors/CoversHandler.h"
#include "panels/special_pages/editors/ExceptionsHandler.h"
#include "panels/special_pages/editors/ImageShiftDialog.h"
#include "panels/special_pages/editors/ImageShiftScene.h"
#include "panels/special_pages/editors/InsertsHandler.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "pde/ticket/TicketUtilities.h"
#include "support/Recorders.h"
#include "toolkit/Keys.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/controls/TabControl.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/windows/WindowSummary.h"

#include <QAccessible>
#include <QPainter>
#include <QPushButton>

#include <ctime>

using namespace Qt::StringLiterals;

namespace kesta::special_pages {
namespace {

using test::ModalUser;
using test::Press;
using test::PressKey;

struct Answers : test::RecordingNotices {
    int answer = 0;
    QStringList asked;

    int ask(const Alert& alert) override
    {
        asked << alert.message;
        return answer;
    }
};

// Of the processor, whatever else goes on.
double SecondsOfWork()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

class SpecialPagesPanelTest : public test::PanelTest {
protected:
    SpecialPagesPanelTest() : PanelTest(GetSpecialPagesPanelInterface, kSignature, test::BundleWithAllTexts()) {}

    ListView& list() { return *FindControlAs<ListView>(&pane, {kSignature, kList}); }
    void press(Control number) { ClickControl(control(number)); }
    // The pages of each row, as shown.
    QStringList rows()
    {
        QStringList pages;
        for (const ListRow& row : list().rows())
            pages << row.cells[0];
        return pages;
    }
    static void type(QWidget& window, FourCharCode signature, const QString& pages)
    {
        QWidget* field = FindControl(&window, {signature, editors::kPageField});
        SetFieldText(field, {});
        TypeIntoField(field, pages);
    }
    void add(Control button, const QString& pages)
    {
        const FourCharCode signature = button == kAddInsertsButton ? inserts::kSignature : exceptions::kSignature;
        user.then([=](QWidget& window) {
            EXPECT_FALSE(GetWindowDefaultButton(window)->isEnabled());
            type(window, signature, pages);
            Press(window, kCommandOK);
        });
        press(button);
    }

    Answers answers;
    ModalUser user;
};

TEST_F(SpecialPagesPanelTest, WhatIsNewOrEditedIsSelectedAndStaysSo)
{
    open();
    EXPECT_EQ(slots->Open(prologue.context), kInvalidContext) << "a second time";
    EXPECT_EQ(slots->Sync(nullptr, &session, true), kInvalidContext);
    add(kAddInsertsButton, u"3, 9"_s);
    EXPECT_EQ(list().selectedRows(), (std::vector<int>{0, 1}));
    list().selectRowsAsUser({0});
    user.then([](QWidget& window) {
        type(window, inserts::kSignature, u"12"_s);
        Press(window, kCommandOK);
    });
    PressKey(list(), Qt::Key_Return);
    EXPECT_EQ(rows(), (QStringList{u"9"_s, u"12"_s}));
    EXPECT_EQ(list().selectedRows(), std::vector<int>{1}) << "the selection follows the edited row";
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ticket.client(key::SpecialPagesInsertList), u"com.kesta.print"_s);
    sync(true);
    EXPECT_EQ(list().selectedRows(), std::vector<int>{1}) << "a panel switch keeps the selection";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&list())->tableInterface()->cellAt(0, 0)->text(QAccessible::Name),
              u"Spoken Special Page 1 2 Spoken After Page 9 SpecialPageSummaryInsert "
              "Sheets In List InsertSummaryQuantity 1"_s);
}

TEST_F(SpecialPagesPanelTest, DeletingAsksFirstAndUndoIsThereAfterANoToo)
{
    open();
    add(kAddInsertsButton, u"1-3"_s);
    press(kUndoButton);
    EXPECT_TRUE(rows().isEmpty());
    add(kAddInsertsButton, u"1-3"_s);
    list().selectRowsAsUser({0, 2});
    PressKey(list(), Qt::Key_Delete);
    EXPECT_EQ(rows().size(), 3);
    press(kUndoButton);
    EXPECT_EQ(rows().size(), 3) << "of before the question";
    answers.answer = 1;
    list().selectRowsAsUser({0, 2});
    PressKey(list(), Qt::Key_Delete);
    EXPECT_EQ(rows(), QStringList{u"2"_s});
    press(kDeleteAllButton);
    EXPECT_FALSE(control(kDeleteAllButton)->isEnabled());
    PressKey(list(), Qt::Key_Z, {}, Qt::ControlModifier);
    EXPECT_EQ(rows(), QStringList{u"2"_s});
    EXPECT_EQ(answers.asked, (QStringList{u"Delete Selected Special Pages"_s, u"Delete Selected Special Pages"_s,
                                          u"Delete All Special Pages"_s}));
}

TEST_F(SpecialPagesPanelTest, TextsThatCantBeTakenKeepTheEditorOpen)
{
    open();
    add(kAddExceptionsButton, u"5-9"_s);
    user.then([this](QWidget& window) {
        QWidget* field = FindControl(&window, {exceptions::kSignature, editors::kPageField});
        type(window, exceptions::kSignature, u"8"_s);
        Press(window, kCommandOK);
        EXPECT_TRUE(field->property("invalid").toBool());
        EXPECT_EQ(answers.titles, QStringList{u"PageRangeConflictTitle"_s});
        SetFieldText(field, {});
        TypeIntoField(field, u"1,"_s.repeated(kLongestPageText / 2) + u'1');
        EXPECT_EQ(FieldText(field).size(), 0) << "refused, not cut";
        TypeIntoField(field, u"1,"_s.repeated(kLongestPageText / 2));
        EXPECT_EQ(FieldText(field).size(), kLongestPageText);
        Press(window, kCommandOK);
        Press(window, kCommandCancel);
    });
    press(kAddExceptionsButton);
    EXPECT_EQ(answers.titles.last(), u"Too Many Pages Title"_s);
    press(kUndoButton); // of the first one: nothing was saved since
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(SpecialPagesPanelTest, SeveralPagesASheetAndBookletsTakeNoPages)
{
    open();
    ticket.set("host", key::PMLayoutNUp, true);
    ASSERT_TRUE(control(kAddInsertsButton)->isEnabled());
    press(kAddInsertsButton);
    EXPECT_FALSE(control(kAddInsertsButton)->isEnabled());
    ticket.set("host", key::PMLayoutNUp, false);
    ticket.set("host", key::BookletLayout, true);
    for (const bool toControls : {true, false}) {
        sync(toControls);
        EXPECT_FALSE(control(kAddInsertsButton)->isEnabled() || control(kAddExceptionsButton)->isEnabled());
    }
    user.then([](QWidget& window) {
        const PopupButton* options = FindPopupButton(&window, {covers::kSignature, covers::kOptionPopup});
        EXPECT_FALSE(options->menu().items[1].enabled);
        EXPECT_TRUE(options->menu().items[3].enabled);
        Press(window, kCommandCancel);
    });
    press(kAddCoversButton);
}

TEST_F(SpecialPagesPanelTest, CoversFollowTheirOptionPaperAndTray)
{
    open();
    WriteTicketValue(TicketWriter(ticket, "host"), key::PMDuplexing, 2);
    user.then([](QWidget& window) {
        const auto popup = [&](SInt32 number) { return FindPopupButton(&window, {covers::kSignature, number}); };
        const auto summary = [&](SInt32 number) {
            return FindControlAs<SummaryTextView>(&window, {covers::kSignature, number})->text();
        };
        const auto column = [&](SInt32 number) { return FindControl(&window, {covers::kSignature, number}); };
        EXPECT_FALSE(column(covers::kColumn)->isEnabled());
        EXPECT_TRUE(test::Pick(popup(covers::kOptionPopup), kSameCovers));
        EXPECT_FALSE(column(covers::kColumn + covers::kBack)->isEnabled());
        EXPECT_TRUE(test::Pick(popup(covers::kTrayPopup), 1));
        auto* paper = FindControlAs<MenuButton>(&window, {covers::kSignature, covers::kPaperButton});
        EXPECT_TRUE(paper->chooseItem(2, 3));
        EXPECT_EQ(GetPopupButtonTicketValue(popup(covers::kTrayPopup)), kAutomaticTray) << "paper in place of a tray";
        EXPECT_EQ(summary(covers::kPaperSummary), summary(covers::kPaperSummary + covers::kBack));
        EXPECT_NE(summary(covers::kPaperSummary), u"UseJobSetting"_s);
        EXPECT_TRUE(test::Pick(popup(covers::kSidesPopup), kCoverPrintedBoth));
        EXPECT_FALSE(paper->menu().items[0].enabled) << "a printed cover has the job's size";
        EXPECT_EQ(GetPopupButtonTicketValue(popup(covers::kSidesPopup + covers::kBack)), kCoverPrintedBoth);
        Press(window, kCommandOK);
    });
    press(kAddCoversButton);
    EXPECT_EQ(rows().size(), 2);
    EXPECT_TRUE(ticket.values().dictionary(key::SpecialPagesFrontCover)) << "at once";
    EXPECT_TRUE(ticket.values().dictionary(key::SpecialPagesBackCover));

    // The job is one-sided now: the covers are still printed.
    WriteTicketValue(TicketWriter(ticket, "host"), key::PMDuplexing, 1);
    sync(true);
    EXPECT_TRUE(list().rows()[0].cells[2].startsWith(u"CoverPrinted"_s));
    list().selectRowsAsUser({0});
    user.then([](QWidget& window) {
        const PopupButton* sides = FindPopupButton(&window, {covers::kSignature, covers::kSidesPopup});
        EXPECT_EQ(sides->selectedItem()->title, u"CoverPrinted"_s);
        Press(window, kCommandOK);
    });
    press(kEditButton);
    EXPECT_EQ(CFDictionaryGetNumber<SInt32>(*ticket.values().dictionary(key::SpecialPagesFrontCover), "SidesImaged"),
              4);
}

TEST_F(SpecialPagesPanelTest, ExceptionsHaveSidesAndAnImageShift)
{
    open();
    user.then([](QWidget& window) {
        type(window, exceptions::kSignature, u"31-34"_s);
        EXPECT_TRUE(test::Pick(FindPopupButton(&window, {exceptions::kSignature, exceptions::kTwoSidedPopup}), 1));
        auto* tabs = FindControlAs<TabControl>(&window, {exceptions::kSignature, exceptions::kTabs});
        const int height = window.height();
        EXPECT_TRUE(tabs->chooseTab(2));
        EXPECT_EQ(window.sizeHint().height(), height) << "both tabs are as high as the higher";
        ClickControl(FindControl(&window, {exceptions::kSignature, exceptions::kShiftButton}));
        const auto* summary =
            FindControlAs<SummaryTextView>(&window, {exceptions::kSignature, exceptions::kShiftSummary});
        EXPECT_TRUE(summary->text().startsWith(u"- Shift Of Both Sides"_s)) << summary->text().toStdString();
        Press(window, kCommandOK);
    });
    user.then([](QWidget& window) {
        const auto find = [&](SInt32 number) { return FindControl(&window, {imageshift::kSignature, number}); };
        EXPECT_FALSE(find(imageshift::kHorizontal1)->isEnabled());
        ClickControl(find(imageshift::kShiftCheckBox));
        EXPECT_TRUE(find(imageshift::kHorizontal1)->isEnabled());
        EXPECT_FALSE(find(imageshift::kHorizontal2)->isEnabled());
        auto& field = *static_cast<SpinField*>(find(imageshift::kHorizontal1));
        field.setFocus();
        field.stepBy(1);
        EXPECT_EQ(static_cast<SpinField*>(find(imageshift::kHorizontal2))->number(), field.number());
        Press(window, kCommandOK);
    });
    press(kAddExceptionsButton);
    sync(false);
    const Array& stored = *ticket.values().array(key::SpecialPagesExceptionList);
    EXPECT_EQ(CFDictionaryGetNumber<SInt32>(*stored[0].dictionary(), "SidesImaged"), 1);
    EXPECT_TRUE(stored[0].dictionary()->dictionary("com.kesta.print.ImageShiftOptionsPage"));
    EXPECT_EQ(WindowSummary(pane), QStringList{u"Exception Range As Summary Page Range In List 31 34 Simplex"_s});
}

TEST(ImageShiftScene, Side1StandsWhereTheWindowBegins)
{
    const auto sheets = [](Qt::LayoutDirection direction) {
        QImage image(144, 84, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        DrawImageShiftScene(painter, image.rect(), {.isOn = true, .areAlike = false, .side1 = {10, 5}}, direction);
        return std::pair(image.copy(0, 0, 64, 84), image.copy(80, 0, 64, 84));
    };
    const auto [left, right] = sheets(Qt::LeftToRight);
    EXPECT_NE(left, right);
    EXPECT_EQ(sheets(Qt::RightToLeft), std::pair(right, left));
}

TEST_F(SpecialPagesPanelTest, NinetyThousandRowsMakeNoPause)
{
    Array many;
    for (CFIndex page = 1; page <= 90'000; ++page) {
        Dictionary insert;
        WriteTicketValue(insert, "StartPage", page);
        many.emplace_back(std::move(insert));
    }
    ticket.set("com.kesta.print", key::SpecialPagesInsertList, std::move(many));
    const double begin = SecondsOfWork();
    open();
    pane.resize(640, 480);
    pane.show();
    PressKey(list(), Qt::Key_A, {}, Qt::ControlModifier);
    list().scrollToBottom();
    pane.grab();
    EXPECT_LT(SecondsOfWork() - begin, 6);
    EXPECT_EQ(list().selectedRows().size(), 90'000U);
    EXPECT_LT(list().findChildren<QWidget*>().size(), 20) << "no widget a row";
    answers.answer = 1;
    const double chosen = SecondsOfWork();
    press(kMoveDownButton);
    press(kDeleteButton);
    EXPECT_LT(SecondsOfWork() - chosen, 6);
    EXPECT_TRUE(rows().isEmpty());
}

} // namespace
} // namespace kesta::special_pages
