#include "host/script/ScriptActions.h"

#include "host/script/ScriptKinds.h"

#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

bool ShowsItem(const QWidget& widget, const ScriptName& item)
{
    const auto* popup = qobject_cast<const PopupButton*>(&widget);
    const MenuItem* selected = popup ? popup->selectedItem() : nullptr;
    if (item.value) {
        const auto* combo = qobject_cast<const HistoryComboBox*>(&widget);
        return selected ? selected->value == *item.value : combo && combo->fixedValue() == item.value;
    }
    if (popup)
        return popup->value() == *item.number;
    const auto* tabs = qobject_cast<const TabControl*>(&widget);
    return tabs && tabs->value() == *item.number;
}

QString SelectedRowTexts(const ListView& list)
{
    QStringList rows;
    for (const int row : list.selectedRows()) {
        QStringList cells;
        for (const QString& cell : list.rows()[static_cast<std::size_t>(row)].cells)
            cells << cell;
        rows << cells.join(u", "_s);
    }
    return rows.join(u'\n');
}

bool IsNoLabel(const QWidget& widget)
{
    return !IsOneOf<QLabel>(widget);
}

bool HasValue(const QWidget& widget)
{
    return IsChoosable(widget) || IsTypable(widget) || IsCheckable(widget) || IsOneOf<QLabel>(widget);
}

// A field's text counts as it is, anything else as a person reads it.
bool Shows(const QWidget& widget, const ScriptName& item, const ScriptTexts& texts)
{
    if (item.value || item.number)
        return ShowsItem(widget, item);
    const QString value = ShownValue(widget);
    if (value.isEmpty() || (IsTypable(widget) && value == item.text))
        return value == item.text;
    return texts.matches(value, item.text);
}

// What a field hides is kept out of messages.
bool HidesText(const QWidget& widget)
{
    const auto* field = qobject_cast<const QLineEdit*>(&widget);
    return field && field->echoMode() != QLineEdit::Normal;
}

} // namespace

QString ExpectText(const QWidget& window, const QString& text, const ScriptTexts& texts)
{
    const QStringList shown = ShownTexts(window);
    const bool isThere = std::ranges::any_of(shown, [&](const QString& one) { return texts.isPartOf(one, text); });
    return isThere ? QString() : u"\"%1\" does not show \"%2\""_s.arg(window.windowTitle(), text);
}

QString ShownValue(const QWidget& widget)
{
    if (const auto* popup = qobject_cast<const PopupButton*>(&widget))
        return popup->selectedItem() ? popup->selectedItem()->title : QString();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return combo->currentText();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        return field->text();
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&widget))
        return spin->text();
    if (const auto* slider = qobject_cast<const SliderField*>(&widget))
        return slider->field().text();
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(&widget))
        return area->toPlainText();
    if (const auto* tabs = qobject_cast<const TabControl*>(&widget))
        return tabs->tabText(tabs->currentIndex());
    if (const auto* list = qobject_cast<const ListView*>(&widget))
        return SelectedRowTexts(*list);
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button && button->isCheckable())
        return button->isChecked() ? u"on"_s : u"off"_s;
    for (const QAbstractButton* member : button ? std::vector<QAbstractButton*>() : GroupOf(widget)) {
        if (member->isChecked())
            return NamesOf(*member).value(0);
    }
    return {};
}

QString ExpectValue(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts)
{
    const auto [control, problem] = FindScriptControl(window, step.target, texts, HasValue);
    if (!control)
        return problem;
    if (Shows(*control, step.item, texts))
        return {};
    const QString name = Spelled(step.target);
    if (HidesText(*control))
        return u"%1 shows another text"_s.arg(name);
    return u"%1 shows \"%2\", not %3"_s.arg(name, ShownValue(*control), Spelled(step.item));
}

QString ExpectEnabled(const QWidget& window, const ScriptStep& step, const ScriptTexts& texts)
{
    const auto [control, problem] = FindScriptControl(window, step.target, texts, IsNoLabel);
    if (!control)
        return problem;
    if (control->isEnabled() == step.flag)
        return {};
    return u"%1 is %2"_s.arg(Spelled(step.target), step.flag ? u"disabled"_s : u"enabled"_s);
}

} // namespace kesta::host
