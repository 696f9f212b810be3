#include "toolkit/controls/AccessibleField.h"

#include "toolkit/controls/AccessibleParts.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>

namespace kesta {
namespace {

class AccessibleField : public AccessibleLabelled,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface {
public:
    explicit AccessibleField(QLineEdit& field) : AccessibleLabelled(&field, QAccessible::EditableText) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? field().displayText() : AccessibleLabelled::text(kind);
    }
    void setText(QAccessible::Text kind, const QString& text) override
    {
        if (kind == QAccessible::Value)
            replaceText(0, characterCount(), text);
        else
            AccessibleLabelled::setText(kind, text);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleLabelled::state();
        state.editable = !field().isReadOnly();
        state.readOnly = field().isReadOnly();
        state.selectableText = true;
        state.passwordEdit = field().echoMode() != QLineEdit::Normal;
        state.invalid = field().property("invalid").toBool();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return AccessibleLabelled::interface_cast(type);
    }

    void selection(int index, int* start, int* end) const override
    {
        const bool has = index == 0 && field().hasSelectedText();
        *start = has ? field().selectionStart() : 0;
        *end = has ? field().selectionEnd() : 0;
    }
    int selectionCount() const override { return field().hasSelectedText(); }
    void addSelection(int start, int end) override { field().setSelection(start, end - start); }
    void removeSelection(int index) override
    {
        if (index == 0)
            field().deselect();
    }
    void setSelection(int index, int start, int end) override
    {
        if (index == 0)
            addSelection(start, end);
    }
    int cursorPosition() const override { return field().cursorPosition(); }
    void setCursorPosition(int position) override { field().setCursorPosition(position); }
    QString text(int start, int end) const override
    {
        return start < 0 || end < start ? QString() : field().displayText().mid(start, end - start);
    }
    int characterCount() const override { return static_cast<int>(field().displayText().size()); }
    QRect characterRect(int) const override { return rect(); } // a line edit tells no more
    int offsetAtPoint(const QPoint& point) const override
    {
        return field().cursorPositionAt(field().mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int end) override { addSelection(start, end); }
    QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    void deleteText(int start, int end) override { replaceText(start, end, QString()); }
    void insertText(int position, const QString& inserted) override { replaceText(position, position, inserted); }
    // As the user would: handlers may refuse it.
    void replaceText(int start, int end, const QString& replacement) override
    {
        if (field().isReadOnly() || !field().isEnabled())
            return;
        field().setSelection(start, end - start);
        if (start == end)
            field().setCursorPosition(start);
        replacement.isEmpty() ? field().del() : field().insert(replacement);
    }

private:
    QLineEdit& field() const { return static_cast<QLineEdit&>(*widget()); }
};

} // namespace

QAccessibleInterface* MakeAccessibleField(QLineEdit& field)
{
    const QWidget* around = field.parentWidget();
    if (qobject_cast<const QAbstractSpinBox*>(around) || qobject_cast<const QComboBox*>(around))
        return nullptr;
    return new AccessibleField(field);
}

} // namespace kesta
