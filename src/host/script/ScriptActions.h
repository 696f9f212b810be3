#pragma once

#include "host/script/ScriptFinder.h"

namespace kesta::host {

// What a script does to the controls of a window, each as a person would: nothing on success, else the reason.

QString ShowPanel(const QWidget& window, const ScriptName& panel, const ScriptTexts& texts);
QString ChooseItem(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts);
QString SendMenuCommand(QWidget& window, FourCharCode command);
QString CheckControl(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts);
QString TypeText(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts);
QString PressButton(const QWidget& window, const ScriptName& button, const ScriptTexts& texts);
QString SelectRows(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts);
QString ExpectText(const QWidget& window, const QString& text, const ScriptTexts& texts);
QString ExpectValue(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts);
QString ExpectEnabled(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts);

// Through the window system, so that shortcuts, open menus and the focus count.
QString PressKey(QWidget& window, const ScriptKey& key);

// What a control shows: a pop-up's item, a field's text, "on" or "off", selected rows one a line. Null for a widget
// without a value.
QString ShownValue(const QWidget& widget);

} // namespace kesta::host
