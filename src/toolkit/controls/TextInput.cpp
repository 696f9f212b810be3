#include "toolkit/controls/TextInput.h"

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/TextArea.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalBlocker>
#include <QStyle>
#include <QTimer>
#include <QValidator>

#include <algorithm>

namespace kesta {
namespace {

constexpr int kMarkRoom = 24; // points for the mark inside the trailing edge of an invalid field

// What a user's change put in between the beginning and the end that stayed.
TextTypedEvent TypedBetween(const QString& before, const QString& after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype prefix = 0;
    while (prefix < shorter && before[prefix] == after[prefix])
        ++prefix;
    qsizetype suffix = 0;
    while (suffix < shorter - prefix && before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
        ++suffix;
    return {.typed = after.sliced(prefix, after.size() - prefix - suffix),
            .before = before,
            .replaced = before.size() - prefix - suffix};
}

// A validator sees a change however it is made, and refusing it takes all of it back. Text that code sets is let in:
// setting a text empties the field's undo history, a user's change never does.
class TextGate : public QValidator {
public:
    TextGate(QLineEdit& field, QWidget& control) : QValidator(&field), field_(field), control_(control)
    {
        before_ = field.text();
        QObject::connect(&field, &QLineEdit::textChanged, this, [this](const QString& text) { before_ = text; });
        QObject::connect(&field, &QLineEdit::textEdited, this,
                         [this](const QString& text) { SendControlEvent(control_, TextEditedEvent{.text = text}); });
    }

    State validate(QString& text, int&) const override
    {
        if (!field_.isUndoAvailable() || text == before_) {
            before_ = text;
            return Acceptable;
        }
        const EventResult result = SendControlEvent(control_, TypedBetween(before_, text));
        return result == EventResult::NotHandled ? Acceptable : Invalid;
    }

private:
    QLineEdit& field_;
    QWidget& control_;
    mutable QString before_;
};

QLineEdit* LineEditOf(const QWidget* field)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(field))
        return combo->lineEdit();
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(field))
        return spin->findChild<QLineEdit*>();
    return const_cast<QLineEdit*>(qobject_cast<const QLineEdit*>(field));
}

QString& LastProblem()
{
    static QString problem;
    return problem;
}

void DescribeInvalid(QWidget& field, bool invalid)
{
    constexpr char kUsual[] = "kestaUsualDescription";
    if (invalid) {
        field.setProperty(kUsual, field.accessibleDescription());
        if (!LastProblem().isEmpty())
            field.setAccessibleDescription(LastProblem());
    } else {
        field.setAccessibleDescription(field.property(kUsual).toString());
    }
    QAccessible::State changed;
    changed.invalid = true;
    QAccessibleStateChangeEvent event(&field, changed);
    QAccessible::updateAccessibility(&event);
}

void ShowInvalid(QWidget& field, bool invalid)
{
    field.setProperty("invalid", invalid);
    DescribeInvalid(field, invalid);
    const int room = invalid ? kMarkRoom : 0;
    QLineEdit* line = LineEditOf(&field);
    if (line && !qobject_cast<QAbstractSpinBox*>(&field)) // there it stands over the arrows
        line->isRightToLeft() ? line->setTextMargins(room, 0, 0, 0) : line->setTextMargins(0, 0, room, 0);
    field.update();
}

} // namespace

void SendTextEvents(QWidget& field)
{
    QLineEdit* line = LineEditOf(&field);
    if (line && !dynamic_cast<const TextGate*>(line->validator()))
        line->setValidator(new TextGate(*line, field));
}

QString FieldText(const QWidget* field)
{
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(field))
        return area->toPlainText();
    const QLineEdit* line = LineEditOf(field);
    return line ? line->text() : QString();
}

void SetFieldText(QWidget* field, const QString& text)
{
    if (auto* area = qobject_cast<QPlainTextEdit*>(field))
        area->setPlainText(text);
    else if (QLineEdit* line = LineEditOf(field))
        line->setText(text);
}

void TypeIntoField(QWidget* field, const QString& text)
{
    if (auto* area = qobject_cast<TextArea*>(field))
        area->pasteText(text);
    else if (QLineEdit* line = LineEditOf(field); line && !line->isReadOnly() && line->isEnabled())
        line->insert(text);
}

void RememberProblem(const QString& text)
{
    LastProblem() = text;
    QTimer::singleShot(0, [] { LastProblem().clear(); });
}

void MarkInvalid(QWidget* field, bool invalid)
{
    if (field && field->property("invalid").toBool() != invalid)
        ShowInvalid(*field, invalid);
}

void SetInvalid(QWidget* field, bool invalid)
{
    if (!field || field->property("invalid").toBool() == invalid)
        return;
    ShowInvalid(*field, invalid);
    if (!invalid)
        return;
    if (QLineEdit* before = LineEditOf(field->window()->focusWidget()))
        before
            ->deselect(); // behind an alert the window is not active and the field is not told that it loses the focus
    field->setFocus();
    const auto clear = [field] { SetInvalid(field, false); };
    if (QLineEdit* line = LineEditOf(field)) {
        line->selectAll();
        QObject::connect(line, &QLineEdit::textChanged, field, clear, Qt::SingleShotConnection);
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(field)) {
        area->selectAll();
        QObject::connect(area, &QPlainTextEdit::textChanged, field, clear, Qt::SingleShotConnection);
    }
}

} // namespace kesta
