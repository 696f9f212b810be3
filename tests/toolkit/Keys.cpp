#include "toolkit/Keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace kesta::test {

void PressKey(QWidget& widget, int key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &press);
}

void PressKeyInWindow(QWidget& window, int key)
{
    PressKey(window.focusWidget() ? *window.focusWidget() : window, key);
}

void TypeKeys(QWidget& widget, const QString& text)
{
    for (const QChar c : text)
        PressKey(widget, c.toUpper().unicode(), c);
}

} // namespace kesta::test
