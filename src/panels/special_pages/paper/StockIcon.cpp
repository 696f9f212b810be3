#include "panels/special_pages/paper/StockIcon.h"

#include "model/Stock.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

struct NamedValue {
    SInt32 value;
    const char* name;
};

constexpr auto kColorWords = std::to_array<NamedValue>({
    {kStockColorBlue, "Blue"},
    {kStockColorYellow, "Yellow"},
    {kStockColorGreen, "Green"},
    {kStockColorPink, "Pink"},
    {kStockColorClear, "Clear"},
    {kStockColorBuff, "Buff"},
    {kStockColorGoldenrod, "Goldenrod"},
    {kStockColorRed, "Red"},
    {kStockColorIvory, "Ivory"},
    {kStockColorGray, "Gray"},
    {kStockColorOrange, "Orange"},
});
static_assert(kColorWords.size() == 11);

constexpr auto kFamilies = std::to_array<NamedValue>({
    {kStockTypeEnvelopes, "Envelope"},
    {kStockTypeFullCutTab, "FullCutTab"},
    {kStockTypePrecutTab, "Pre-CutTab"},
    {kStockTypeTabStock, "Pre-CutTab"},
    {kStockTypeHeavyTabStock, "Pre-CutTab"},
    {kStockTypeCardReloaded, "Reloaded"},
    {kStockTypeExtraHeavyReloaded, "Reloaded"},
    {kStockTypeLightGlossReloaded, "Reloaded"},
    {kStockTypeHeavyGlossReloaded, "Reloaded"},
    {kStockTypeExtraHeavyPlusReloaded, "Reloaded"},
    {kStockTypeExtraHeavyGlossReloaded, "Reloaded"},
});
static_assert(kFamilies.size() == 11);

// What a kind adds under the holes, then over them; a kind of several overlays stands several times.
constexpr auto kLowerOverlays = std::to_array<NamedValue>({
    {kStockTypeRecycled, "Recycled"},
    {kStockTypeHeavyLabels, "Labels"},
    {kStockTypeLabels, "Labels"},
});
constexpr auto kUpperOverlays = std::to_array<NamedValue>({
    {kStockTypeTransparency, "LightweightGloss"},
    {kStockTypePrePrinted, "Pre-Printed"},
    {kStockTypeOrdered, "OrderedStock"},
    {kStockTypeCard, "Heavyweight"},
    {kStockTypeExtraHeavy, "Heavyweight"},
    {kStockTypeExtraHeavyPlus, "Heavyweight"},
    {kStockTypeLetterhead, "Letterhead"},
    {kStockTypeCustom1, "Custom1"},
    {kStockTypeCustom1 + 1, "Custom2"},
    {kStockTypeCustom1 + 2, "Custom3"},
    {kStockTypeCustom1 + 3, "Custom4"},
    {kStockTypeCustom1 + 4, "Custom5"},
    {kStockTypeCustom1 + 5, "Custom6"},
    {kStockTypeCustom7, "Custom7"},
    {kStockTypeOther, "Other"},
    {kStockTypeHeavyLabels, "LablesHeavyweight"}, // the file's own spelling
    {kStockTypeExtraHeavyLabels, "LablesHeavyweight"},
    {kStockTypeCardReloaded, "HeavyweightReloaded"},
    {kStockTypeExtraHeavyReloaded, "HeavyweightReloaded"},
    {kStockTypeExtraHeavyPlusReloaded, "HeavyweightReloaded"},
    {kStockTypeLightGloss, "LightweightGloss"},
    {kStockTypeLightGlossReloaded, "LightweightGlossReloaded"},
    {kStockTypeHeavyGloss, "HeavyweightGloss"},
    {kStockTypeExtraHeavyGloss, "HeavyweightGloss"},
    {kStockTypeHeavyGlossReloaded, "HeavyweightGlossReloaded"},
    {kStockTypeExtraHeavyGlossReloaded, "HeavyweightGlossReloaded"},
    {kStockTypeRough, "RoughSurface"},
    {kStockTypeArchival, "Archival"},
    {kStockTypeArchival, "Heavyweight"},
});
static_assert(kLowerOverlays.size() == 3 && kUpperOverlays.size() == 29);

QString NameOf(std::span<const NamedValue> names, SInt32 value, const char* otherwise)
{
    const auto found = std::ranges::find(names, value, &NamedValue::value);
    return QString::fromLatin1(found == names.end() ? otherwise : found->name);
}

QString Overlay(const char* name)
{
    return "Paper_Overlay-"_L1 + QLatin1StringView(name) + ".gif"_L1;
}

void AddOverlays(QStringList& pictures, std::span<const NamedValue> overlays, SInt32 type)
{
    for (const NamedValue& overlay : overlays) {
        if (overlay.value == type)
            pictures << Overlay(overlay.name);
    }
}

bool HasHoles(const Stock& stock)
{
    return stock.punched() == kStockPunched || stock.type() == kStockTypePunched;
}

} // namespace

QString StockColorWord(SInt32 color)
{
    return NameOf(kColorWords, color, "White");
}

QStringList StockIconPictures(const Stock* stock)
{
    if (!stock)
        return {};
    const SInt32 type = stock->type();
    const bool clearTransparency = type == kStockTypeTransparency && stock->color() == kStockColorClear;

    QStringList pictures{"Paper_"_L1 + NameOf(kFamilies, type, "Plain") + u'-' + StockColorWord(stock->color()) +
                         ".gif"_L1};
    AddOverlays(pictures, kLowerOverlays, type);
    if (HasHoles(*stock))
        pictures << Overlay(type == kStockTypeEnvelopes ? "HolePunchedEnvelope" : "HolePunched");
    if (!clearTransparency)
        AddOverlays(pictures, kUpperOverlays, type);
    return pictures;
}

} // namespace kesta
