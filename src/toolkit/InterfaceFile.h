#pragma once

#include "toolkit/ControlEvent.h"
#include "toolkit/PopupButton.h"

#include <QAnyStringView>
#include <QLineEdit>

#include <memory>

namespace kesta {

struct Bundle;

// The commands of the buttons that end or explain a dialog.
inline constexpr FourCharCode kCommandOK = "OKAY"_code;
inline constexpr FourCharCode kCommandCancel = "CNCL"_code;
inline constexpr FourCharCode kCommandHelp = "HELP"_code;

// Loads <interface file>/<window>.ui from the bundle's resources with its texts, which stand there as localizable
// keys. Buttons send hits and, where they carry a command, the command. Null when the file or a class named in it is
// unknown; the reason goes to standard error.
std::unique_ptr<QWidget> CreateWindowFromNib(const Bundle& bundle, QAnyStringView interfaceFile, QAnyStringView window);

// Null when there is no such control below the root, or no root: interface files may lack parts, and everything that
// takes a control by pointer accepts null.
QWidget* FindControl(const QWidget* root, ControlID id);
PopupButton* FindPopupButton(const QWidget* root, ControlID id);
QLineEdit* FindTextField(const QWidget* root, ControlID id);

QWidget* EmbedAndShowControl(std::unique_ptr<QWidget> control, QWidget& parent); // the parent owns it from here on
void EmbedControl(QWidget& control, QWidget* parent);
void SetControlVisible(QWidget* control, bool visible);
void SetControlEnabled(QWidget* control, bool enabled);
void ClickControl(QWidget* control); // as the user would: nothing when it is disabled

} // namespace kesta
