#pragma once

#include "pde/menus/SettingMap.h"
#include "toolkit/controls/Menu.h"

#include <QStringList>

#include <array>

// The menu that lists the watermarks of the store: what is in it, what its items mean and how they are marked.
namespace kesta::booklet_watermark {

inline constexpr SInt32 kNoWatermarkItem = 1; // its position in the menu; a menu without watermarks shows it, too

inline constexpr SInt32 kLayerBackground = 1;
inline constexpr SInt32 kLayerBlend = 2;
inline constexpr SInt32 kLayerForeground = 3;
inline constexpr SInt32 kAllPages = 4;
inline constexpr SInt32 kFirstPageOnly = 5;

// What stands with items that are no value.
inline constexpr SInt32 kLineItem = -5;
inline constexpr SInt32 kOptionsItem = -6;

inline constexpr FourCharCode kNoWatermarkCommand = "WmNo"_code;
inline constexpr FourCharCode kSavedWatermarkCommand = "WmSv"_code;
inline constexpr FourCharCode kNewCommand = "WmNw"_code;
inline constexpr FourCharCode kEditCommand = "WmEd"_code;
inline constexpr FourCharCode kDeleteCommand = "WmDl"_code;
inline constexpr FourCharCode kLayerOrPagesCommand = "WmOp"_code;

inline constexpr auto WatermarkMap = std::to_array<SettingRow>({
    {"NoWatermark", 1, kNoWatermarkCommand},
    {"-", kLineItem},
    {"Options", kOptionsItem},
    {"New...", -7, kNewCommand},
    {"Edit...", -8, kEditCommand},
    {"Delete", -9, kDeleteCommand},
});
inline constexpr auto WatermarkOptionsMap = std::to_array<SettingRow>({
    // "Watermarm" is spelled so
    {"WatermarkBackground", kLayerBackground, kLayerOrPagesCommand},
    {"WatermarkBlend", kLayerBlend, kLayerOrPagesCommand},
    {"WatermarkForeground", kLayerForeground, kLayerOrPagesCommand},
    {"-", kLineItem},
    {"WatermarkPrintOnAllPages", kAllPages, kLayerOrPagesCommand},
    {"WatermarmPrintOnPage1Only", kFirstPageOnly, kLayerOrPagesCommand},
});
static_assert(WatermarkMap.size() == 6);
static_assert(WatermarkOptionsMap.size() == 6);

// What of the watermarks the job uses.
struct WatermarkChoice {
    SInt32 item = kNoWatermarkItem; // position in the menu, from 1
    SInt32 layer = kLayerBlend;
    SInt32 pages = kAllPages;
    QString missing = {}; // that the job's settings name and the store lacks

    bool operator==(const WatermarkChoice&) const = default;
};

// The watermarks stand behind the first item, in the order of the list.
SInt32 ItemOfWatermark(const QStringList& names, const QString& name); // kNoWatermarkItem when it is not listed
QString WatermarkOfItem(const QStringList& names, SInt32 item);        // empty for any item that is none

Menu WatermarkMenu(const Bundle& bundle, const QStringList& names);
void MarkWatermarkMenu(Menu& menu, const WatermarkChoice& choice);

// What a command of the Options menu chooses.
void ChooseLayerOrPages(WatermarkChoice& choice, SInt32 value);

// Layer and pages in words; empty without a watermark.
QString LayerSummary(const Bundle& bundle, const WatermarkChoice& choice);

} // namespace kesta::booklet_watermark
