#pragma once

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/PopupButton.h"

#include <QLineEdit>

#include <memory>

class QLabel;
class QPushButton;

namespace kesta {

// The commands of the buttons that end or explain a dialog, and of those that go through the panels.
inline constexpr FourCharCode kCommandOK = "OKAY"_code;
inline constexpr FourCharCode kCommandCancel = "CNCL"_code;
inline constexpr FourCharCode kCommandHelp = "HELP"_code;
inline constexpr FourCharCode kCommandPanelUp = "PnUp"_code;
inline constexpr FourCharCode kCommandPanelDown = "PnDn"_code;

// Null when there is no such control below the root, or no root: interface files may lack parts, and everything that
// takes a control by pointer accepts null.
QWidget* FindControl(const QWidget* root, ControlID id);
PopupButton* FindPopupButton(const QWidget* root, ControlID id);
QLineEdit* FindTextField(const QWidget* root, ControlID id);
// Of any class: FindControlAs<SpinField>(window, {kSignature, kGutter}). Null also when the control is of another one.
template <class Widget> Widget* FindControlAs(const QWidget* root, ControlID id)
{
    return qobject_cast<Widget*>(FindControl(root, id));
}

// The button that Return presses, and the one that Escape presses; null without one.
QPushButton* GetWindowDefaultButton(const QWidget& window);
QPushButton* GetWindowCancelButton(const QWidget& window);
FourCharCode GetControlCommand(const QWidget& control);
void SetControlCommand(QWidget& control, FourCharCode command);

QWidget* EmbedAndShowControl(std::unique_ptr<QWidget> control, QWidget& parent); // the parent owns it from here on
void EmbedControl(QWidget& control, QWidget* parent);
void SetControlVisible(QWidget* control, bool visible);
void SetControlEnabled(QWidget* control, bool enabled);
void ClickControl(QWidget* control); // as the user would: nothing when it is disabled

// Sets the text of a label, button or text view. A label's control is renamed with it.
void SetControlText(QWidget* control, const QString& text);
// What a person reads or hears as the control's name: accessible name, label or own text, without mnemonic marks.
QString ControlName(const QWidget& control);
// The label whose buddy the control is, or null.
QLabel* LabelOf(const QWidget& control);

// Gives all widgets of the look "trailing" in the panel the width of the widest; a plain widget of that look keeps the
// room in a row without one.
void EqualizeTrailingWidths(QWidget& panel);

} // namespace kesta
