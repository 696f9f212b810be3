#include "host/script/ScriptPlayer.h"
#include "host/script/ScriptActions.h"
#include "support/TestTexts.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/SpinField.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTemporaryDir>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

QStringList Translate(const QString& key)
{
    if (key == u"KeyOfMirror")
        return {u"Mirrored output"_s};
    if (key == u"KeyOfOn")
        return {u"Enabled"_s};
    return key == u"KeyOfRange" ? QStringList{u"Type %1 to %2 pages"_s} : QStringList();
}

// A dialog with one control of each kind, each under a label of its own.
class FakeDialog : public ScriptedDialog {
public:
    FakeDialog()
    {
        window_.setWindowTitle(u"Fake"_s);
        layout_ = new QVBoxLayout(&window_);
        popup = add(u"&Mirrored output"_s, new PopupButton);
        popup->setMenu({.items = {{.title = u"Off"_s, .value = 0},
                                  {.title = u"Enabled"_s, .value = 5},
                                  {.title = u"Gone"_s, .value = 6, .enabled = false}}});
        SetControlID(*popup, {"Fake"_code, 107});
        menu = add(u"Choose"_s, new MenuButton);
        menu->setMenu({.items = {{.title = u"Plain"_s, .command = "Pln0"_code},
                                 {.title = u"More"_s,
                                  .submenu = {{.title = u"Deep > er"_s, .command = "Dp00"_code},
                                              {.title = u"Other"_s, .command = "Oth0"_code, .value = 77}}}}});
        combo = add(u"Pages"_s, new HistoryComboBox);
        combo->setFixedEntries({{u"All"_s, 0}});
        combo->setHistory({u"1-4"_s});
        spin = add(u"Copies"_s, new SpinField);
        spin->setLimits(1, 99);
        field = add(u"Name"_s, new QLineEdit);
        secret = add(u"Secret"_s, new QLineEdit);
        secret->setEchoMode(QLineEdit::Password);
        list = add(u"Rows"_s, new ListView);
        list->setColumns({{.title = u"One"_s}});
        list->setMultipleSelection(true);
        list->setRows({{{u"first"_s}}, {{u"second"_s}}, {{u"third"_s}}});
        check = add({}, new QCheckBox(u"Draw outlines"_s));
        group = add(u"Side"_s, new QWidget);
        auto* row = new QVBoxLayout(group);
        row->addWidget(left = new QRadioButton(u"Left"_s));
        row->addWidget(right = new QRadioButton(u"Right"_s));
        off = add({}, new QPushButton(u"Can't"_s));
        off->setEnabled(false);
        hidden = add({}, new QPushButton(u"Unseen"_s));
        hidden->hide();
        ok = add({}, new QPushButton(u"OK"_s));
        cancel = add({}, new QPushButton(u"Cancel"_s));
        SetControlCommand(*ok, kCommandOK);
        SetControlCommand(*cancel, kCommandCancel);
        QObject::connect(ok, &QPushButton::clicked, [this] { EndModalLoop(window_, ModalResult::OK); });
        QObject::connect(cancel, &QPushButton::clicked, [this] {
            ended = DialogEnd::Cancelled;
            EndModalLoop(window_, ModalResult::Cancel);
        });
        events = InstallEventHandler(window_, [this](const CommandEvent& command) {
            commands.push_back(command.command);
            return EventResult::Handled;
        });
    }

    // The fault, or nothing, of the script played in this dialog.
    std::optional<QString> run(const QByteArray& script)
    {
        const DialogScript parsed = ParseDialogScript(script);
        EXPECT_EQ(parsed.error, QString());
        const ScriptPlayer player(parsed, *this, Translate);
        result = RunModalLoop(window_);
        return player.fault();
    }

    QWidget& window() override { return window_; }
    bool isBusy() const override { return busyFor > 0 && busyFor--; }
    bool syncPane(bool toControls) override
    {
        synced = toControls;
        return hasPane;
    }
    QByteArray jobSettings() const override { return "settings"; }
    QString summaryText() override { return u"summary"_s; }
    void updateSummary() override {}
    std::optional<DialogEnd> end() const override { return ended; }

    template <class Widget> Widget* add(const QString& name, Widget* widget)
    {
        if (!name.isEmpty()) {
            auto* label = new QLabel(name);
            label->setBuddy(widget);
            layout_->addWidget(label);
        }
        layout_->addWidget(widget);
        return widget;
    }

    QWidget window_;
    QVBoxLayout* layout_ = nullptr;
    PopupButton* popup = nullptr;
    MenuButton* menu = nullptr;
    HistoryComboBox* combo = nullptr;
    SpinField* spin = nullptr;
    QLineEdit* field = nullptr;
    QLineEdit* secret = nullptr;
    ListView* list = nullptr;
    QCheckBox* check = nullptr;
    QWidget* group = nullptr;
    QRadioButton* left = nullptr;
    QRadioButton* right = nullptr;
    QPushButton* off = nullptr;
    QPushButton* hidden = nullptr;
    QPushButton* ok = nullptr;
    QPushButton* cancel = nullptr;
    EventHandler events;
    std::vector<FourCharCode> commands;
    ModalResult result = ModalResult::Cancel;
    std::optional<bool> synced;
    std::optional<DialogEnd> ended;
    bool hasPane = true;
    mutable int busyFor = 0;
};

TEST(ScriptPlayer, ActsOnEveryKindOfControl)
{
    FakeDialog dialog;
    const std::optional<QString> fault = dialog.run(R"(
choose "mirrored output:" "enabled"
expect-value KeyOfMirror KeyOfOn
expect-value #107 =5
choose KeyOfMirror #1
expect-value "Mirrored Output" "Off"
choose #107 =5
choose "Choose" "More > Other"
choose "Choose" "Deep > er"
choose "Choose" =77
command Pln0
choose "Pages" "1-4"
expect-value "Pages" "1-4"
choose "Pages" =0
expect-value "Pages" =0
type "Copies" "12"
expect-value "Copies" 12
type "Name" "a\"b"
expect-value "Name" "a\"b"
check "Draw Outlines" on
check "Draw Outlines" on
expect-value "Draw Outlines" on
choose "Side" "Right"
expect-value "Side" "right"
choose "Left" "Left"
select "Rows" 1 3
expect-value "Rows" "first\nthird"
choose "Rows" "second"
expect-enabled "Can't" no
expect-enabled "OK" yes
expect "draw out"
print
)");
    EXPECT_EQ(fault.value_or(QString()), QString());
    EXPECT_EQ(dialog.result, ModalResult::OK);
    EXPECT_EQ(dialog.popup->value(), 2);
    const std::vector<FourCharCode> commands{"Oth0"_code, "Dp00"_code, "Oth0"_code, "Pln0"_code};
    EXPECT_EQ(dialog.commands, commands);
    EXPECT_EQ(dialog.spin->number(), 12);
    EXPECT_TRUE(dialog.left->isChecked());
    EXPECT_EQ(dialog.list->selectedRows(), std::vector<int>{1});
}

TEST(ScriptPlayer, SaysWhyAStepCantBeDone)
{
    const auto cases = std::to_array<std::pair<const char*, const char*>>({
        {"press Nothing", "there is no \"Nothing\" in \"Fake\""},
        {"press Unseen", "\"Unseen\" is hidden"},
        {"press \"Can't\"", "\"Can't\" is disabled"},
        {"press Copies", "\"Copies\" can't be used that way"},
        {"choose #107 Gone", "the item \"Gone\" can't be chosen now"},
        {"choose #107 =9", "there is no item =9"},
        {"choose Pages #7", "there is no item #7 that can be chosen"},
        {"choose Choose \"More > No\"", "there is no item \"More > No\""},
        {"choose #99 A", "there is no #99 in \"Fake\""},
        {"select Rows 4", "the list has 3 rows"},
        {"expect absent", "\"Fake\" does not show \"absent\""},
        {"expect-value Copies 7", "\"Copies\" shows \"1\", not \"7\""},
        {"type Secret 1234\nexpect-value Secret 4321", "\"Secret\" shows another text"},
        {"expect-enabled OK no", "\"OK\" is enabled"},
        {"command None", "no menu or button in \"Fake\" has that command"},
        {"panel Advanced", "there is no choice of panels"},
        {"dump /nowhere/file", "/nowhere/file"},
        {"screenshot /nowhere/file", "/nowhere/file can't be written"},
    });
    for (const auto& [script, reason] : cases) {
        FakeDialog dialog;
        const QString fault = dialog.run(script).value_or(QString());
        EXPECT_TRUE(fault.startsWith(u"script line "_s) && fault.contains(QLatin1StringView(reason)))
            << script << ": " << fault.toStdString();
        EXPECT_EQ(dialog.result, ModalResult::Cancel);
    }
}

TEST(ScriptPlayer, ActsInDialogsOverTheDialog)
{
    FakeDialog dialog;
    QWidget alert;
    alert.setWindowTitle(u"Alert"_s);
    auto* text = new QLabel(u"Type 4 to 10 pages"_s, &alert);
    auto* close = new QPushButton(u"Close"_s, &alert);
    text->show();
    QObject::connect(close, &QPushButton::clicked, [&] { EndModalLoop(alert, ModalResult::OK); });
    QObject::connect(dialog.check, &QCheckBox::clicked, [&] { RunModalLoop(alert); });

    const char opens[] = "check \"Draw outlines\" on\nexpect KeyOfRange\n";
    EXPECT_FALSE(dialog.run(QByteArray(opens) + "press Close\nexpect-value Copies 1\n"));
    dialog.check->setChecked(false);
    EXPECT_EQ(dialog.run(QByteArray(opens) + "print"), u"script line 3: \"Alert\" is open over the dialog"_s);
    dialog.check->setChecked(false);
    EXPECT_EQ(dialog.run(opens), u"script line 2: the script ends while \"Alert\" is open"_s);
}

TEST(ScriptPlayer, EndsAsTheScriptDoes)
{
    FakeDialog dialog;
    EXPECT_FALSE(dialog.run(""));
    EXPECT_EQ(dialog.result, ModalResult::Cancel);
    EXPECT_FALSE(dialog.run("print"));
    EXPECT_EQ(dialog.result, ModalResult::OK);
    EXPECT_EQ(dialog.run("print\nsummary"), u"script line 2: the dialog has closed"_s);

    EXPECT_FALSE(dialog.run("cancel 3"));
    EXPECT_EQ(dialog.run("cancel 0"), u"script line 1: the program would end with status 3"_s);

    dialog.busyFor = 3;
    EXPECT_FALSE(dialog.run("sync from-tickets\ncancel"));
    EXPECT_EQ(dialog.busyFor, 0);
    EXPECT_EQ(dialog.synced, true);
    dialog.hasPane = false;
    EXPECT_EQ(dialog.run("sync to-tickets"), u"script line 1: there is no pane"_s);
}

TEST(ScriptPlayer, KeysGoTheWindowSystemsWay)
{
    FakeDialog dialog;
    int next = 0;
    QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), &dialog.window_);
    QObject::connect(&shortcut, &QShortcut::activated, [&next] { ++next; });
    EXPECT_FALSE(dialog.run("type Name x\nkey Ctrl+PageDown\nkey y\nkey Backspace\nkey z\nexpect-value Name xz\n"
                            "key Return"));
    EXPECT_EQ(next, 1);
    EXPECT_EQ(dialog.result, ModalResult::OK); // Return pressed the default button

    EXPECT_FALSE(dialog.run("key Escape"));
    EXPECT_EQ(dialog.result, ModalResult::Cancel);
}

TEST(ScriptPlayer, AnOpenMenuIsWalkedByKeys)
{
    FakeDialog dialog;
    EXPECT_FALSE(dialog.run("press Choose\nexpect Plain\nkey Down\nkey Return\nexpect-enabled OK yes\n"
                            "press Choose\nexpect-value Copies 1\ncancel"));
    EXPECT_EQ(dialog.commands, std::vector<FourCharCode>{"Pln0"_code});
}

TEST(ScriptPlayer, WritesPicturesAndSettings)
{
    FakeDialog dialog;
    const QTemporaryDir folder;
    const QString picture = folder.filePath(u"a.png"_s);
    const QString dump = folder.filePath(u"a.plist"_s);
    EXPECT_FALSE(dialog.run(u"screenshot %1\ndump %2"_s.arg(picture, dump).toUtf8()));
    EXPECT_EQ(QImage(picture).size(), dialog.window_.size() * dialog.window_.devicePixelRatio());
    QFile file(dump);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "settings");
}

} // namespace
} // namespace kesta::host
