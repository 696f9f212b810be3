#pragma once

#include <QString>

class QWidget;

namespace kesta {

// Makes a line edit, or an editable combo box, send text typed and text edited events for every way in which a user
// changes its text. Interface files do it for theirs; doing it again changes nothing. The field's validator is taken by
// it.
void SendTextEvents(QWidget& field);

// The text of a line edit, combo box or text area; null for anything else.
QString FieldText(const QWidget* field);
// Sends nothing; nothing happens with anything else.
void SetFieldText(QWidget* field, const QString& text);
// Puts the text in place of the selection as a person's paste would, so that handlers may refuse it.
void TypeIntoField(QWidget* field, const QString& text);

// Sets or takes away the ring and mark of a field whose contents can't be used. Setting puts the focus into the field
// and selects its text; the next edit takes the mark away. As long as it is set, the field's accessible description is
// what the alert before it said.
void SetInvalid(QWidget* field, bool invalid);
// Ring and mark alone: the focus stays, and the next edit does not take them away.
void MarkInvalid(QWidget* field, bool invalid);
// What an alert says that was just closed. Forgotten when the code that raised it has ended.
void RememberProblem(const QString& text);

} // namespace kesta
