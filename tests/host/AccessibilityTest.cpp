// Every window as a screen reader finds it.

#include "host/PrintDialogFixture.h"
#include "host/dialog/PrintDialogControls.h"
#include "platform/system/Notices.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/Mnemonics.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/windows/InterfaceFile.h"
#include "toolkit/windows/ModalLoop.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include <algorithm>
#include <set>

namespace kesta::host {
namespace {

using test::PrintBundle;
using namespace Qt::StringLiterals;

QAccessibleInterface* Heard(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget);
}

std::optional<QAccessible::Role> RoleOf(QWidget& widget)
{
    const auto is = [&widget]<class... Kinds>() { return (... || static_cast<bool>(qobject_cast<Kinds*>(&widget))); };
    if (is.operator()<PopupButton, QComboBox>())
        return QAccessible::ComboBox;
    if (is.operator()<MenuButton>())
        return QAccessible::ButtonMenu;
    if (is.operator()<ColorSwatch>())
        return QAccessible::ColorChooser;
    if (is.operator()<QCheckBox>())
        return QAccessible::CheckBox;
    if (is.operator()<QRadioButton>())
        return QAccessible::RadioButton;
    if (is.operator()<QAbstractSpinBox>())
        return QAccessible::SpinBox;
    if (is.operator()<QLineEdit, QPlainTextEdit>())
        return QAccessible::EditableText;
    if (is.operator()<QTabBar>())
        return QAccessible::PageTabList;
    if (is.operator()<ListView>())
        return QAccessible::Tree;
    if (const auto* button = qobject_cast<QPushButton*>(&widget); button && !button->isCheckable())
        return QAccessible::PushButton;
    return std::nullopt;
}

bool HasLabel(QAccessibleInterface& heard, QLabel* label)
{
    for (const auto& [other, relation] : heard.relations(QAccessible::Label)) {
        if (other->object() == label)
            return true;
    }
    return false;
}

bool IsHeard()
{
    const bool wished = qEnvironmentVariableIsSet("KESTA_TEST_IS_HEARD");
    for (const QDeadlineTimer end(20'000); wished && !QAccessible::isActive() && !end.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20); // until the bus has answered
    EXPECT_EQ(QAccessible::isActive(), wished) << "there is an accessibility bus";
    return wished;
}

// The changes that assistive programs are told while it lives.
class HeardChanges {
public:
    HeardChanges() { Changes().clear(); }
    ~HeardChanges() { QAccessible::installUpdateHandler(before_); }
    HeardChanges(const HeardChanges&) = delete;
    // Without an accessibility bus (see tests/accessibility) Qt tells of no change.
    static bool has(const QObject& object, QAccessible::Event change)
    {
        return !IsHeard() || Changes().contains({&object, change});
    }

private:
    using Change = std::pair<const QObject*, QAccessible::Event>;
    static std::set<Change>& Changes()
    {
        static std::set<Change> changes;
        return changes;
    }
    static void note(QAccessibleEvent* event) { Changes().insert({event->object(), event->type()}); }

    QAccessible::UpdateHandler before_ = QAccessible::installUpdateHandler(note);
};

void CheckPopup(PopupButton& popup)
{
    QAccessibleInterface& heard = *Heard(popup);
    EXPECT_EQ(heard.text(QAccessible::Value), popup.text());
    EXPECT_TRUE(heard.text(QAccessible::Name).endsWith(popup.text()));
    ASSERT_EQ(heard.childCount(), 1);
    QAccessibleInterface* list = heard.child(0);
    ASSERT_TRUE(list && list->isValid());
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->parent(), &heard);
    ASSERT_EQ(list->childCount(), popup.menu().count());
    for (int i = 0; i < list->childCount(); ++i) {
        QAccessibleInterface* item = list->child(i);
        ASSERT_TRUE(item && item->isValid());
        EXPECT_EQ(item->text(QAccessible::Name), popup.menu().items[static_cast<std::size_t>(i)].title);
        EXPECT_EQ(item->state().selected != 0, popup.value() == i + 1);
        EXPECT_EQ(list->indexOfChild(item), i);
        EXPECT_EQ(item->parent(), list);
    }
    if (popup.menu().count() < 2 || popup.maximum() < 2)
        return;
    const HeardChanges changes;
    const int value = popup.value();
    popup.setValue(value == 1 ? 2 : 1);
    EXPECT_TRUE(changes.has(popup, QAccessible::ValueChanged)) << ControlName(popup).toStdString();
    popup.setValue(value);
}

void CheckButton(QAbstractButton& button)
{
    const QString name = Heard(button)->text(QAccessible::Name);
    EXPECT_TRUE(name.contains(WithoutMnemonic(button.text())))
        << name.toStdString() << " for " << button.text().toStdString();
    if (!qobject_cast<QRadioButton*>(&button))
        return;
    QAccessibleInterface* around = Heard(button)->parent();
    while (around && around->role() != QAccessible::Grouping && around->object() != button.window())
        around = around->parent();
    ASSERT_TRUE(around && around->role() == QAccessible::Grouping) << "a group around " << name.toStdString();
    EXPECT_FALSE(around->text(QAccessible::Name).isEmpty()) << "the group of " << name.toStdString();
}

void CheckControl(QWidget& control)
{
    SCOPED_TRACE(control.metaObject()->className() + (" " + ControlName(control).toStdString()));
    QAccessibleInterface* heard = Heard(control);
    ASSERT_TRUE(heard && heard->isValid());
    EXPECT_EQ(heard->role(), RoleOf(control).value_or(heard->role()));
    EXPECT_NE(heard->role(), QAccessible::Client) << "nobody knows what it is";
    QLabel* label = LabelOf(control);
    const bool hasLabel = label && label->isVisible() && HasLabel(*heard, label);
    EXPECT_TRUE(hasLabel || (!(label && label->isVisible()) && !heard->text(QAccessible::Name).isEmpty()));
    EXPECT_EQ(heard->state().disabled != 0, !control.isEnabled());
    if (auto* popup = qobject_cast<PopupButton*>(&control))
        CheckPopup(*popup);
    else if (auto* button = qobject_cast<QAbstractButton*>(&control))
        CheckButton(*button);
    EXPECT_TRUE(heard->valueInterface() || !qobject_cast<QAbstractSpinBox*>(&control));
    EXPECT_TRUE((heard->textInterface() && heard->editableTextInterface()) || !qobject_cast<QLineEdit*>(&control));
}

void CheckTexts(QWidget& window)
{
    for (auto* label : window.findChildren<QLabel*>()) {
        if (label->window() != &window || !label->isVisible() || label->text().isEmpty())
            continue;
        const QString shown = label->buddy() ? WithoutMnemonic(label->text()) : label->text();
        const bool isElided = shown.endsWith(u'…'); // the whole text is heard
        EXPECT_TRUE(isElided || Heard(*label)->text(QAccessible::Name) == shown) << shown.toStdString();
    }
}

int Walk(QWidget& window)
{
    SCOPED_TRACE("in " + window.windowTitle().toStdString());
    QAccessibleInterface* heard = Heard(window);
    EXPECT_TRUE(heard->role() == QAccessible::Dialog || heard->role() == QAccessible::AlertMessage) << heard->role();
    EXPECT_FALSE(heard->text(QAccessible::Name).isEmpty());
    int controls = 0;
    for (auto* widget : window.findChildren<QWidget*>()) {
        const QWidget* around = widget->parentWidget();
        const bool isInner = qobject_cast<const QAbstractSpinBox*>(around) || qobject_cast<const QComboBox*>(around);
        if (widget->window() != &window || !widget->isVisible() || isInner || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        CheckControl(*widget);
        ++controls;
    }
    CheckTexts(window);
    return controls;
}

constexpr SInt32 kPanelChoice = 16;

// Opens every window that a control of the pane opens.
class Opener {
public:
    explicit Opener(QWidget& window) : window_(window) {}

    void openAll()
    {
        for (const QPointer<QWidget> control : window_.findChildren<QWidget*>()) {
            if (!control || control->window() != &window_ || !control->isVisible() || !control->isEnabled() ||
                GetControlID(*control).signature == kPrintSignature)
                continue;
            if (auto* menu = qobject_cast<MenuControl*>(control))
                chooseAll(menu, menu->menu().items, {});
            else if (auto* button = qobject_cast<QPushButton*>(control); button && !button->isCheckable())
                button->click();
        }
    }

private:
    static void chooseAll(const QPointer<MenuControl>& control, const std::vector<MenuItem> items,
                          const MenuPath& owner)
    {
        MenuPath path = owner;
        path.push_back(0);
        for (const MenuItem& item : items) {
            ++path.back();
            if (control && GetControlID(*control).number != kPanelChoice)
                item.submenu.empty() ? static_cast<void>(control->chooseItem(path))
                                     : chooseAll(control, item.submenu, path);
        }
    }

    QWidget& window_;
};

class AccessibilityTest : public test::PrintDialogTest {
protected:
    AccessibilityTest() { IsHeard(); }
    std::set<QString> walked; // titles
    void walk(QWidget& window)
    {
        if (!walked.insert(window.windowTitle()).second)
            return;
        EXPECT_GT(Walk(window), 0) << window.windowTitle().toStdString();
    }
};

TEST_F(AccessibilityTest, EveryPanelAndEveryWindowThatItOpensCanBeHeard)
{
    const PlugInOrError loaded = LoadPlugIn();
    ASSERT_TRUE(loaded.plugIn) << testing::PrintToString(loaded.error);
    ASSERT_FALSE(ChoosePanels(*loaded.plugIn, {}));
    PrintDialog dialog({.request = DialogRequest(options, PrintBundle()).request,
                        .texts = &PrintBundle(),
                        .plugIn = loaded,
                        .scripted = true});
    ASSERT_FALSE(dialog.prepare());
    int panels = 0;
    const ModalIdleAction before = SetModalIdleAction([&](QWidget& front) {
        if (&front != &dialog.window()) {
            walk(front);
            return EndModalLoop(front, ModalResult::Cancel);
        }
        const auto popups = front.findChildren<PopupButton*>();
        const auto found =
            std::ranges::find(popups, kPanelChoice, [](const auto* popup) { return GetControlID(*popup).number; });
        PopupButton* choice = found == popups.end() ? nullptr : *found;
        ASSERT_TRUE(choice);
        panels = choice->maximum();
        for (int panel = 1; panel <= panels; ++panel) {
            choice->chooseItem(panel);
            EXPECT_GT(Walk(front), 15) << panel;
            Opener(front).openAll();
        }
        EndModalLoop(front, ModalResult::Cancel);
    });
    dialog.run();
    SetModalIdleAction(before);
    EXPECT_GE(panels, 3);
    EXPECT_GE(walked.size(), 6U) << QStringList(walked.begin(), walked.end()).join(u", "_s).toStdString();
}

TEST_F(AccessibilityTest, ThePanelThatWasShownLastIsShownAgain)
{
    const auto shownThenChosen = [this](SInt32 chosen) {
        const PlugInOrError loaded = LoadPlugIn();
        EXPECT_FALSE(ChoosePanels(*loaded.plugIn, {}));
        PrintDialog dialog(
            {.request = DialogRequest(options, PrintBundle()).request, .texts = &PrintBundle(), .plugIn = loaded});
        EXPECT_FALSE(dialog.prepare());
        SInt32 shown = 0;
        const ModalIdleAction before = SetModalIdleAction([&](QWidget& window) {
            shown = ShownPanel(window);
            ShowPanel(window, chosen);
            EndModalLoop(window, ModalResult::Cancel);
        });
        dialog.run();
        SetModalIdleAction(before);
        return shown;
    };
    EXPECT_EQ(shownThenChosen(3), 1);
    EXPECT_EQ(shownThenChosen(2), 3);
    RememberDialog({.printer = {}, .panel = 77});
    EXPECT_EQ(shownThenChosen(1), 1) << "there are fewer now";
}

TEST_F(AccessibilityTest, EveryInterfaceFileCanBeHeard)
{
    const Bundle* features = LoadBundleAt(QStringLiteral(KESTA_FEATURES_BUNDLE)).bundle;
    ASSERT_TRUE(features);
    QDirIterator files(features->resourcesPath, {u"*.ui"_s}, QDir::Files, QDirIterator::Subdirectories);
    int windows = 0;
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const auto window = CreateWindowFromNib(*features, file.dir().dirName(), file.completeBaseName());
        ASSERT_TRUE(window) << file.filePath().toStdString();
        if (window->windowTitle().isEmpty()) // a part of the main window
            window->setWindowTitle(file.dir().dirName());
        window->show();
        Walk(*window);
        ++windows;
    }
    EXPECT_GT(windows, 10);
}

TEST_F(AccessibilityTest, AnAlertIsReadAndTheFieldThatItIsAboutToo)
{
    QString title;
    QString description;
    bool isInvalid = false;
    const ModalIdleAction before = SetModalIdleAction([&](QWidget& front) {
        EXPECT_EQ(Heard(front)->role(), QAccessible::AlertMessage);
        title = Heard(front)->text(QAccessible::Name);
        EXPECT_EQ(front.windowTitle(), title);
        EXPECT_EQ(Heard(front)->text(QAccessible::Description), u"Type 4 digits."_s);
        EndModalLoop(front, ModalResult::OK);
    });
    QWidget window;
    QLineEdit field(&window);
    field.setAccessibleDescription(u"4 to 10 digits"_s);
    SendTextEvents(field);
    GetNotices().show({.title = u"No passcode"_s, .message = u"Type 4 digits."_s});
    SetModalIdleAction(before);
    {
        const HeardChanges changes;
        SetInvalid(&field, true);
        EXPECT_TRUE(changes.has(field, QAccessible::StateChanged));
        EXPECT_TRUE(changes.has(field, QAccessible::DescriptionChanged));
    }
    isInvalid = Heard(field)->state().invalid;
    description = Heard(field)->text(QAccessible::Description);
    EXPECT_EQ(title, u"No passcode"_s);
    EXPECT_EQ(description, title);
    EXPECT_TRUE(isInvalid);
    SetFieldText(&field, u"1234"_s);
    EXPECT_FALSE(Heard(field)->state().invalid);
    EXPECT_EQ(Heard(field)->text(QAccessible::Description), u"4 to 10 digits"_s);
}

} // namespace
} // namespace kesta::host
