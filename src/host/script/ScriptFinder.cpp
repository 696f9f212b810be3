#include "host/script/ScriptFinder.h"

#include "toolkit/controls/Controls.h"
#include "toolkit/controls/MenuControl.h"
#include "toolkit/controls/SliderField.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTabBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

bool IsNumbered(const QWidget& widget, SInt32 number)
{
    return GetControlID(widget).number == number;
}

bool IsNamed(const QWidget& widget, const QStringList& meanings)
{
    return std::ranges::any_of(NamesOf(widget),
                               [&](const QString& name) { return meanings.contains(ComparableName(name)); });
}

// The field in a combo box, spin box or slider is its box or slider.
bool IsInnerPart(const QWidget& widget)
{
    const QWidget* around = widget.parentWidget();
    return around && (qobject_cast<const QAbstractSpinBox*>(around) || qobject_cast<const QComboBox*>(around) ||
                      qobject_cast<const SliderField*>(around));
}

void AddCells(const QAbstractItemView& view, QStringList& shown)
{
    const QAbstractItemModel* model = view.model();
    if (!model)
        return;
    for (int column = 0; column < model->columnCount(); ++column) {
        shown << model->headerData(column, Qt::Horizontal).toString();
        for (int row = 0; row < model->rowCount(); ++row)
            shown << model->index(row, column).data().toString();
    }
}

void AddTexts(const QWidget& widget, QStringList& shown)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        shown << label->text();
    else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        shown << button->text();
    else if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        shown << (field->echoMode() == QLineEdit::Normal ? field->text() : QString());
    else if (const auto* area = qobject_cast<const QPlainTextEdit*>(&widget))
        shown << area->toPlainText();
    else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
        AddCells(*view, shown);
    else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        for (int tab = 0; tab < tabs->count(); ++tab)
            shown << tabs->tabText(tab);
    else if (const auto* menu = qobject_cast<const QMenu*>(&widget))
        for (const QAction* action : menu->actions())
            shown << action->text();
}

} // namespace

QStringList ScriptTexts::meanings(const QString& text) const
{
    QStringList meanings{ComparableName(text)};
    for (const QString& translation : translations_(text))
        meanings << ComparableName(translation);
    return meanings;
}

bool ScriptTexts::matches(const QString& shown, const QString& text) const
{
    return meanings(text).contains(ComparableName(shown));
}

bool ScriptTexts::isPartOf(const QString& shown, const QString& text) const
{
    static const QRegularExpression placeholder(u"%[0-9]"_s);
    const QString whole = ComparableName(shown);
    return std::ranges::any_of(meanings(text), [&](const QString& meaning) {
        qsizetype from = 0;
        for (const QString& piece : meaning.split(placeholder)) {
            const qsizetype found = whole.indexOf(piece.trimmed(), from);
            if (found < 0)
                return false;
            from = found + piece.trimmed().size();
        }
        return !meaning.isEmpty();
    });
}

QStringList NamesOf(const QWidget& widget)
{
    QStringList names{widget.accessibleName()};
    if (const QLabel* label = LabelOf(widget))
        names << label->text();
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button && !qobject_cast<const PopupButton*>(button)) // a pop-up's text is its value
        names << button->text();
    names.removeAll(QString());
    return names;
}

FoundControl FindScriptControl(const QWidget& window, const ScriptName& name, const ScriptTexts& texts,
                               const ControlFilter& filter)
{
    const QStringList meanings = name.number ? QStringList() : texts.meanings(name.text);
    QWidget* disabled = nullptr;
    bool isHidden = false;
    bool isOfOtherKind = false;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (IsInnerPart(*widget) || !(name.number ? IsNumbered(*widget, *name.number) : IsNamed(*widget, meanings)))
            continue;
        if (!filter(*widget))
            isOfOtherKind = isOfOtherKind || widget->isVisible();
        else if (!widget->isVisible())
            isHidden = true;
        else if (widget->isEnabled())
            return {widget};
        else if (!disabled)
            disabled = widget;
    }
    if (disabled)
        return {disabled};
    const QString spelled = Spelled(name);
    if (isHidden)
        return {nullptr, u"%1 is hidden"_s.arg(spelled)};
    if (isOfOtherKind)
        return {nullptr, u"%1 can't be used that way"_s.arg(spelled)};
    return {nullptr, u"there is no %1 in \"%2\""_s.arg(spelled, window.windowTitle())};
}

FoundControl FindUsable(const QWidget& window, const ScriptName& name, const ScriptTexts& texts,
                        const ControlFilter& filter)
{
    FoundControl found = FindScriptControl(window, name, texts, filter);
    if (found.widget && !found.widget->isEnabled())
        return {nullptr, u"%1 is disabled"_s.arg(Spelled(name))};
    return found;
}

QStringList ShownTexts(const QWidget& window)
{
    QStringList shown{window.windowTitle()};
    AddTexts(window, shown);
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && !qobject_cast<const QHeaderView*>(widget))
            AddTexts(*widget, shown);
    }
    return shown;
}

std::vector<QAbstractButton*> GroupOf(const QWidget& widget)
{
    const auto* member = qobject_cast<const QAbstractButton*>(&widget);
    if (member && !(member->isCheckable() && member->autoExclusive()))
        return {};
    const QWidget* around = member ? member->parentWidget() : &widget;
    std::vector<QAbstractButton*> group;
    for (QAbstractButton* button : around->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (button->isCheckable() && button->autoExclusive())
            group.push_back(button);
    }
    return group;
}

QString Spelled(const ScriptName& name)
{
    if (name.number)
        return u"#%1"_s.arg(*name.number);
    return name.value ? u"=%1"_s.arg(*name.value) : u"\"%1\""_s.arg(name.text);
}

} // namespace kesta::host
