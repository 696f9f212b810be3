#include "panels/booklet_watermark/WatermarkMenu.h"

#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"

#include <algorithm>

namespace kesta::booklet_watermark {
namespace {

constexpr SInt32 kFirstWatermarkItem = kNoWatermarkItem + 1;

Menu MenuOfMap(const Bundle& bundle, SettingMap map)
{
    Menu menu;
    PopulateMenuFromMap(bundle, menu, map, JobContext::Job);
    for (MenuItem& item : menu.items)
        item.separator = item.value == kLineItem;
    return menu;
}

std::vector<MenuItem> ItemsOf(const QStringList& names)
{
    std::vector<MenuItem> items;
    for (const QString& name : names)
        items.push_back({.title = name, .command = kSavedWatermarkCommand, .value = static_cast<SInt32>(items.size())});
    return items;
}

bool IsPages(SInt32 value)
{
    return value == kAllPages || value == kFirstPageOnly;
}

// A layer of settings from elsewhere may be any number.
bool Stands(const WatermarkChoice& choice, SInt32 value)
{
    return value == (IsPages(value) ? choice.pages : choice.layer);
}

bool IsLayer(SInt32 value)
{
    return value >= kLayerBackground && value <= kLayerForeground;
}

} // namespace

SInt32 ItemOfWatermark(const QStringList& names, const QString& name)
{
    const auto isName = [&](const QString& one) { return one.compare(name, Qt::CaseInsensitive) == 0; };
    const qsizetype exact = names.indexOf(name);
    const qsizetype index = exact >= 0 ? exact : std::ranges::find_if(names, isName) - names.begin();
    return index == names.size() ? kNoWatermarkItem : static_cast<SInt32>(index) + kFirstWatermarkItem;
}

QString WatermarkOfItem(const QStringList& names, SInt32 item)
{
    return names.value(item - kFirstWatermarkItem);
}

Menu WatermarkMenu(const Bundle& bundle, const QStringList& names)
{
    Menu menu = MenuOfMap(bundle, WatermarkMap);
    for (MenuItem& item : menu.items) {
        if (item.value == kOptionsItem)
            item.submenu = MenuOfMap(bundle, WatermarkOptionsMap).items;
    }
    const std::vector<MenuItem> saved = ItemsOf(names);
    menu.items.insert(menu.items.begin() + kNoWatermarkItem, saved.begin(), saved.end());
    return menu;
}

void MarkWatermarkMenu(Menu& menu, const WatermarkChoice& choice)
{
    const bool hasWatermark = choice.item != kNoWatermarkItem;
    for (MenuItem& item : menu.items) {
        if (item.command == kEditCommand || item.command == kDeleteCommand)
            item.enabled = hasWatermark;
        for (MenuItem& option : item.submenu) {
            option.enabled = hasWatermark;
            option.checked = option.command == kLayerOrPagesCommand && Stands(choice, option.value);
        }
    }
}

void ChooseLayerOrPages(WatermarkChoice& choice, SInt32 value)
{
    (IsPages(value) ? choice.pages : choice.layer) = value;
}

QString LayerSummary(const Bundle& bundle, const WatermarkChoice& choice)
{
    if (choice.item == kNoWatermarkItem)
        return {};
    const char* layer = IsLayer(choice.layer) ? LocalizedKeyForTicketValue(WatermarkOptionsMap, choice.layer) : nullptr;
    const QString layerText = layer ? LocalizedString(bundle, layer) : QString::number(choice.layer);
    const char* format = choice.pages == kFirstPageOnly ? "Watermark On Page 1" : "Watermark On All Pages";
    return LocalizedFormat(bundle, format, {layerText});
}

} // namespace kesta::booklet_watermark
