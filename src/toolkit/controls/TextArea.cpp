#include "toolkit/controls/TextArea.h"

#include "toolkit/controls/ControlEvent.h"

#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>

namespace kesta {
namespace {

// What a key press is going to type; empty when it edits or does something else.
QString TextOf(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)
        return QStringLiteral("\n");
    const QString text = key.text();
    const bool printable =
        !text.isEmpty() && std::ranges::none_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
    return printable && !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) ? text : QString();
}

} // namespace

TextArea::TextArea(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
}

bool TextArea::mayEnter(const QString& typed)
{
    const QTextCursor cursor = textCursor();
    const TextTypedEvent event{
        .typed = typed, .before = toPlainText(), .replaced = cursor.selectionEnd() - cursor.selectionStart()};
    return SendControlEvent(*this, event) == EventResult::NotHandled;
}

void TextArea::sendIfEdited(const QString& before)
{
    if (const QString after = toPlainText(); after != before)
        SendControlEvent(*this, TextEditedEvent{.text = after});
}

void TextArea::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste))
        return QPlainTextEdit::keyPressEvent(event); // asks on its own
    const QString typed = TextOf(*event);
    if (!typed.isEmpty() && !isReadOnly() && !mayEnter(typed))
        return;
    const QString before = toPlainText();
    QPlainTextEdit::keyPressEvent(event);
    sendIfEdited(before);
}

void TextArea::inputMethodEvent(QInputMethodEvent* event)
{
    if (!event->commitString().isEmpty() && !mayEnter(event->commitString()))
        event->setCommitString(QString());
    const QString before = toPlainText();
    QPlainTextEdit::inputMethodEvent(event);
    sendIfEdited(before);
}

void TextArea::insertFromMimeData(const QMimeData* source)
{
    if (!source->hasText() || !mayEnter(source->text()))
        return;
    const QString before = toPlainText();
    QPlainTextEdit::insertFromMimeData(source);
    sendIfEdited(before);
}

void TextArea::pasteText(const QString& text)
{
    if (isReadOnly() || !isEnabled())
        return;
    QMimeData pasted;
    pasted.setText(text);
    insertFromMimeData(&pasted);
}

} // namespace kesta
