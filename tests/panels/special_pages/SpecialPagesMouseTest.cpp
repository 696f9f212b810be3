// With a mouse on a screen, as the window system tells the window of it: rows are dragged only where there is one.

#include "panels/PanelFixture.h"
#include "panels/special_pages/SpecialPagesPanel.h"
#include "panels/special_pages/editors/EditorControls.h"
#include "panels/special_pages/editors/InsertsHandler.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "toolkit/Keys.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/TextInput.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace kesta::special_pages {
namespace {

constexpr qint64 kLongestWait = 20'000; // milliseconds

Array Pages(std::initializer_list<SInt32> starts)
{
    Array pages;
    for (const SInt32 start : starts) {
        Dictionary page;
        WriteTicketValue(page, "StartPage", start);
        pages.emplace_back(std::move(page));
    }
    return pages;
}

// Rows: before page 1, an exception of page 1, inserts after 2, 4 and 6.
class SpecialPagesMouseTest : public test::PanelTest {
protected:
    SpecialPagesMouseTest() : PanelTest(GetSpecialPagesPanelInterface, kSignature, test::BundleWithAllTexts()) {}

    void SetUp() override
    {
        ticket.set("test", key::SpecialPagesInsertList, Pages({0, 2, 4, 6}));
        ticket.set("test", key::SpecialPagesExceptionList, Pages({1}));
        open();
        pane.resize(640, 480);
        pane.show();
        QElapsedTimer waiting;
        waiting.start();
        while (!pane.windowHandle()->isExposed() && waiting.elapsed() < kLongestWait)
            QApplication::processEvents(QEventLoop::AllEvents, 50);
        ASSERT_EQ(pages(), before);
    }

    ListView& list() { return *FindControlAs<ListView>(&pane, {kSignature, kList}); }
    QStringList pages()
    {
        QStringList shown;
        for (const ListRow& row : list().rows())
            shown << row.cells[0];
        return shown;
    }

    // On the row, or just above it where something is to be put before it.
    QPoint on(int row) { return list().visualRect(list().model()->index(row, 0)).center(); }
    QPoint above(int row)
    {
        const QPoint place = row < list().rowCount() ? on(row) : on(row - 1);
        const int half = list().visualRect(list().model()->index(0, 0)).height() / 2 - 2;
        return place + QPoint(0, row < list().rowCount() ? -half : half);
    }
    void send(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held)
    {
        const QPoint global = list().viewport()->mapToGlobal(place);
        QWindow& window = *pane.windowHandle();
        QMouseEvent event(type, window.mapFromGlobal(global), global, button, held, Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
    }
    void click(int row, Qt::MouseButton button)
    {
        send(QEvent::MouseButtonPress, on(row), button, button);
        send(QEvent::MouseButtonRelease, on(row), button, Qt::NoButton);
    }
    void drag(int row, int to)
    {
        const QPoint target = above(to);
        bool wasDragged = false;
        send(QEvent::MouseButtonPress, on(row), Qt::LeftButton, Qt::LeftButton);
        QTimer::singleShot(0, [&] { // the drag waits for events of its own
            wasDragged = true;
            send(QEvent::MouseMove, target, Qt::NoButton, Qt::LeftButton);
            send(QEvent::MouseMove, target + QPoint(1, 0), Qt::NoButton, Qt::LeftButton);
            send(QEvent::MouseButtonRelease, target, Qt::LeftButton, Qt::NoButton);
        });
        for (const int far : {30, 60})
            send(QEvent::MouseMove, on(row) + QPoint(far, 0), Qt::NoButton, Qt::LeftButton);
        EXPECT_TRUE(wasDragged);
        QApplication::processEvents(); // the window system ends the drag
    }

    const QStringList before{u"SpecialPageSummaryBefore1"_s, u"1"_s, u"2"_s, u"4"_s, u"6"_s};
};

TEST_F(SpecialPagesMouseTest, InsertsAreDraggedWhereMovingWouldGetThem)
{
    drag(4, 2);
    EXPECT_EQ(pages(), (QStringList{u"SpecialPageSummaryBefore1"_s, u"1"_s, u"6"_s, u"2"_s, u"4"_s}));
    EXPECT_EQ(list().selectedRows(), std::vector<int>{2}) << "the dragged row";
    ClickControl(control(kUndoButton));
    EXPECT_EQ(pages(), before);
    drag(2, 5);
    EXPECT_EQ(pages(), (QStringList{u"SpecialPageSummaryBefore1"_s, u"1"_s, u"4"_s, u"6"_s, u"2"_s}));
    ClickControl(control(kUndoButton));
    drag(2, 0); // past the one before page 1
    drag(1, 4); // an exception
    drag(3, 4); // to where it is
    EXPECT_EQ(pages(), before);
    EXPECT_FALSE(control(kUndoButton)->isEnabled()) << "nothing was done";
}

TEST_F(SpecialPagesMouseTest, ADoubleClickEditsAndTheRightButtonOffersWhatFits)
{
    test::ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_EQ(FieldText(FindControl(&window, {inserts::kSignature, editors::kPageField})), u"4"_s);
        test::Press(window, kCommandCancel);
    });
    click(3, Qt::LeftButton);
    send(QEvent::MouseButtonDblClick, on(3), Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, on(3), Qt::LeftButton, Qt::NoButton);

    click(2, Qt::RightButton);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(list().selectedRows(), std::vector<int>{2}) << "what the menu is about";
    QStringList commands;
    for (const QAction* action : menu->actions())
        commands << action->text();
    EXPECT_EQ(commands,
              (QStringList{u"Edit Command"_s, u"Delete Command"_s, u"Delete All Command"_s, u"Move Down Command"_s}));
    test::PressKey(*menu, Qt::Key_Up); // the last one
    test::PressKey(*menu, Qt::Key_Return);
    EXPECT_EQ(pages(), (QStringList{u"SpecialPageSummaryBefore1"_s, u"1"_s, u"4"_s, u"2"_s, u"6"_s}));
}

} // namespace
} // namespace kesta::special_pages
