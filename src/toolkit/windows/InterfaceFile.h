#pragma once

#include "toolkit/controls/Controls.h"

#include <QAnyStringView>

#include <memory>

namespace kesta {

struct Bundle;

// Loads <interface file>/<window>.ui from the bundle's resources. Null when the file or a class named in it is unknown;
// the reason goes to standard error.
//
// In the file: texts (also tool tips, placeholders, titles of tabs and columns) are keys of the bundle's default table;
// the key stays on the widget as its dynamic property "localizableKey". `controlSignature` (four characters, on the
// root) and `controlNumber` make a widget a control; `menuCommand` (four characters) is a button's command; `picture` a
// picture view's or button's file; `look` see KestaStyle.h. The standard buttons OK, Cancel and Help of a button box
// carry their commands. Where no button is the default one, the one of kCommandOK becomes it.
//
// In the window: buttons send hits and commands; fields, spin fields, combo boxes, tabs and lists what their headers
// say; controls send key events; a control without an accessible name has that of its label; trailing widgets are of
// one width.
std::unique_ptr<QWidget> CreateWindowFromNib(const Bundle& bundle, QAnyStringView interfaceFile, QAnyStringView window);

} // namespace kesta
