#pragma once

#include "model/Stock.h"
#include "pde/menus/SettingMap.h"

#include <array>

namespace kesta {

struct Bundle;
enum class ModalResult : SInt32;

// An unset one is the printer's own or the job's.
inline constexpr auto _StockPunchedMap = std::to_array<SettingRow>({
    {"PrinterDefault", kUnset},
    {"StockNotPunched", kStockNotPunched},
    {"StockPunched", kStockPunched},
});
static_assert(_StockPunchedMap.size() == 3);

inline constexpr SInt32 kMostStockWeight = 500; // grams per square metre

namespace advancedstock {

// The numbers of the controls in AdvancedStockDialog/AdvancedStock.
inline constexpr FourCharCode kSignature = "AdSt"_code;
enum Control : SInt32 {
    kSizePopup = 1,
    kColorPopup = 2,
    kTypePopup = 3,
    kPunchedPopup = 4,
    kWeightField = 5, // 0 shows as unset
    kDescriptionField = 6,
    kIcon = 7,
};

} // namespace advancedstock

// Lets the user set size, colour, type, punching, weight and description at once; OK alone changes the stock.
// kInterfaceFileUnreadable, and nothing shown, when its window can't be loaded.
OSStatus RunModalAdvancedStockDialog(const Bundle& bundle, JobContext context, Stock& stock, ModalResult& result);

} // namespace kesta
