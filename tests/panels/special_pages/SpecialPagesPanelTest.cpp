#include "panels/special_pages/SpecialPagesPanel.h"

#include "panels/PanelFixture.h"
#include "panels/special_pages/editors/CoversHandler.h"
#include "panels/special_pages/editors/ExceptionsHandler.h"
#include "panels/special_pages/editors/ImageShiftDialog.h"
#include "panels/special_pages/editors/InsertsHandler.h"
#include "panels/special_pages/paper/PreCutTabStockSetup.h"
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
#include <QElapsedTimer>
#include <QMenu>
#include <QPushButton>

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
    void setHostFlag(const char* key, bool on) { ticket.set("host", key, on); }

    Answers answers;
    ModalUser user;
};

TEST_F(SpecialPagesPanelTest, PagesAreAddedEditedMovedDeletedAndBroughtBack)
{
    open();
    EXPECT_EQ(slots->Open(prologue.context), kInvalidContext) << "a second time";
    EXPECT_EQ(slots->Sync(nullptr, &session, true), kInvalidContext);
    add(kAddExceptionsButton, u"3-7"_s);
    EXPECT_EQ(list().selectedRows(), std::vector<int>{0}) << "what is new is selected";
    add(kAddInsertsButton, u"3, 9"_s);
    EXPECT_EQ(rows(), (QStringList{u"Page Range In List 3 7"_s, u"3"_s, u"9"_s}));
    EXPECT_EQ(list().selectedRows(), (std::vector<int>{1, 2}));
    EXPECT_FALSE(control(kEditButton)->isEnabled());

    list().selectRowsAsUser({2});
    EXPECT_TRUE(control(kMoveUpButton)->isEnabled());
    press(kMoveUpButton);
    EXPECT_EQ(rows()[1], u"9"_s);
    EXPECT_EQ(list().selectedRows(), std::vector<int>{1}) << "the moved row stays selected";
    press(kUndoButton);
    EXPECT_EQ(rows()[1], u"3"_s);
    EXPECT_FALSE(control(kUndoButton)->isEnabled());

    list().selectRowsAsUser({1});
    user.then([](QWidget& window) {
        QWidget* field = FindControl(&window, {inserts::kSignature, editors::kPageField});
        EXPECT_EQ(FieldText(field), u"3"_s);
        type(window, inserts::kSignature, u"12"_s);
        Press(window, kCommandOK);
    });
    PressKey(list(), Qt::Key_Return);
    EXPECT_EQ(rows(), (QStringList{u"Page Range In List 3 7"_s, u"9"_s, u"12"_s}));
    EXPECT_EQ(list().selectedRows(), std::vector<int>{2}) << "the selection follows the edited row";
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ticket.values().array(key::SpecialPagesInsertList)->size(), 2U);
    EXPECT_EQ(ticket.client(key::SpecialPagesInsertList), u"com.kesta.print"_s);
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
    EXPECT_TRUE(control(kUndoButton)->isEnabled());
    answers.answer = 1;
    PressKey(list(), Qt::Key_Delete);
    EXPECT_EQ(rows(), QStringList{u"2"_s});
    PressKey(list(), Qt::Key_Z, {}, Qt::ControlModifier);
    EXPECT_EQ(rows().size(), 3);
    press(kDeleteAllButton);
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_FALSE(control(kDeleteAllButton)->isEnabled());
    EXPECT_EQ(answers.asked, (QStringList{u"Delete Selected Special Pages"_s, u"Delete Selected Special Pages"_s,
                                          u"Delete All Special Pages"_s}));
}

TEST_F(SpecialPagesPanelTest, TheKeyboardReachesEverythingInTheList)
{
    open();
    add(kAddInsertsButton, u"1-3"_s);
    PressKey(list(), Qt::Key_A, {}, Qt::ControlModifier);
    EXPECT_EQ(list().selectedRows().size(), 3U);
    PressKey(list(), Qt::Key_Return); // edits one row only, and goes no further
    list().selectRowsAsUser({});
    PressKey(list(), Qt::Key_Return);

    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&list());
    ASSERT_TRUE(accessible && accessible->tableInterface());
    EXPECT_EQ(accessible->tableInterface()->cellAt(1, 0)->text(QAccessible::Name),
              u"Spoken Special Page 2 3 Spoken After Page 2 SpecialPageSummaryInsert "
              "Sheets In List InsertSummaryQuantity 1"_s);
}

TEST_F(SpecialPagesPanelTest, TheContextMenuHoldsWhatCanBeDone)
{
    open();
    add(kAddInsertsButton, u"1-3"_s);
    list().selectRowsAsUser({1});
    Q_EMIT list().customContextMenuRequested(QPoint());
    auto* menu = list().findChild<QMenu*>();
    ASSERT_TRUE(menu);
    QStringList commands;
    for (const QAction* action : menu->actions())
        commands << action->text();
    EXPECT_EQ(commands, (QStringList{u"Edit Command"_s, u"Delete Command"_s, u"Delete All Command"_s, u"Undo Command"_s,
                                     u"Move Up Command"_s, u"Move Down Command"_s}));
    menu->actions().last()->trigger();
    EXPECT_EQ(rows(), (QStringList{u"1"_s, u"3"_s, u"2"_s}));
    menu->close();
    user.then([](QWidget& window) { Press(window, kCommandCancel); });
    list().selectRowsAsUser({0});
    Q_EMIT list().doubleClicked(list().model()->index(0, 0));
}

TEST_F(SpecialPagesPanelTest, TextsThatCantBeTakenKeepTheEditorOpen)
{
    open();
    add(kAddExceptionsButton, u"5-9"_s);
    user.then([this](QWidget& window) {
        for (const char* pages : {"7-3", "0", "8", "1--2", "100000", "1-99999, 1-9"}) {
            type(window, exceptions::kSignature, QString::fromLatin1(pages));
            Press(window, kCommandOK);
            QWidget* field = FindControl(&window, {exceptions::kSignature, editors::kPageField});
            EXPECT_TRUE(field->property("invalid").toBool());
        }
        Press(window, kCommandCancel);
    });
    press(kAddExceptionsButton);
    EXPECT_EQ(answers.titles,
              (QStringList{u"Invalid Ranges Title"_s, u"Invalid Page Numbers Title"_s, u"PageRangeConflictTitle"_s,
                           u"Invalid Pages Title"_s, u"Page Number Limit Title"_s, u"Too Many Pages Title"_s}));
    user.then([](QWidget& window) {
        QWidget* field = FindControl(&window, {exceptions::kSignature, editors::kPageField});
        TypeIntoField(field, u"1,"_s.repeated(kLongestPageText / 2) + u'1');
        EXPECT_EQ(FieldText(field).size(), 0) << "refused, not cut";
        TypeIntoField(field, u"1,"_s.repeated(kLongestPageText / 2));
        EXPECT_EQ(FieldText(field).size(), kLongestPageText);
        Press(window, kCommandOK);
        Press(window, kCommandCancel);
    });
    press(kAddExceptionsButton);
    EXPECT_EQ(answers.titles.last(), u"Too Many Pages Title"_s);
    EXPECT_EQ(rows().size(), 1);
    press(kUndoButton); // of the first one: nothing was saved since
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(SpecialPagesPanelTest, SeveralPagesASheetAndBookletsTakeNoPages)
{
    open();
    setHostFlag(key::PMLayoutNUp, true);
    ASSERT_TRUE(control(kAddInsertsButton)->isEnabled());
    press(kAddInsertsButton);
    EXPECT_FALSE(control(kAddInsertsButton)->isEnabled());
    setHostFlag(key::PMLayoutNUp, false);
    setHostFlag(key::BookletLayout, true);
    for (const bool toControls : {true, false}) {
        sync(toControls);
        EXPECT_FALSE(control(kAddInsertsButton)->isEnabled() || control(kAddExceptionsButton)->isEnabled());
        EXPECT_TRUE(control(kAddCoversButton)->isEnabled());
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

TEST_F(SpecialPagesPanelTest, TabSheetsAskForTheirNumber)
{
    open();
    const auto chooseTabs = [](QWidget& window, FourCharCode signature) {
        auto* paper = FindControlAs<MenuButton>(&window, {signature, editors::kPaperButton});
        const std::vector<MenuItem>& types = paper->menu().items[2].submenu;
        const auto tabs = std::ranges::find(types, SInt32{kStockTypeTabStock}, &MenuItem::value);
        EXPECT_TRUE(paper->chooseItem(3, static_cast<int>(tabs - types.begin()) + 1));
    };
    user.then([=](QWidget& window) {
        type(window, inserts::kSignature, u"4"_s);
        chooseTabs(window, inserts::kSignature);
        Press(window, kCommandOK);
    });
    user.then([](QWidget& window) {
        FindControlAs<SpinField>(&window, {precuttab::kSignature, precuttab::kSequenceField})->setNumber(7);
        Press(window, kCommandOK);
    });
    press(kAddInsertsButton);
    EXPECT_TRUE(list().rows()[0].cells[2].endsWith(u"(7)"_s));
    sync(false);
    list().selectRowsAsUser({0});
    sync(true);
    EXPECT_EQ(list().selectedRows(), std::vector<int>{0}) << "a panel switch keeps selection and tab count";
    EXPECT_TRUE(list().rows()[0].cells[2].endsWith(u"(7)"_s));
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
    QElapsedTimer clock;
    open();
    pane.resize(640, 480);
    pane.show();
    clock.start();
    PressKey(list(), Qt::Key_A, {}, Qt::ControlModifier);
    list().scrollToBottom();
    pane.grab();
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_EQ(list().selectedRows().size(), 90'000U);
    EXPECT_LT(list().findChildren<QWidget*>().size(), 20) << "no widget a row";
    answers.answer = 1;
    clock.start();
    press(kMoveDownButton);
    press(kDeleteButton);
    EXPECT_LT(clock.elapsed(), 5000);
    EXPECT_TRUE(rows().isEmpty());
}

} // namespace
} // namespace kesta::special_pages
