#include "toolkit/controls/Controls.h"

#include "toolkit/controls/Mnemonics.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/controls/TextInput.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kesta {
namespace {

constexpr char kCommandProperty[] = "menuCommand";

QPushButton* ButtonOfCommand(const QWidget& window, FourCharCode command)
{
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->window() == window.window() && GetControlCommand(*button) == command)
            return button;
    }
    return nullptr;
}

QString OwnText(const QWidget& control)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control);
        button && !qobject_cast<const PopupButton*>(button))
        return WithoutMnemonic(button->text());
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return label->buddy() ? WithoutMnemonic(label->text()) : label->text();
    return {};
}

} // namespace

QWidget* FindControl(const QWidget* root, ControlID id)
{
    if (!root)
        return nullptr;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        if (IsControl(*widget) && GetControlID(*widget) == id)
            return widget;
    }
    return nullptr;
}

PopupButton* FindPopupButton(const QWidget* root, ControlID id)
{
    return FindControlAs<PopupButton>(root, id);
}

QLineEdit* FindTextField(const QWidget* root, ControlID id)
{
    return FindControlAs<QLineEdit>(root, id);
}

FourCharCode GetControlCommand(const QWidget& control)
{
    const QByteArray command = control.property(kCommandProperty).toString().toLatin1();
    return command.size() == 4 ? PackCode(command.constData()) : kNoCommand;
}

void SetControlCommand(QWidget& control, FourCharCode command)
{
    const char code[] = {static_cast<char>(command >> 24), static_cast<char>(command >> 16),
                         static_cast<char>(command >> 8), static_cast<char>(command)};
    control.setProperty(kCommandProperty, command == kNoCommand ? QString() : QString::fromLatin1(code, 4));
}

QPushButton* GetWindowDefaultButton(const QWidget& window)
{
    for (QPushButton* button : window.window()->findChildren<QPushButton*>()) {
        if (button->isDefault() && button->window() == window.window())
            return button;
    }
    return ButtonOfCommand(*window.window(), kCommandOK);
}

QPushButton* GetWindowCancelButton(const QWidget& window)
{
    return ButtonOfCommand(*window.window(), kCommandCancel);
}

QWidget* EmbedAndShowControl(std::unique_ptr<QWidget> control, QWidget& parent)
{
    QWidget* embedded = control.release();
    EmbedControl(*embedded, &parent);
    SetControlVisible(embedded, true);
    return embedded;
}

void EmbedControl(QWidget& control, QWidget* parent)
{
    if (!parent)
        return;
    control.setParent(parent);
    if (!parent->layout())
        (new QVBoxLayout(parent))->setContentsMargins(0, 0, 0, 0);
    if (control.layout())
        control.layout()->setContentsMargins(0, 0, 0, 0); // the margins are those of the window around
    parent->layout()->addWidget(&control);
}

void SetControlVisible(QWidget* control, bool visible)
{
    if (!control || control->isHidden() == !visible)
        return;
    control->setVisible(visible);
    AssignMnemonicsSoon(*control);
}

void SetControlEnabled(QWidget* control, bool enabled)
{
    if (control)
        control->setEnabled(enabled);
}

void ClickControl(QWidget* control)
{
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->click();
}

void SetControlText(QWidget* control, const QString& text)
{
    if (auto* label = qobject_cast<QLabel*>(control)) {
        QWidget* named = label->buddy();
        if (named && named->accessibleName() == WithoutMnemonic(label->text()))
            named->setAccessibleName(WithoutMnemonic(text));
        label->setTextFormat(Qt::PlainText); // it may hold names from elsewhere, which are no markup
        label->setText(text);
    } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        button->setText(text);
    } else {
        SetFieldText(control, text);
    }
    if (control)
        AssignMnemonicsSoon(*control);
}

QLabel* LabelOf(const QWidget& control)
{
    for (QLabel* label : control.window()->findChildren<QLabel*>()) {
        if (label->buddy() == &control)
            return label;
    }
    return nullptr;
}

QString ControlName(const QWidget& control)
{
    if (!control.accessibleName().isEmpty())
        return control.accessibleName();
    const QLabel* label = LabelOf(control);
    const QString own = label ? WithoutMnemonic(label->text()) : OwnText(control);
    return own.isEmpty() ? control.toolTip() : own;
}

void EqualizeTrailingWidths(QWidget& panel)
{
    std::vector<QWidget*> trailing;
    int widest = 0;
    for (QWidget* widget : panel.findChildren<QWidget*>()) {
        if (widget->property("look").toString() != QLatin1String("trailing"))
            continue;
        trailing.push_back(widget);
        widget->ensurePolished();
        widest = std::max(widest, widget->sizeHint().width());
    }
    for (QWidget* widget : trailing)
        widget->setFixedWidth(widest);
}

} // namespace kesta
