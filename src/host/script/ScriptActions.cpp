#include "host/script/ScriptActions.h"

#include "host/script/ScriptKinds.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWindow>

using namespace Qt::StringLiterals;

QT_BEGIN_NAMESPACE
// How Qt's own test library types; the window system's way for a key press, shortcuts and open menus included.
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
                                    const QString& text = QString(), bool isRepeat = false, ushort count = 1);
QT_END_NAMESPACE

namespace kesta::host {
namespace {

// Sends the key to the widget that has the focus in the control.
void TypeKey(QWidget& field, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&field, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&field, &release);
}

void SelectAllText(QWidget& field)
{
    if (auto* line = qobject_cast<QLineEdit*>(&field))
        line->selectAll();
    else if (auto* spin = qobject_cast<QAbstractSpinBox*>(&field))
        spin->selectAll();
    else if (auto* area = qobject_cast<QPlainTextEdit*>(&field))
        area->selectAll();
}

} // namespace

QString CheckControl(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts)
{
    const auto [control, problem] = FindUsable(window, step.target, texts, IsCheckable);
    if (!control)
        return problem;
    auto* button = qobject_cast<QAbstractButton*>(control);
    if (button->isChecked() == step.flag)
        return {};
    button->click();
    return {};
}

QString TypeText(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts)
{
    const auto [control, problem] = FindUsable(window, step.target, texts, IsTypable);
    if (!control)
        return problem;
    const auto* combo = qobject_cast<QComboBox*>(control);
    if (combo && !combo->isEditable())
        return u"%1 can't be typed into"_s.arg(Spelled(step.target));
    const auto* slider = qobject_cast<SliderField*>(control);
    const QPointer<QWidget> field = combo ? combo->lineEdit() : slider ? &slider->field() : control;
    control->setFocus(Qt::TabFocusReason);
    SelectAllText(*field);
    if (step.text.isEmpty())
        TypeKey(*field, Qt::Key_Delete, {});
    for (const QChar character : step.text) {
        if (!field)
            return u"the field went away while it was typed into"_s;
        TypeKey(*field, character == u'\n' ? int{Qt::Key_Return} : int{character.toUpper().unicode()}, character);
    }
    return {};
}

QString PressButton(const QWidget& window, const ScriptName& button, const ScriptTexts& texts)
{
    const auto [control, problem] = FindUsable(window, button, texts, IsButton);
    if (!control)
        return problem;
    ClickControl(control);
    return {};
}

QString SelectRows(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts)
{
    const auto [control, problem] = FindUsable(window, step.target, texts, IsList);
    if (!control)
        return problem;
    auto* list = qobject_cast<ListView*>(control);
    std::vector<int> rows;
    for (const SInt32 row : step.numbers) {
        if (row > static_cast<SInt32>(list->rows().size()))
            return u"the list has %1 rows"_s.arg(list->rows().size());
        rows.push_back(row - 1);
    }
    if (rows.size() > 1 && !list->hasMultipleSelection())
        return u"the list lets one row be selected at a time"_s;
    list->selectRowsAsUser(rows);
    return {};
}

QString PressKey(QWidget& window, const ScriptKey& key)
{
    QWindow* native = window.windowHandle();
    if (!native)
        return u"the window is not on the screen"_s;
    const auto modifiers = Qt::KeyboardModifiers::fromInt(key.modifiers);
    const QPointer<QWindow> alive = native;
    qt_handleKeyEvent(native, QEvent::KeyPress, key.key, modifiers, key.text);
    if (alive)
        qt_handleKeyEvent(native, QEvent::KeyRelease, key.key, modifiers, key.text);
    return {};
}

} // namespace kesta::host
