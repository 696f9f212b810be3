// The dialog with the real pane: without a mouse, and with large texts.

#include "host/PrintDialogFixture.h"
#include "host/dialog/PrintDialogControls.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/windows/ModalLoop.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>

#include <set>

namespace kesta::host {
namespace {

using test::PrintBundle;
using namespace Qt::StringLiterals;

// What a screen reader calls the widget.
QString HeardName(QWidget& widget)
{
    if (qobject_cast<QComboBox*>(&widget) ||
        qobject_cast<PopupButton*>(&widget)) // its label is a relation; what has the name's place is its text
        return ControlName(widget);
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&widget);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

// In a button box of this desktop's.
bool AcceptStandsFirst()
{
    QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box.show();
    return box.button(QDialogButtonBox::Ok)->x() < box.button(QDialogButtonBox::Cancel)->x();
}

class DialogFocusTest : public test::PrintDialogTest {
protected:
    // Shows the dialog with the real pane and calls "look" while it waits for the user, then cancels.
    void show(const std::function<void(QWidget&)>& look)
    {
        const PlugInOrError loaded = LoadPlugIn();
        ASSERT_TRUE(loaded.plugIn) << testing::PrintToString(loaded.error);
        ASSERT_FALSE(ChoosePanels(*loaded.plugIn, {u"GetAdvancedPanelInterface"_s}));
        PrintDialog dialog({.request = DialogRequest(options, PrintBundle()).request,
                            .texts = &PrintBundle(),
                            .plugIn = loaded,
                            .scripted = true});
        ASSERT_FALSE(dialog.prepare());
        const ModalIdleAction before = SetModalIdleAction([&](QWidget& window) {
            SetModalIdleAction({});
            look(window);
            EndModalLoop(window, ModalResult::Cancel);
        });
        dialog.run();
        SetModalIdleAction(before);
    }

    static QString focused(const QWidget& window)
    {
        QWidget* widget = window.focusWidget();
        return widget ? HeardName(*widget) : QString();
    }

    static void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget* target = window.focusWidget() ? window.focusWidget() : &window;
        QKeyEvent down(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(target, &down);
    }
};

TEST_F(DialogFocusTest, TabWalksFromThePrinterToTheLastButton)
{
    show([](QWidget& window) {
        EXPECT_EQ(focused(window), u"Copies"_s);
        const auto* copies = FindControlAs<QAbstractSpinBox>(&window, {kPrintSignature, kCopiesField});
        ASSERT_TRUE(copies);
        EXPECT_EQ(copies->findChild<QLineEdit*>()->selectedText(), u"1"_s);

        press(window, Qt::Key_Backtab, Qt::ShiftModifier);
        QStringList order{focused(window)};
        while (order.size() < 40) {
            press(window, Qt::Key_Tab);
            if (focused(window) == order.front())
                break;
            order << focused(window);
        }
        QStringList expected{u"Printer"_s,
                             u"Copies"_s,
                             u"Pages"_s,
                             u"Pages per sheet"_s,
                             u"Portrait"_s,
                             u"Landscape"_s,
                             u"Panel"_s,
                             u"Booklet image order"_s,
                             u"Output options"_s,
                             u"Banner sheet"_s,
                             u"Offset stacking"_s,
                             u"Mirrored output"_s,
                             u"Printing optimization"_s,
                             u"About…"_s,
                             u"Help"_s};
        expected += AcceptStandsFirst() ? QStringList{u"Save"_s, u"Cancel"_s} : QStringList{u"Cancel"_s, u"Save"_s};
        const auto left = [&window](PrintControl number) {
            return FindControl(&window, {kPrintSignature, number})->x();
        };
        EXPECT_EQ(left(kPrintButton) < left(kCancelButton), AcceptStandsFirst());
        EXPECT_EQ(order.join(u", ").toStdString(), expected.join(u", ").toStdString());
    });
}

TEST_F(DialogFocusTest, EveryControlIsNamedAndMnemonicsAreUnique)
{
    show([](QWidget& window) {
        int reachable = 0;
        std::set<QString> mnemonics;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible())
                continue;
            if (widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy()) {
                ++reachable;
                EXPECT_NE(HeardName(*widget), QString()) << widget->objectName().toStdString();
            }
            const auto* label = qobject_cast<QLabel*>(widget);
            const bool isPopup = qobject_cast<PopupButton*>(widget); // its label has the mnemonic
            const auto* button = isPopup ? nullptr : qobject_cast<QAbstractButton*>(widget);
            const QString text = label && label->buddy() ? label->text() : button ? button->text() : QString();
            if (text.isEmpty())
                continue;
            const QString mnemonic = QKeySequence::mnemonic(text).toString();
            EXPECT_NE(mnemonic, QString()) << text.toStdString();
            EXPECT_TRUE(mnemonics.insert(mnemonic).second) << text.toStdString();
        }
        EXPECT_GE(reachable, 18);
        EXPECT_GE(mnemonics.size(), 14u);
    });
}

TEST_F(DialogFocusTest, LargeFontsWidenTheWindowAndNothingOverlaps)
{
    show([](QWidget& window) {
        EXPECT_GE(window.minimumSizeHint().width(), 540);
        QFont font = window.font();
        font.setPointSize(24);
        window.setFont(font);
        window.resize(540, 600);
        QApplication::sendPostedEvents();
        QRect before(0, 0, 1, 1);
        for (const PrintControl number :
             {kPrinterChoice, kCopiesField, kPagesField, kPerSheetChoice, kPortraitSegment, kLandscapeSegment}) {
            const QWidget* control = FindControl(&window, {kPrintSignature, number});
            ASSERT_TRUE(control);
            const QRect place(control->mapTo(&window, QPoint()), control->size());
            EXPECT_TRUE(window.rect().contains(place)) << number;
            EXPECT_GT(place.left(), before.right()) << number;
            before = place;
        }
        EXPECT_GT(window.width(), 540);
    });
}

} // namespace
} // namespace kesta::host
