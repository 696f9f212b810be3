#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/Keys.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/Mnemonics.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

Menu PaperMenu()
{
    return {.items = {{.title = u"Letter"_s, .value = 1},
                      {.title = u"Legal"_s, .value = 2},
                      {.separator = true},
                      {.title = u"A4"_s, .value = 4, .enabled = false},
                      {.title = u"Ledger"_s, .value = 5},
                      {.title = u"More & Less"_s,
                       .submenu = {{.title = u"Blue"_s, .command = "Blue"_code, .value = 6, .checked = true}}},
                      {.title = u"Off limits"_s, .value = 7}}};
}

class PopupKeys : public testing::Test {
protected:
    PopupButton popup;
    std::vector<SInt32> chosen;
    EventHandler handler = InstallEventHandler(popup, [this](const HitEvent& hit) {
        chosen.push_back(hit.ticketValue);
        return EventResult::Handled;
    });
    PopupKeys() { popup.setMenu(PaperMenu(), 6); }
};

TEST_F(PopupKeys, ArrowsGoToTheNextItemThatCanBeChosen)
{
    test::PressKey(popup, Qt::Key_Down);
    test::PressKey(popup, Qt::Key_Down);
    test::PressKey(popup, Qt::Key_Down);
    EXPECT_EQ(chosen, (std::vector<SInt32>{2, 5})) << "then only a submenu and an item above the maximum are left";
    test::PressKey(popup, Qt::Key_Home);
    test::PressKey(popup, Qt::Key_Up);
    test::PressKey(popup, Qt::Key_End);
    EXPECT_EQ(chosen, (std::vector<SInt32>{2, 5, 1, 5}));
}

TEST_F(PopupKeys, TypingTheBeginningOfATitleChoosesIt)
{
    test::PressKey(popup, Qt::Key_L, u"l"_s);
    EXPECT_EQ(popup.value(), 2) << "the next one with that letter";
    test::PressKey(popup, Qt::Key_E, u"e"_s);
    test::PressKey(popup, Qt::Key_D, u"d"_s);
    EXPECT_EQ(popup.text(), u"Ledger"_s);
    test::PressKey(popup, Qt::Key_X, u"x"_s);
    EXPECT_EQ(popup.text(), u"Ledger"_s);
    popup.setEnabled(false);
    EXPECT_FALSE(popup.chooseItem(1));
}

// What the open menu shows, and then the user's click in it.
void WhileOpen(const std::function<void(QMenu& menu)>& act)
{
    QTimer::singleShot(0, [act] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        act(*menu);
        menu->close();
    });
}

TEST_F(PopupKeys, ReturnPicksWhatTheKeysWentToAndOpensTheMenuOtherwise)
{
    popup.show();
    test::PressKey(popup, Qt::Key_End);
    EXPECT_TRUE(popup.isGoneThrough());
    test::PressKey(popup, Qt::Key_Return);
    EXPECT_FALSE(popup.isGoneThrough());
    EXPECT_EQ(chosen, (std::vector<SInt32>{5, 5})) << "picked without a menu";
    int opened = 0;
    WhileOpen([&](QMenu&) { ++opened; });
    test::PressKey(popup, Qt::Key_Return);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(popup.chooseItem(2));
    EXPECT_FALSE(popup.isGoneThrough()) << "a script's choice is a pick";
}

TEST_F(PopupKeys, AnOpenMenuGoesToItsEndsAndToWhatIsTyped)
{
    popup.show();
    QStringList active;
    WhileOpen([&](QMenu& menu) {
        const auto press = [&](int key, const QString& text = {}) {
            test::PressKey(menu, key, text);
            active << menu.activeAction()->text();
        };
        press(Qt::Key_End);
        EXPECT_FALSE(menu.activeAction()->menu()->isVisible()) << "the next key would go to the submenu";
        press(Qt::Key_Home);
        press(Qt::Key_L, u"l"_s);
        press(Qt::Key_E, u"e"_s);
        press(Qt::Key_D, u"d"_s);
        test::PressKey(menu, Qt::Key_Return);
    });
    popup.openMenu();
    EXPECT_EQ(active, (QStringList{u"More && Less"_s, u"Letter"_s, u"Legal"_s, u"Legal"_s, u"Ledger"_s}));
    EXPECT_EQ(chosen, std::vector<SInt32>{5});
}

TEST_F(PopupKeys, SpaceF4AndAltDownOpenTheMenu)
{
    popup.show();
    int opened = 0;
    const EventHandler enabling = InstallEventHandler(popup, [&](const MenuEnableItemsEvent&) {
        popup.changeItems([&](Menu& menu) { menu.items[1].enabled = opened++ > 0; });
        return EventResult::Handled;
    });
    WhileOpen([](QMenu& menu) {
        ASSERT_EQ(menu.actions().size(), 7);
        EXPECT_TRUE(menu.actions()[0]->isChecked()) << "the chosen item is marked";
        EXPECT_FALSE(menu.actions()[1]->isEnabled()) << "disabled when the menu was about to open";
        EXPECT_TRUE(menu.actions()[2]->isSeparator());
        EXPECT_FALSE(menu.actions()[3]->isEnabled());
        EXPECT_EQ(menu.actions()[5]->text(), u"More && Less"_s) << "titles have no mnemonics";
        EXPECT_TRUE(menu.actions()[5]->menu()->actions()[0]->isChecked());
        EXPECT_FALSE(menu.actions()[6]->isEnabled()) << "above the maximum";
        menu.actions()[4]->trigger();
    });
    test::PressKey(popup, Qt::Key_Space, u" "_s);
    EXPECT_EQ(chosen, std::vector<SInt32>{5});
    WhileOpen([](QMenu&) {});
    test::PressKey(popup, Qt::Key_F4);
    WhileOpen([](QMenu&) {});
    test::PressKey(popup, Qt::Key_Down, {}, Qt::AltModifier);
    EXPECT_EQ(opened, 3);
}

TEST_F(PopupKeys, TheHandlerMayDeleteTheControlWhileItsMenuIsOpen)
{
    auto* doomed = new PopupButton;
    doomed->setMenu(PaperMenu());
    doomed->show();
    const EventHandler deleter = InstallEventHandler(*doomed, [doomed](const HitEvent&) {
        delete doomed;
        return EventResult::Handled;
    });
    QTimer::singleShot(0, [] { qobject_cast<QMenu*>(QApplication::activePopupWidget())->actions()[1]->trigger(); });
    doomed->openMenu();
}

TEST(MenuButton, OpensByReturnAndDown)
{
    MenuButton button;
    button.setMenu(PaperMenu());
    button.show();
    int opened = 0;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        WhileOpen([&](QMenu&) { ++opened; });
        test::PressKey(button, key);
    }
    EXPECT_EQ(opened, 3);
}

TEST(MenuButton, SendsCommandsAndKeepsItsTitle)
{
    MenuButton button;
    button.setText(u"Choose Paper"_s);
    button.setMenu(PaperMenu());
    std::string calls;
    const EventHandler handler = InstallEventHandler(
        button,
        [&](const CommandEvent& command) {
            calls +=
                "command " + std::to_string(command.ticketValue) + " at " + std::to_string(command.position) + "; ";
            return EventResult::Handled;
        },
        [&](const HitEvent& hit) {
            calls += "hit " + std::to_string(hit.value) + "; ";
            return EventResult::Handled;
        });
    EXPECT_TRUE(button.chooseItem(6, 1));
    EXPECT_TRUE(button.chooseItem(1));
    EXPECT_FALSE(button.chooseItem(6)) << "a submenu's title";
    EXPECT_FALSE(button.chooseItem(3)) << "a separator";
    EXPECT_FALSE(button.chooseItem(0));
    EXPECT_FALSE(button.chooseItem(MenuPath{6, 1, 1}));
    EXPECT_FALSE(button.chooseItem(MenuPath{}));
    EXPECT_EQ(calls, "command 6 at 1; hit 1; ");
    EXPECT_EQ(button.text(), u"Choose Paper"_s);
    button.changeItems([](Menu& menu) { menu.items[5].enabled = false; });
    EXPECT_FALSE(button.chooseItem(6, 1)) << "its submenu is disabled";
}

TEST(Accessibility, ControlsThatDrawThemselvesSayWhatTheyAre)
{
    QWidget window;
    auto* label = new QLabel(u"&Paper"_s, &window);
    auto* popup = new PopupButton(&window);
    label->setBuddy(popup);
    popup->setMenu(PaperMenu());
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(popup);
    ASSERT_TRUE(accessible);
    EXPECT_EQ(accessible->role(), QAccessible::ComboBox);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"Letter"_s) << "as Qt's own: its label is a relation";
    EXPECT_EQ(accessible->text(QAccessible::Value), u"Letter"_s);
    EXPECT_EQ(accessible->relations(QAccessible::Label).size(), 1);
    EXPECT_TRUE(accessible->state().focusable);
    QAccessibleInterface* items = accessible->child(0);
    ASSERT_EQ(items->childCount(), 7);
    EXPECT_EQ(items->child(2)->role(), QAccessible::Separator);
    EXPECT_EQ(items->child(5)->child(0)->text(QAccessible::Name), u"Blue"_s) << "of a submenu";
    EXPECT_TRUE(items->child(3)->state().disabled);
    QAccessibleInterface* ledger = items->child(4);
    ledger->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(popup->value(), 5);
    EXPECT_TRUE(ledger->state().selected);
    popup->setMenu({.items = {{.title = u"A4"_s}}});
    EXPECT_FALSE(ledger->isValid()) << "its item is gone";
    EXPECT_EQ(items->childCount(), 1);

    auto* button = new MenuButton(&window);
    button->setText(u"&Choose"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->role(), QAccessible::ButtonMenu);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name), u"Choose"_s);
}

} // namespace
} // namespace kesta
