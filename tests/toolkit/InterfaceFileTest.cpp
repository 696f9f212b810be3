#include "toolkit/windows/InterfaceFile.h"

#include "gallery/GalleryWindow.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/Keys.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/Mnemonics.h"
#include "toolkit/controls/TabControl.h"
#include "toolkit/controls/TextArea.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

#include <set>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

using gallery::kGallery;

class GalleryTest : public testing::Test {
protected:
    std::unique_ptr<QWidget> window = gallery::MakeGalleryWindow();
    std::unique_ptr<QWidget> controls = gallery::MakeGalleryControls();
    template <class Widget> Widget& get(const std::unique_ptr<QWidget>& root, SInt32 number)
    {
        return *FindControlAs<Widget>(root.get(), {kGallery, number});
    }
};

TEST_F(GalleryTest, TrailingWidgetsAreAsWideAsTheWidest)
{
    std::set<int> widths;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->property("look").toString() == u"trailing"_s)
            widths.insert(widget->minimumWidth());
    }
    ASSERT_EQ(widths.size(), 1U);
    EXPECT_EQ(*widths.begin(), get<QWidget>(window, 107).sizeHint().width());
}

TEST_F(GalleryTest, ButtonsFieldsTabsAndListsSendWhatTheUserDoes)
{
    QStringList events;
    const EventHandler handler = InstallEventHandler(
        *controls,
        [&](const HitEvent& hit) {
            events << u"hit %1 %2"_s.arg(hit.control.number).arg(hit.value);
            return EventResult::NotHandled;
        },
        [&](const CommandEvent& command) {
            events << u"command %1 %2"_s.arg(command.control.number).arg(command.command == "Wlnk"_code);
            return EventResult::NotHandled;
        },
        [&](const TextEditedEvent& edited) {
            events << u"text %1 %2"_s.arg(edited.control.number).arg(edited.text);
            return EventResult::NotHandled;
        },
        [&](const ItemChosenEvent& item) {
            events << u"item %1 %2"_s.arg(item.control.number).arg(item.position);
            return EventResult::NotHandled;
        });
    ClickControl(&get<QWidget>(controls, 28));
    ClickControl(&get<QWidget>(controls, 29));
    EXPECT_TRUE(get<TabControl>(controls, 20).chooseTab(3));
    EXPECT_FALSE(get<TabControl>(controls, 20).chooseTab(4));
    get<TabControl>(controls, 20).setValue(1);
    get<ListView>(controls, 23).selectRowsAsUser({0, 2});
    get<ListView>(controls, 23).setSelectedRows({});
    get<QLineEdit>(controls, 24).insert(u"5"_s);
    get<ColorSwatch>(controls, 27).chooseColor(Qt::red);
    get<ColorSwatch>(controls, 27).chooseColor(Qt::red);
    get<ColorSwatch>(controls, 27).setColor(Qt::blue);
    ClickControl(&get<QWidget>(controls, 22)); // disabled
    EXPECT_EQ(events, (QStringList{u"hit 28 0"_s, u"command 28 1"_s, u"hit 29 0"_s, u"hit 20 3"_s, u"hit 23 2"_s,
                                   u"text 24 12345"_s, u"hit 27 0"_s}));
}

TEST_F(GalleryTest, HandlersSeeKeysBeforeTheControl)
{
    auto& notes = get<TextArea>(controls, 34);
    std::vector<int> keys;
    const EventHandler handler = InstallEventHandler(notes, [&](const KeyEvent& key) {
        keys.push_back(key.key);
        return key.key == Qt::Key_Return ? EventResult::Handled : EventResult::NotHandled;
    });
    for (const auto& [key, text] : {std::pair{Qt::Key_A, u"a"_s}, std::pair{Qt::Key_Return, u"\r"_s}}) {
        test::PressKey(notes, key, text);
    }
    EXPECT_EQ(keys, (std::vector<int>{Qt::Key_A, Qt::Key_Return}));
    EXPECT_EQ(notes.toPlainText(), u"a"_s);
}

TEST_F(GalleryTest, ListsSortByTheLanguageAndKeepTheirRowNumbers)
{
    auto& list = get<ListView>(controls, 23);
    list.setRows({{{u"page 10"_s}, 1}, {{u"Page 9"_s}, 2}, {{u"åland"_s}, 3}, {{u"Zebra"_s}, 4}});
    list.setSelectedRows({0, 1, 2, 3});
    EXPECT_EQ(list.selectedRows(), (std::vector{0, 1, 2, 3}));
    list.sortBy(0, false);
    EXPECT_EQ(list.selectedRows(), (std::vector{2, 1, 0, 3})) << "selected rows are told from top to bottom";
    list.setRows({});
    EXPECT_TRUE(list.selectedRows().empty());
}

QChar MnemonicOf(const QString& text)
{
    const qsizetype mark = text.indexOf(u'&');
    return mark < 0 ? QChar() : text[mark + 1].toLower();
}

TEST_F(GalleryTest, MnemonicsAreUniqueInAWindowAndThoseOfTranslatorsStay)
{
    auto* help = window->findChild<QPushButton*>(u"help"_s);
    help->setText(u"Hel&p"_s);
    AssignMnemonics(*window);
    AssignMnemonics(*window);
    EXPECT_EQ(help->text(), u"Hel&p"_s);
    std::multiset<QChar> letters;
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (label->buddy())
            letters.insert(MnemonicOf(label->text()));
    }
    for (const QPushButton* button : window->findChildren<QPushButton*>()) {
        if (!button->text().isEmpty())
            letters.insert(MnemonicOf(button->text()));
    }
    EXPECT_FALSE(letters.contains(QChar()));
    EXPECT_EQ(letters.size(), std::set<QChar>(letters.begin(), letters.end()).size());
    EXPECT_NE(MnemonicOf(LabelOf(get<QWidget>(window, 1))->text()), u'p');
    EXPECT_EQ(WithoutMnemonic(LabelOf(get<QWidget>(window, 1))->text()), u"Printer"_s);
    EXPECT_EQ(ControlName(get<QWidget>(window, 1)), u"Printer"_s);
}

TEST(Mnemonics, LeavesAmpersandsThatAreMeant)
{
    EXPECT_EQ(WithoutMnemonic(u"Fish && &Chips"_s), u"Fish & Chips"_s);
    EXPECT_EQ(WithoutMnemonic(u"This & that"_s), u"This & that"_s);
    EXPECT_EQ(WithoutMnemonic(u"End&"_s), u"End&"_s);
}

TEST(InterfaceFile, SaysWhatIsWrongWithAFile)
{
    QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"X"_s);
    const Bundle bundle{.resourcesPath = folder.path()};
    const auto load = [&](const char* contents) {
        QFile file(folder.filePath(u"X/W.ui"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.close();
        testing::internal::CaptureStderr();
        const bool loaded = CreateWindowFromNib(bundle, "X", "W") != nullptr;
        return (loaded ? "loaded " : "") + testing::internal::GetCapturedStderr();
    };
    EXPECT_NE(load(R"(<ui version="4.0"><widget class="NoSuchWidget" name="W"/></ui>)").find("NoSuchWidget"),
              std::string::npos);
    EXPECT_NE(load("not an interface file"), "");
    EXPECT_EQ(load(R"(<ui version="4.0"><widget class="QWidget" name="W"/></ui>)"), "loaded ");
    testing::internal::CaptureStderr();
    EXPECT_EQ(CreateWindowFromNib(bundle, "X", "Missing"), nullptr);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("Missing.ui"), std::string::npos);
}

TEST_F(GalleryTest, ReturnAndEscapePressTheWindowsButtons)
{
    QStringList pressed;
    const EventHandler handler = InstallEventHandler(*window, [&](const CommandEvent& command) {
        const bool ok = command.command == kCommandOK;
        pressed << (ok ? u"ok"_s : command.command == kCommandHelp ? u"help"_s : u"cancel"_s);
        if (command.command == kCommandCancel)
            EndModalLoop(*window, ModalResult::Cancel);
        return EventResult::Handled;
    });
    test::ModalUser user;
    user.then([&](QWidget& front) {
        get<QWidget>(window, 2).setFocus();
        test::PressKeyInWindow(front, Qt::Key_Return);
        window->findChild<QPushButton*>(u"help"_s)->setFocus();
        test::PressKeyInWindow(front, Qt::Key_Return);
        EXPECT_EQ(FrontModalWindow(), &front);
        test::PressKeyInWindow(front, Qt::Key_Escape);
    });
    EXPECT_EQ(RunModalLoop(*window), ModalResult::Cancel);
    EXPECT_EQ(pressed, (QStringList{u"ok"_s, u"help"_s, u"cancel"_s}));
    EXPECT_EQ(FrontModalWindow(), nullptr);
}

TEST(ModalLoop, EndsWhenItsWindowIsDeleted)
{
    auto* window = new QWidget;
    test::ModalUser user;
    user.then([](QWidget& front) { delete &front; });
    EXPECT_EQ(RunModalLoop(*window), ModalResult::Cancel);
}

} // namespace
} // namespace kesta
