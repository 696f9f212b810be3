#include "host/ppd/ConstraintRules.h"

#include <QList>

#include <algorithm>
#include <array>

namespace kesta::host {
namespace {

// A hostile PPD may hold any number; checking is (conflicts x choices x rules).
constexpr std::size_t kMostRules = 20'000;
constexpr std::size_t kMostBroken = 50;

bool Names(const ConstraintRule& rule, const ppd_option_t& option)
{
    return std::ranges::find(rule, &option, &ConstraintTerm::option) != rule.end();
}

std::set<const ppd_option_t*> OptionsOf(const ConstraintRule& rule)
{
    std::set<const ppd_option_t*> options;
    for (const ConstraintTerm& term : rule)
        options.insert(term.option);
    return options;
}

} // namespace

bool IsOffChoice(const char* choice)
{
    constexpr auto kOff = std::to_array<const char*>({"None", "Off", "False"});
    return std::ranges::any_of(kOff, [choice](const char* off) { return qstricmp(off, choice) == 0; });
}

ConstraintRules::ConstraintRules(ppd_file_t* ppd) : ppd_(ppd)
{
    for (int i = 0; i < ppd->num_groups; ++i) {
        if (qstricmp(ppd->groups[i].name, kInstallableOptionsGroup) == 0)
            addInstallable(ppd->groups[i]);
    }
    for (int i = 0; i < ppd->num_consts; ++i)
        addPair(ppd->consts[i]);
    for (ppd_attr_t* attribute = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); attribute;
         attribute = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr))
        addCups(attribute->value);
}

void ConstraintRules::addInstallable(const ppd_group_t& group)
{
    for (int i = 0; i < group.num_options; ++i)
        installable_.insert(&group.options[i]);
    for (int i = 0; i < group.num_subgroups; ++i)
        addInstallable(group.subgroups[i]);
}

void ConstraintRules::add(const std::vector<std::pair<QByteArray, QByteArray>>& pairs)
{
    ConstraintRule rule;
    for (const auto& [keyword, choice] : pairs) {
        const ppd_option_t* option = ppdFindOption(ppd_, keyword.constData());
        if (!option || Names(rule, *option))
            return;
        rule.push_back({option, choice});
    }
    const bool accessoriesOnly =
        std::ranges::all_of(rule, [this](const ConstraintTerm& term) { return isInstallable(*term.option); });
    if (rule.size() >= 2 && !accessoriesOnly && rules_.size() < kMostRules)
        rules_.push_back(std::move(rule));
}

void ConstraintRules::addPair(const ppd_const_t& pair)
{
    add({{pair.option1, pair.choice1}, {pair.option2, pair.choice2}});
}

// "*Option1 Choice1 *Option2 *CustomOption3 True"
void ConstraintRules::addCups(const char* value)
{
    std::vector<std::pair<QByteArray, QByteArray>> pairs;
    for (const QByteArray& word : QByteArray(value).simplified().split(' ')) {
        if (word.startsWith('*'))
            pairs.emplace_back(word.mid(1), QByteArray());
        else if (!pairs.empty())
            pairs.back().second = word;
    }
    for (auto& [keyword, choice] : pairs) {
        if (keyword.startsWith("Custom") && choice == "True") {
            keyword.remove(0, 6);
            choice = "Custom";
        }
    }
    add(pairs);
}

bool ConstraintRules::isBroken(const ConstraintRule& rule) const
{
    return std::ranges::all_of(rule, [this](const ConstraintTerm& term) {
        const ppd_choice_t* marked = ppdFindMarkedChoice(ppd_, term.option->keyword);
        if (!marked)
            return false;
        return term.choice.isEmpty() ? !IsOffChoice(marked->choice)
                                     : qstricmp(marked->choice, term.choice.constData()) == 0;
    });
}

bool ConstraintRules::breaksAny(const ppd_option_t& option) const
{
    return std::ranges::any_of(rules_,
                               [&](const ConstraintRule& rule) { return Names(rule, option) && isBroken(rule); });
}

std::vector<ConstraintRule> ConstraintRules::broken() const
{
    std::vector<ConstraintRule> broken;
    std::set<std::set<const ppd_option_t*>> named;
    for (const ConstraintRule& rule : rules_) {
        if (broken.size() < kMostBroken && isBroken(rule) && named.insert(OptionsOf(rule)).second)
            broken.push_back(rule);
    }
    return broken;
}

} // namespace kesta::host
