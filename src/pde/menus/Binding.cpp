#include "pde/menus/Binding.h"

#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"

#include <algorithm>

namespace kesta {
namespace {

// In the words of the map, of the panel or of the printer, else the printer's keyword.
std::optional<QString> NameOf(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd, SInt32 value)
{
    const auto row = std::ranges::find(rule.map, value, &SettingRow::value);
    const char* key = row != rule.map.end() ? row->key : rule.nameOf ? rule.nameOf(value) : nullptr;
    if (key)
        return LocalizedString(bundle, key);
    const char* choice = rule.option ? PPDChoiceForTicketValue(*rule.option, value) : nullptr;
    if (!choice)
        return std::nullopt;
    return PPDCopyChoiceText(ppd, rule.option->name(), choice).value_or(QString::fromLatin1(choice));
}

int PositionOf(const Menu& menu, SInt32 value)
{
    const auto item = std::ranges::find(menu.items, value, &MenuItem::value);
    return item == menu.items.end() ? 0 : static_cast<int>(item - menu.items.begin()) + 1;
}

// What the ticket means that does not say, what the printer does then, what a new job begins with, or the first item.
int InsteadOf(const BindingRule& rule, ppd_file_t* ppd, const Menu& menu, SInt32 initial)
{
    if (menu.items.empty())
        return 0;
    const auto printers =
        rule.option ? PPDGetTicketValueForChoiceOrDefault(ppd, Ticket(), *rule.option) : std::optional<SInt32>();
    for (const std::optional<SInt32> value : {rule.otherwise, printers, std::optional(initial)}) {
        if (const int position = value ? PositionOf(menu, *value) : 0)
            return position;
    }
    return 1;
}

// The choice that the job has, or else the printer: one that the panels have no number for. The printer may have it.
std::optional<MenuItem> ItemForUnmapped(const Bundle& bundle, PPDKeyword option, ppd_file_t* ppd, const Menu& menu)
{
    PrintSession* session = GetCurrentPrintSession();
    const Ticket* settings = session ? GetTicketFromSession(*session, kPMPrintSettingsTicket).ticket : nullptr;
    std::optional<QString> choice = settings ? PPDCopyCurrentChoice(*settings, option.name()) : std::nullopt;
    if (!choice)
        choice = PPDCopyDefaultChoice(ppd, option.name());
    if (!choice)
        return std::nullopt;
    if (const std::optional<QString> text = PPDCopyChoiceText(ppd, option.name(), *choice))
        return MenuItem{.title = *text, .value = kUnmappedChoice};
    return MenuItem{.title = NotOnThisPrinter(bundle, *choice),
                    .value = kUnmappedChoice,
                    .notOffered = true,
                    .instead = menu.items.empty() ? 0 : 1};
}

} // namespace

BoundMenu MenuOfRule(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd)
{
    BoundMenu made;
    if (!rule.map.empty())
        made.maximum = PopulateMenuFromMap(bundle, made.menu, rule.map, JobContext::Job);
    else if (rule.option)
        made.maximum = PPDPopulateMenuWithChoices(made.menu, ppd, *rule.option, kNoCommand, rule.conflicting);
    return made;
}

QString NotOnThisPrinter(const Bundle& bundle, const QString& what)
{
    return LocalizedFormat(bundle, "Not On This Printer", {what});
}

std::optional<MenuItem> ItemForOther(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd, const Menu& menu,
                                     SInt32 value, SInt32 initial)
{
    const bool isPrinterUnknown = rule.option && !ppd;
    const bool goesWithoutSaying = value == kUnset || value == rule.otherwise;
    if (isPrinterUnknown || goesWithoutSaying || (menu.items.empty() && value == initial))
        return std::nullopt;
    if (rule.option && value == kUnmappedChoice)
        return ItemForUnmapped(bundle, *rule.option, ppd, menu);
    const QString name =
        NameOf(bundle, rule, ppd, value)
            .value_or(LocalizedFormat(bundle, rule.other ? rule.other : "Other Value", {QString::number(value)}));
    const int instead = InsteadOf(rule, ppd, menu, initial);
    return MenuItem{.title = NotOnThisPrinter(bundle, name), .value = value, .notOffered = true, .instead = instead};
}

std::optional<MenuItem> ItemForInitial(const Bundle& bundle, const BindingRule& rule, ppd_file_t* ppd, SInt32 initial)
{
    const std::optional<QString> name = NameOf(bundle, rule, ppd, initial);
    return name ? std::optional(MenuItem{.title = *name, .value = initial}) : std::nullopt;
}

std::optional<SInt32> ReadBound(const BindingRule& rule, const Ticket& settings, ppd_file_t* ppd)
{
    if (!rule.key && !rule.option)
        return std::nullopt;
    const std::optional<SInt32> value = rule.key ? ReadTicketValue(settings, rule.key)
                                                 : PPDGetTicketValueForChoiceOrDefault(ppd, settings, *rule.option);
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
