#include "panels/special_pages/paper/StockMenuRules.h"

#include "panels/special_pages/paper/StockSummary.h"
#include "platform/plugins/Bundle.h"
#include "printer/InstallableOptions.h"

#include <algorithm>

namespace kesta {
namespace {

void RemoveFirst(Menu& menu, SInt32 value)
{
    const auto found = std::ranges::find(menu.items, value, &MenuItem::value);
    if (found != menu.items.end())
        menu.items.erase(found);
}

using PopulateFunction = void (*)(Menu&, const Bundle&, JobContext);

MenuItem SubmenuItem(const Bundle& bundle, const char* key, PopulateFunction populate, JobContext context)
{
    Menu submenu;
    populate(submenu, bundle, context);
    return {
        .title = LocalizedString(bundle, key), .enabled = !submenu.items.empty(), .submenu = std::move(submenu.items)};
}

// What the stock has of what the item's command changes; nothing where that is none of the stock's.
std::optional<SInt32> ValueOfStock(FourCharCode command, const Stock& stock)
{
    switch (command) {
    case kStockSizeCommand:
        return stock.size();
    case kStockColorCommand:
        return stock.color();
    case kStockTypeCommand:
        return stock.type();
    case kStockSourceCommand:
        return stock.source();
    default:
        return std::nullopt;
    }
}

void MarkItems(std::vector<MenuItem>& items, const Stock* stock)
{
    const Stock none;
    for (MenuItem& item : items) {
        if (const std::optional<SInt32> value = ValueOfStock(item.command, stock ? *stock : none))
            item.checked = stock && item.value == *value;
        MarkItems(item.submenu, stock);
    }
}

bool HasCommand(const MenuItem& item, FourCharCode command)
{
    return item.submenu.empty() ? item.command == command : item.submenu.front().command == command;
}

} // namespace

void PopulateChoices(Menu& menu, const Bundle& bundle, PPDKeyword keyword, FourCharCode command, JobContext context)
{
    menu.items.clear(); // also without a PPD
    PPDPopulateMenuWithChoices(menu, PPDGetCurrent(), keyword, command, Conflicting::Keep);
    if (context != JobContext::Job)
        menu.items.insert(menu.items.begin(),
                          {.title = LocalizedString(bundle, "UseJobSetting"), .command = command, .value = kUnset});
}

void PopulateStockSizeMenu(Menu& menu, const Bundle& bundle, JobContext context)
{
    PopulateChoices(menu, bundle, "PageSize", kStockSizeCommand, context);
    if (context != JobContext::Cover)
        return;
    SInt32 const custom = kStockSizeCustom;
    const auto found = std::ranges::find(menu.items, custom, &MenuItem::value);
    if (found != menu.items.end())
        found->enabled = false;
}

void PopulateStockTypeMenu(Menu& menu, const Bundle& bundle, JobContext context)
{
    PopulateChoices(menu, bundle, "MediaType", kStockTypeCommand, context);
    if (context == JobContext::Job)
        return;
    RemoveFirst(menu, kStockTypeSystemDefault);
    RemoveFirst(menu, kStockTypeUnspecified);
}

void PopulateStockColorMenu(Menu& menu, const Bundle& bundle, JobContext context)
{
    PopulateChoices(menu, bundle, "MediaColor", kStockColorCommand, context);
    if (context != JobContext::Job)
        RemoveFirst(menu, kStockColorUnspecified);
}

void PopulateStockMenu(Menu& menu, const Bundle& bundle, JobContext context)
{
    menu.items.clear();
    if (context != JobContext::Job)
        menu.items.push_back(SubmenuItem(bundle, "OtherSize", PopulateStockSizeMenu, context));
    menu.items.push_back(SubmenuItem(bundle, "OtherColor", PopulateStockColorMenu, context));
    menu.items.push_back(SubmenuItem(bundle, "OtherType", PopulateStockTypeMenu, context));
    menu.items.push_back({.separator = true});
    menu.items.push_back({.separator = true});
    if (context != JobContext::Cover && context != JobContext::Insert)
        return;
    if (const auto inserter = CopyLocalizedStringForInstalledFeatureFromPlugin("PostPrintInserterKey", bundle))
        menu.items.push_back(
            {.title = *inserter, .command = kStockSourceCommand, .value = kStockSourcePostPrintInserter});
}

void EnableStockCommand(Menu& menu, FourCharCode command, bool enabled)
{
    for (MenuItem& item : menu.items) {
        if (HasCommand(item, command))
            item.enabled = enabled;
    }
}

void MarkStock(Menu& menu, const Stock* stock)
{
    MarkItems(menu.items, stock);
}

namespace {

std::optional<PPDKeyword> OptionOfSubmenu(const std::vector<MenuItem>& items)
{
    switch (items.empty() ? kNoCommand : items.front().command) {
    case kStockSizeCommand:
        return PPDKeyword("PageSize");
    case kStockColorCommand:
        return PPDKeyword("MediaColor");
    case kStockTypeCommand:
        return PPDKeyword("MediaType");
    default:
        return std::nullopt;
    }
}

} // namespace

void AddNotOffered(Menu& menu, const Bundle& bundle, JobContext context, const Stock* stock)
{
    for (MenuItem& title : menu.items) {
        std::erase_if(title.submenu, [](const MenuItem& item) { return item.notOffered; });
        const std::optional<PPDKeyword> option = OptionOfSubmenu(title.submenu);
        if (!option || !stock)
            continue;
        const Menu offered{.items = title.submenu};
        if (auto item = StockItemNotOffered(bundle, context, *stock, *option, offered)) {
            item->checked = true;
            title.submenu.push_back(std::move(*item));
        }
    }
}

void ForgetStockName(Stock& stock)
{
    stock.setCustomName({});
    stock.setCustomNameOnly(false);
}

bool ApplyStockCommand(Stock& stock, JobContext context, FourCharCode command, SInt32 value)
{
    switch (command) {
    case kStockSizeCommand:
        if (value == kStockSizeCustom)
            return false;
        stock.setSize(value);
        break;
    case kStockColorCommand:
        stock.setColor(value);
        break;
    case kStockTypeCommand:
        stock.setType(value);
        break;
    case kStockSourceCommand:
        stock.setSource(value);
        return true;
    case kStockDefaultsCommand:
        DefaultStock(stock, context);
        return true;
    default:
        return false;
    }
    stock.setSource(kUnset);
    ForgetStockName(stock);
    return true;
}

} // namespace kesta
