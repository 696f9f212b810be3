#include "pde/menus/Binding.h"

#include "pde/ticket/LocalizedText.h"

#include <algorithm>

namespace kesta {
namespace {

bool HasItem(const Menu& menu, SInt32 value)
{
    return std::ranges::find(menu.items, value, &MenuItem::value) != menu.items.end();
}

bool IsInMap(SettingMap map, SInt32 value)
{
    return std::ranges::find(map, value, &SettingRow::value) != map.end();
}

std::optional<SInt32> ReadKey(const BindingRule& rule, const Ticket& settings)
{
    const std::optional<SInt32> value = ReadTicketValue(settings, rule.key);
    return value && rule.onlyOffered && !IsInMap(rule.map, *value) ? std::nullopt : value;
}

} // namespace

BoundMenu MenuOfRule(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd, std::optional<SInt32> shown)
{
    BoundMenu made;
    if (!rule.map.empty())
        made.maximum = PopulateMenuFromMap(bundle, made.menu, rule.map, JobContext::Job);
    else if (rule.option)
        made.maximum = PPDPopulateMenuWithChoices(made.menu, ppd, *rule.option, kNoCommand, rule.conflicting);
    const bool isWithoutOption = rule.option && made.menu.items.empty(); // there is nothing to choose then
    if (rule.other && shown && !isWithoutOption && !HasItem(made.menu, *shown)) {
        made.menu.items.push_back(
            {.title = LocalizedFormat(bundle, rule.other, {QString::number(*shown)}), .value = *shown});
        ++made.maximum;
    }
    return made;
}

std::optional<SInt32> ReadBound(const BindingRule& rule, const Ticket& settings, ppd_file_t* ppd)
{
    if (!rule.key && !rule.option)
        return std::nullopt;
    const std::optional<SInt32> value =
        rule.key ? ReadKey(rule, settings) : PPDGetTicketValueForChoiceOrDefault(ppd, settings, *rule.option);
    return value ? value : rule.otherwise;
}

void WriteBound(const BindingRule& rule, const TicketWriter& settings, SInt32 value)
{
    if (rule.key)
        WriteTicketValue(settings, rule.key, value);
    if (rule.option)
        PPDSetChoiceForTicketValue(settings, *rule.option, value);
}

} // namespace kesta
