#include "toolkit/windows/WindowSummary.h"

#include "platform/plugins/Sentence.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/SummaryTextView.h"

#include <QPointer>
#include <QVariant>

#include <map>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr char kPlace[] = "summaryPlace";
constexpr char kDefault[] = "summaryDefault";
constexpr char kSentence[] = "summarySentence"; // about a pop-up's item
constexpr char kPhrases[] = "summaryPhrases";

void Mark(QWidget* control, SInt32 place, const QVariant& shownByDefault)
{
    if (!control)
        return;
    control->setProperty(kPlace, place);
    control->setProperty(kDefault, shownByDefault);
}

bool IsHiddenItself(const QWidget& control)
{
    return control.testAttribute(Qt::WA_WState_ExplicitShowHide) && control.testAttribute(Qt::WA_WState_Hidden);
}

QStringList FactsOf(const PopupButton& popup)
{
    const MenuItem* item = popup.selectedItem();
    if (!item || (!item->notOffered && item->value == popup.property(kDefault).toInt()))
        return {};
    const QString sentence = popup.property(kSentence).toString();
    const QString title = item->notOffered ? WithCaution(item->title) : item->title;
    const bool isNamed = sentence.contains(u"%1"_s) || (!sentence.isEmpty() && !item->notOffered);
    return {isNamed ? FormatText(sentence, {title}) : title};
}

// A fact may be a name from a settings file.
QString Cut(const QString& fact)
{
    constexpr qsizetype kLongestFact = 1000; // UTF-16 units
    if (fact.size() <= kLongestFact)
        return fact;
    const bool splitsPair = fact[kLongestFact - 1].isHighSurrogate();
    return fact.first(kLongestFact - (splitsPair ? 1 : 0)) + u'\u2026';
}

QStringList FactsOf(const SummaryTextView& view)
{
    const QStringList byDefault = SummaryFacts(view.property(kDefault).toString());
    QStringList facts = SummaryFacts(view.text());
    facts.removeIf([&](const QString& fact) { return byDefault.contains(fact); });
    return facts;
}

QStringList NotOfferedFacts(const MenuControl& menu)
{
    QStringList facts;
    for (const MenuPath& path : menu.shownNotOffered()) {
        if (const MenuItem* item = menu.itemAt(path))
            facts << WithCaution(item->title);
    }
    return facts;
}

void AddNotOffered(const MenuControl& menu, std::vector<NotOffered>& found)
{
    for (const MenuPath& path : menu.shownNotOffered()) {
        const MenuItem* item = menu.itemAt(path);
        const MenuItem* instead = menu.itemAt(menu.insteadOf(path));
        if (item)
            found.push_back({ControlName(menu), item->title, instead ? instead->title : QString()});
    }
}

// A number that a field shows beyond its limits.
QStringList FieldFacts(const QWidget& control)
{
    const auto* field = qobject_cast<const SpinField*>(&control);
    if (!field || !field->isBeyondLimits())
        return {};
    return {WithCaution(ControlName(*field) + u' ' + field->text())};
}

} // namespace

void ShowInSummary(PopupButton* popup, SInt32 place, SInt32 defaultValue)
{
    Mark(popup, place, defaultValue);
}

void ShowInSummary(QWidget* summaryTextView, SInt32 place, const QString& defaultText)
{
    Mark(summaryTextView, place, defaultText);
}

void ShowInSummary(PopupButton* popup, SInt32 place, SInt32 defaultValue, const QString& sentence)
{
    Mark(popup, place, defaultValue);
    if (popup)
        popup->setProperty(kSentence, sentence);
}

void SetSummaryPhrases(QWidget& control, SInt32 place, const QStringList& phrases)
{
    Mark(&control, place, {});
    control.setProperty(kPhrases, phrases);
}

QStringList SummaryFacts(const QString& summary)
{
    QStringList facts;
    for (const QString& line : summary.split(u'\n')) {
        const QString fact = line.startsWith(u"- "_s) ? line.sliced(2).trimmed() : line.trimmed();
        if (!fact.isEmpty())
            facts << Cut(fact);
    }
    return facts;
}

std::vector<NotOffered> FindNotOffered(const QWidget& window)
{
    std::vector<NotOffered> found;
    for (const MenuControl* control : window.findChildren<MenuControl*>())
        AddNotOffered(*control, found);
    for (const SpinField* field : window.findChildren<SpinField*>()) {
        if (field->isBeyondLimits())
            found.push_back({ControlName(*field), field->text(), field->nearestText()});
    }
    return found;
}

void ReplaceNotOffered(QWidget& window)
{
    for (const QPointer<MenuControl> control : window.findChildren<MenuControl*>()) {
        if (control)
            control->chooseInstead();
    }
    for (const QPointer<SpinField> field : window.findChildren<SpinField*>()) {
        if (field && field->isBeyondLimits())
            field->takeNearest();
    }
}

QStringList WindowSummary(const QWidget& window)
{
    std::map<SInt32, QStringList> found, phrasesOf;
    QStringList unplaced;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const QVariant place = control->property(kPlace);
        const auto* menu = qobject_cast<const MenuControl*>(control);
        const QStringList notOffered = menu ? NotOfferedFacts(*menu) : QStringList(); // told in any case
        if (!place.isValid())
            unplaced += notOffered + FieldFacts(*control);
        if (!place.isValid() || (IsHiddenItself(*control) && notOffered.isEmpty()))
            continue;
        if (const QVariant phrases = control->property(kPhrases); phrases.isValid())
            phrasesOf[place.toInt()] += phrases.toStringList();
        else if (const auto* popup = qobject_cast<const PopupButton*>(control))
            found[place.toInt()] += FactsOf(*popup);
        else if (const auto* view = qobject_cast<const SummaryTextView*>(control))
            found[place.toInt()] += FactsOf(*view);
    }
    for (const auto& [place, facts] : found) {
        unplaced.removeIf([&](const QString& fact) { return facts.contains(fact); });
        if (!facts.isEmpty())
            phrasesOf[place].prepend(facts.join(u", "_s));
    }
    QStringList summary;
    for (const auto& [place, phrases] : phrasesOf)
        summary += phrases;
    return summary + unplaced;
}

} // namespace kesta
