#include "toolkit/windows/InterfaceSetUp.h"

#include "platform/plugins/Bundle.h"
#include "toolkit/controls/AccessibleControls.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuControl.h"
#include "toolkit/controls/Mnemonics.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/TabControl.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/style/Pictures.h"
#include "toolkit/windows/ColorDialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>

#include <array>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

// Widgets of which a text property may hold a localizable key.
constexpr auto kTextProperties = std::to_array<const char*>({
    "windowTitle",
    "text",
    "title",
    "toolTip",
    "placeholderText",
    "emptyText",
    "accessibleName",
    "accessibleDescription",
});
constexpr auto kTextListProperties = std::to_array<const char*>({"titles", "columns"});

struct StandardButton {
    QDialogButtonBox::StandardButton button;
    FourCharCode command;
    const char* key;
};
constexpr auto kStandardButtons = std::to_array<StandardButton>({
    {QDialogButtonBox::Ok, kCommandOK, "OK Command"},
    {QDialogButtonBox::Cancel, kCommandCancel, "Cancel Command"},
    {QDialogButtonBox::Help, kCommandHelp, "Help Command"},
});

bool IsInnerPart(const QWidget& widget) // of a control that is made of several
{
    const QWidget* around = widget.parentWidget();
    return around && (qobject_cast<const QAbstractSpinBox*>(around) || qobject_cast<const QComboBox*>(around) ||
                      qobject_cast<const QAbstractItemView*>(around) || qobject_cast<const QTabBar*>(around) ||
                      qobject_cast<const SliderField*>(around));
}

void SetUpStandardButtons(const QDialogButtonBox& box)
{
    for (const StandardButton& standard : kStandardButtons) {
        if (QPushButton* button = box.button(standard.button)) {
            SetControlCommand(*button, standard.command);
            button->setText(QString::fromLatin1(standard.key));
        }
    }
}

// What a field holds is nobody's text but the user's.
bool IsContents(const QWidget& widget, const QByteArray& property)
{
    return property == "text" && qobject_cast<const QLineEdit*>(&widget);
}

void Localize(QWidget& widget, const Bundle& bundle)
{
    for (const char* property : kTextProperties) {
        const int index = widget.metaObject()->indexOfProperty(property);
        const QString key = index < 0 ? QString() : widget.property(property).toString();
        if (key.isEmpty() || !widget.metaObject()->property(index).isWritable() || IsContents(widget, property))
            continue;
        widget.setProperty(property, LocalizedString(bundle, key));
        if (!widget.property("localizableKey").isValid())
            widget.setProperty("localizableKey", key);
    }
    for (const char* property : kTextListProperties) {
        QStringList texts = widget.property(property).toStringList();
        if (texts.isEmpty())
            continue;
        widget.setProperty("localizableKeys", texts);
        for (QString& text : texts)
            text = LocalizedString(bundle, text);
        widget.setProperty(property, texts);
    }
}

void SetPicture(QWidget& widget, const QString& folder)
{
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    const QString picture = widget.property("picture").toString();
    if (auto* view = qobject_cast<PictureView*>(&widget))
        view->setFolder(folder);
    else if (button && !picture.isEmpty())
        button->setIcon(ButtonIcon(QDir(folder).filePath(picture)));
}

void SendButtonEvents(QAbstractButton& button)
{
    const QPointer<QAbstractButton> alive = &button;
    SendControlEvent(button, HitEvent{.value = button.isChecked()});
    if (!alive)
        return;
    if (const FourCharCode command = GetControlCommand(button); command != kNoCommand)
        SendControlEvent(button, CommandEvent{.command = command});
}

// Key presses are offered to the handlers before the control sees them.
class KeyEvents : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const KeyEvent sent{.key = key.key(), .modifiers = key.modifiers(), .text = key.text()};
        return SendControlEvent(static_cast<QWidget&>(*watched), sent) != EventResult::NotHandled;
    }
};

KeyEvents& SharedKeyEvents()
{
    static KeyEvents events;
    return events;
}

void SendEvents(QWidget& widget)
{
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    if (auto* swatch = qobject_cast<ColorSwatch*>(button))
        QObject::connect(swatch, &QAbstractButton::clicked, swatch, [swatch] { RunColorDialog(*swatch); });
    else if (button && !qobject_cast<MenuControl*>(button)) // which sends by itself
        QObject::connect(button, &QAbstractButton::clicked, button, [button] { SendButtonEvents(*button); });
    if (qobject_cast<QLineEdit*>(&widget) || qobject_cast<QComboBox*>(&widget))
        SendTextEvents(widget);
    if (GetControlID(widget).number != 0)
        widget.installEventFilter(&SharedKeyEvents());
}

void SetUpWidget(QWidget& widget, FourCharCode signature, const Bundle& bundle, const QString& pictureFolder)
{
    if (const SInt32 number = GetControlID(widget).number)
        SetControlID(widget, {signature, number});
    Localize(widget, bundle);
    SetPicture(widget, pictureFolder);
    SendEvents(widget);
}

// A label names its control, an icon button is named by its tool tip.
void NameControls(const QWidget& root)
{
    for (QLabel* label : root.findChildren<QLabel*>()) {
        if (label->buddy() && label->buddy()->accessibleName().isEmpty())
            label->buddy()->setAccessibleName(WithoutMnemonic(label->text()));
    }
    for (SliderField* slider : root.findChildren<SliderField*>())
        slider->nameParts();
    for (QAbstractButton* button : root.findChildren<QAbstractButton*>()) {
        if (button->text().isEmpty() && button->accessibleName().isEmpty() && !button->toolTip().isEmpty())
            button->setAccessibleName(button->toolTip());
    }
}

} // namespace

void SetUpWindow(QWidget& root, FourCharCode signature, const Bundle& bundle)
{
    InstallAccessibleControls();
    const QString pictureFolder = PictureFolder(bundle);
    for (QDialogButtonBox* box : root.findChildren<QDialogButtonBox*>())
        SetUpStandardButtons(*box);
    SetUpWidget(root, signature, bundle, pictureFolder);
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        if (!IsInnerPart(*widget))
            SetUpWidget(*widget, signature, bundle, pictureFolder);
    }
    NameControls(root);
    if (QPushButton* button = GetWindowDefaultButton(root))
        button->setDefault(true);
    EqualizeTrailingWidths(root);
}

} // namespace kesta
