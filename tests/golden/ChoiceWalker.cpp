#include "golden/ChoiceWalker.h"

#include "host/job/JobComposition.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/windows/ModalLoop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::test {
namespace {

constexpr int kMostAnswers = 20; // of the windows that one choice opens
constexpr FourCharCode kShellSignature = "Shel"_code;
constexpr QLatin1StringView kOwnKeys("com.kesta.print.");

QString FourCharacters(FourCharCode code)
{
    QString four;
    for (int shift = 24; shift >= 0; shift -= 8)
        four += QLatin1Char(static_cast<char>(code >> shift));
    return four;
}

QString NameOf(ControlID id)
{
    return FourCharacters(id.signature) + u'#' + QString::number(id.number);
}

QString Text(const Value& value)
{
    if (const Number* number = value.number())
        return QString::number(number->as<Float64>().value_or(0), 'g', 15);
    if (const bool* truth = value.boolean())
        return *truth ? u"yes"_s : u"no"_s;
    const QString* text = value.string();
    return text ? QString(*text).replace(u'\n', u' ') : u"..."_s;
}

void AddEntries(const Dictionary& entries, const QString& before, std::map<QString, QString>& all)
{
    for (const auto& [key, value] : entries) {
        const QString name = before + (key.startsWith(kOwnKeys) ? key.mid(kOwnKeys.size()) : key);
        if (const Dictionary* inner = value.dictionary())
            AddEntries(*inner, name + u'.', all);
        else
            all[name] = Text(value);
    }
}

bool IsOfDialog(const QWidget& control)
{
    const FourCharCode command = GetControlCommand(control);
    return command == kCommandOK || command == kCommandCancel || command == kCommandHelp;
}

void AddItems(const std::vector<MenuItem>& items, const MenuPath& owner, const QString& ownerText,
              const std::function<void(const MenuPath&, const QString&, const MenuItem&)>& add)
{
    int position = 0;
    for (const MenuItem& item : items) {
        MenuPath path = owner;
        path.push_back(++position);
        const QString text = ownerText.isEmpty() ? item.title : ownerText + u" > "_s + item.title;
        if (!item.submenu.empty())
            AddItems(item.submenu, path, text, add);
        else if (!item.separator)
            add(path, text, item);
    }
}

QString ValueText(SInt32 value)
{
    return value == kUnset ? u"unset"_s : QString::number(value);
}

} // namespace

ChoiceWalker::ChoiceWalker(const PanelInterface& slots, KestaContextRef context, FakeDialog& dialog, Depth depth)
    : slots_(slots), context_(context), dialog_(dialog), depth_(depth)
{
    slots_.Sync(context_, &dialog_.session, false);
    values_ = dialog_.tickets.printSettings.values();
    ppdChoices_ = dialog_.tickets.printSettings.ppdDict();
}

ChoiceEffect ChoiceWalker::start()
{
    reset();
    slots_.Sync(context_, &dialog_.session, false);
    shown_.clear();
    observe(dialog_.pane, {});
    toRun_.clear();
    return effect(std::move(shown_));
}

std::vector<WalkedChoice> ChoiceWalker::walk(const QString& panel, const std::function<void(const WalkedChoice&)>& then)
{
    std::vector<WalkedChoice> choices;
    observe(dialog_.pane, panel);
    while (!toRun_.empty()) {
        const Trail trail = std::move(toRun_.front());
        toRun_.pop_front();
        choices.push_back(run(trail));
        if (then && choices.back().isPossible)
            then(choices.back());
        ++run_;
    }
    return choices;
}

void ChoiceWalker::reset()
{
    Ticket& settings = dialog_.tickets.printSettings;
    std::vector<QString> keys;
    for (const Ticket::Entry& entry : settings.entries())
        keys.push_back(entry.key);
    for (const QString& key : keys) {
        if (const Value* before = values_.find(key))
            settings.restore(key, *before, settings.client(key));
        else
            settings.remove(settings.client(key), key);
    }
    settings.ppdDict() = ppdChoices_;
    slots_.Sync(context_, &dialog_.session, true);
}

WalkedChoice ChoiceWalker::run(const Trail& trail)
{
    reset();
    trail_ = &trail;
    next_ = 0;
    answers_ = 0;
    isObserved_ = false;
    opened_.clear();
    shown_.clear();
    WalkedChoice choice = trail.back().choice;
    isPossible_ = true;
    SetModalIdleAction([this](QWidget& window) { answer(window); });
    while (next_ < trail.size() && isPossible_) {
        const Act& act = trail[next_++];
        isPossible_ = perform(dialog_.pane, act) && isPossible_;
    }
    if (!isObserved_)
        observe(dialog_.pane, trail.back().choice.place);
    SetModalIdleAction(nullptr);
    QCoreApplication::processEvents();
    slots_.Sync(context_, &dialog_.session, false);
    choice.isPossible = isPossible_;
    choice.opens = opened_;
    choice.effect = effect(std::move(shown_));
    trail_ = nullptr;
    return choice;
}

bool ChoiceWalker::perform(const QWidget& window, const Act& act)
{
    QWidget* control = FindControl(&window, act.control);
    if (auto* menu = qobject_cast<MenuControl*>(control))
        return menu->chooseItem(act.path);
    if (auto* list = qobject_cast<HistoryComboBox*>(control))
        return list->isEnabled() && list->chooseItem(act.path.front());
    auto* button = qobject_cast<QAbstractButton*>(control);
    if (!button || !button->isEnabled())
        return false;
    button->click();
    return true;
}

// In a window: what is left of the trail, then OK.
void ChoiceWalker::answer(QWidget& window)
{
    if (depth_ == Depth::Panel || ++answers_ > kMostAnswers) {
        EXPECT_LE(answers_, kMostAnswers) << window.objectName().toStdString() << " stays open";
        isObserved_ = true;
        opened_ = window.objectName();
        return EndModalLoop(window, ModalResult::Cancel);
    }
    if (next_ < trail_->size()) {
        const Act& act = (*trail_)[next_++];
        isPossible_ = perform(window, act) && isPossible_;
        return;
    }
    if (!isObserved_) {
        isObserved_ = true;
        const QString last = trail_->back().choice.place;
        opened_ = last.endsWith(window.objectName()) ? QString() : window.objectName();
        observe(window, opened_.isEmpty() ? last : last + u" / "_s + opened_);
    }
    if (QPushButton* ok = GetWindowDefaultButton(window); ok && ok->isEnabled())
        ok->click();
    else
        EndModalLoop(window, ModalResult::OK);
}

// Notes what the window shows, and what can be chosen in it that could not before.
void ChoiceWalker::observe(const QWidget& window, const QString& name)
{
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const ControlID id = GetControlID(*control);
        if (id == ControlID() || !control->isVisibleTo(&window) || id.signature == kShellSignature)
            continue;
        if (const auto* picture = qobject_cast<const PictureView*>(control))
            shown_[NameOf(id)] = picture->pictures().join(u'+');
        if (const auto* summary = qobject_cast<const SummaryTextView*>(control))
            shown_[NameOf(id)] = summary->text().replace(u'\n', u' ');
        if (!control->isEnabledTo(&window) || IsOfDialog(*control) || !seen_.insert(name + NameOf(id)).second)
            continue;
        for (Act& act : actsOf(*control)) {
            act.choice.place = name;
            act.choice.after = trail_ ? std::optional(run_) : std::nullopt;
            Trail trail = trail_ ? *trail_ : Trail();
            trail.push_back(std::move(act));
            toRun_.push_back(std::move(trail));
        }
    }
}

std::vector<ChoiceWalker::Act> ChoiceWalker::actsOf(const QWidget& control) const
{
    std::vector<Act> acts;
    const ControlID id = GetControlID(control);
    const QString name = ControlName(control) + u' ' + NameOf(id);
    const auto add = [&](const MenuPath& path, const QString& item, const QString& value) {
        acts.push_back({.control = id, .path = path, .choice = {.control = name, .item = item, .value = value}});
    };
    if (const auto* menu = qobject_cast<const MenuControl*>(&control)) {
        AddItems(menu->menu().items, {}, {}, [&](const MenuPath& path, const QString& text, const MenuItem& item) {
            const QString command = item.command == kNoCommand ? QString() : u' ' + FourCharacters(item.command);
            add(path, text, ValueText(item.value) + command);
        });
    } else if (const auto* list = qobject_cast<const HistoryComboBox*>(&control)) {
        for (int position = 1; position <= list->itemCount(); ++position)
            add({position}, list->itemText(position - 1), QString::number(position));
    } else if (qobject_cast<const QAbstractButton*>(&control)) {
        add({}, {}, {});
    }
    return acts;
}

ChoiceEffect ChoiceWalker::effect(std::map<QString, QString> shown)
{
    ChoiceEffect effect{.shown = std::move(shown)};
    const Ticket& settings = dialog_.tickets.printSettings;
    AddEntries(settings.values(), {}, effect.ticket);
    const host::ComposedOptions composed = host::ComposeJobOptions({.ppdChoices = settings.ppdDict()});
    EXPECT_TRUE(composed.problem.isEmpty());
    for (const host::JobOption& option : composed.options)
        effect.job[option.name] = option.value;
    return effect;
}

} // namespace kesta::test
