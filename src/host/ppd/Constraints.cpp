#include "host/ppd/Constraints.h"

#include "host/ppd/ConstraintRules.h"

#include <algorithm>
#include <array>
#include <map>

namespace kesta::host {
namespace {

QString Text(const char* text, const char* keyword)
{
    return QString::fromUtf8(text[0] ? text : keyword);
}

QString OptionText(const ppd_option_t& option)
{
    return Text(option.text, option.keyword);
}

// The option and its current choice in the printer's own words.
Message State(const char* key, ppd_file_t* ppd, const ppd_option_t& option)
{
    const ppd_choice_t* choice = ppdFindMarkedChoice(ppd, option.keyword);
    return Say(key, OptionText(option), choice ? Text(choice->text, choice->choice) : QString());
}

// "One and another and a third."
Message Joined(const std::vector<Message>& parts)
{
    Message joined = parts.empty() ? Message() : parts.front();
    for (std::size_t i = 1; i < parts.size(); ++i)
        joined = Say("And", joined, parts[i]);
    return joined;
}

// "Folding "C fold" and Staple "Upper left" can't be used together.", or, with an accessory,
// "Folding "C fold" can't be used while Finisher is "Catch tray"."
Message ConflictSentence(const ConstraintRules& rules, const ConstraintRule& rule)
{
    std::vector<Message> settings;
    std::vector<Message> accessories;
    for (const ConstraintTerm& term : rule) {
        const ppd_option_t& option = *term.option;
        if (rules.isInstallable(option))
            accessories.push_back(State("Accessory State", rules.ppd(), option));
        else
            settings.push_back(State("Option State", rules.ppd(), option));
    }
    return accessories.empty() ? Say("Conflict Together", Joined(settings))
                               : Say("Conflict With Accessory", Joined(settings), Joined(accessories));
}

// Paper comes first in a user's mind: what is done to the sheets gives way to the sheets themselves.
bool IsPaper(const ppd_option_t& option)
{
    constexpr auto kPaper = std::to_array<const char*>({"PageSize", "PageRegion", "MediaType", "InputSlot"});
    return std::ranges::any_of(kPaper, [&](const char* name) { return qstricmp(name, option.keyword) == 0; });
}

// The rule's options in the order in which they are proposed for a change: the later the PPD applies them, the sooner.
std::vector<const ppd_option_t*> Changeable(const ConstraintRules& rules, const ConstraintRule& rule)
{
    std::vector<const ppd_option_t*> options;
    for (const ConstraintTerm& term : rule) {
        if (!rules.isInstallable(*term.option))
            options.push_back(term.option);
    }
    std::ranges::stable_sort(options, [](const ppd_option_t* a, const ppd_option_t* b) {
        return std::pair(IsPaper(*a), -a->order) < std::pair(IsPaper(*b), -b->order);
    });
    return options;
}

// The option's choices, the harmless ones first: its default, what switches it off, then the rest.
std::vector<const ppd_choice_t*> Alternatives(const ppd_option_t& option)
{
    std::vector<const ppd_choice_t*> choices;
    for (int i = 0; i < option.num_choices; ++i) {
        if (!option.choices[i].marked && qstricmp(option.choices[i].choice, "Custom") != 0)
            choices.push_back(&option.choices[i]);
    }
    std::ranges::stable_sort(choices, {}, [&option](const ppd_choice_t* choice) {
        return qstricmp(choice->choice, option.defchoice) == 0 ? 0 : IsOffChoice(choice->choice) ? 1 : 2;
    });
    return choices;
}

// Sets the first choice under which no rule about this option is broken; the option stays as it was when there is none.
std::optional<ChoiceChange> ChangeOption(const ConstraintRules& rules, const ppd_option_t& option)
{
    const ppd_choice_t* before = ppdFindMarkedChoice(rules.ppd(), option.keyword);
    const QByteArray old = before ? before->choice : "";
    for (const ppd_choice_t* choice : Alternatives(option)) {
        ppdMarkOption(rules.ppd(), option.keyword, choice->choice);
        if (!rules.breaksAny(option))
            return ChoiceChange{QString::fromUtf8(option.keyword), QString::fromUtf8(choice->choice),
                                Say("Choice Change", OptionText(option), Text(choice->text, choice->choice))};
    }
    if (!old.isEmpty())
        ppdMarkOption(rules.ppd(), option.keyword, old.constData());
    return std::nullopt;
}

using Changes = std::map<QString, ChoiceChange>; // by keyword

// Changes that were made for earlier conflicts and settle this one too, or a new one. A changed option is in no broken
// rule, so none is changed twice.
std::vector<ChoiceChange> Resolve(const ConstraintRules& rules, const ConstraintRule& rule, Changes& made)
{
    if (rules.isBroken(rule)) {
        for (const ppd_option_t* option : Changeable(rules, rule)) {
            const auto change = ChangeOption(rules, *option);
            if (!change)
                continue;
            made.emplace(change->keyword, *change);
            return {*change};
        }
        return {};
    }
    std::vector<ChoiceChange> earlier;
    for (const ConstraintTerm& term : rule) {
        if (const auto found = made.find(QString::fromUtf8(term.option->keyword)); found != made.end())
            earlier.push_back(found->second);
    }
    return earlier;
}

void MarkChoices(ppd_file_t* ppd, const Dictionary& choices, QStringList& unknown)
{
    for (const auto& [keyword, value] : choices) {
        const QString* choice = value.string();
        ppd_option_t* option = ppdFindOption(ppd, keyword.toUtf8().constData());
        const bool isCustom = choice && choice->startsWith(u"Custom.", Qt::CaseInsensitive);
        if (!option)
            unknown << keyword;
        else if (!choice || !ppdFindChoice(option, isCustom ? "Custom" : choice->toUtf8().constData()))
            unknown << keyword + u'=' + (choice ? *choice : QString());
        else
            ppdMarkOption(ppd, option->keyword, choice->toUtf8().constData());
    }
}

} // namespace

ConflictReport FindConflicts(const QString& ppdPath, const Dictionary& choices)
{
    const PPDFile file = OpenPPDFile(ppdPath);
    ConflictReport report;
    report.problem = file.problem;
    if (!file.ppd)
        return report;
    MarkChoices(file.ppd.get(), choices, report.unknown);
    const ConstraintRules rules(file.ppd.get());
    const std::vector<ConstraintRule> broken = rules.broken();
    for (const ConstraintRule& rule : broken)
        report.conflicts.push_back({ConflictSentence(rules, rule), {}});
    Changes made;
    for (std::size_t i = 0; i < broken.size(); ++i)
        report.conflicts[i].changes = Resolve(rules, broken[i], made);
    return report;
}

Dictionary ApplyChanges(const ConflictReport& report, Dictionary choices)
{
    for (const ChoiceConflict& conflict : report.conflicts) {
        for (const ChoiceChange& change : conflict.changes)
            choices.set(change.keyword, change.choice);
    }
    return choices;
}

} // namespace kesta::host
