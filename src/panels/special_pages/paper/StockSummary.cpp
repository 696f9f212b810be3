#include "panels/special_pages/paper/StockSummary.h"

#include "pde/menus/Binding.h"
#include "platform/plugins/Bundle.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"

#include <QStringList>

#include <string_view>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

using Text = std::optional<QString>;

Text TextIfAny(const QString& text)
{
    return text.isEmpty() ? Text() : Text(text);
}

Text ChoiceText(PPDKeyword keyword, SInt32 value)
{
    const char* choice = PPDChoiceForTicketValue(keyword, value);
    return choice ? PPDCopyChoiceText(PPDGetCurrent(), keyword.name(), choice) : std::nullopt;
}

Text WithModulus(const Text& text, SInt32 modulus)
{
    return text && modulus != kUnset ? *text + u" ("_s + QString::number(modulus) + u')' : text;
}

} // namespace

Text StockSizeText(const Stock& stock)
{
    return ChoiceText("PageSize", stock.size());
}

Text StockColorText(const Stock& stock)
{
    return stock.color() == kStockColorText ? TextIfAny(stock.customColor()) : ChoiceText("MediaColor", stock.color());
}

Text StockTypeText(const Bundle& bundle, const Stock& stock)
{
    switch (stock.type()) {
    case kStockTypePrecutTab:
        return WithModulus(LocalizedString(bundle, "StockTypePrecutTab"), stock.modulus());
    case kStockTypeOrdered:
        return WithModulus(TextIfAny(stock.customType()), stock.modulus());
    case kStockTypeText:
        return TextIfAny(stock.customType());
    case kStockTypeTabStock:
    case kStockTypeHeavyTabStock:
        return WithModulus(ChoiceText("MediaType", stock.type()), stock.modulus() > 0 ? stock.modulus() : kUnset);
    default:
        return ChoiceText("MediaType", stock.type());
    }
}

QString StockInserterText(const Bundle& bundle)
{
    const Text inserter = CopyLocalizedStringForInstalledFeatureFromPlugin("PostPrintInserterKey", bundle);
    return inserter ? *inserter : LocalizedString(bundle, "Inserter Not Fitted");
}

namespace {

class Parts {
public:
    explicit Parts(const Bundle& bundle) : bundle_(bundle) {}

    void add(const Text& text)
    {
        if (text)
            parts_ << "- "_L1 + *text;
    }
    void addNamed(const char* key, const Text& text)
    {
        if (text)
            parts_ << LocalizedString(bundle_, key) + LocalizedString(bundle_, ":") + *text;
    }
    QString joined(const QString& separator) const { return parts_.join(separator); }

private:
    const Bundle& bundle_;
    QStringList parts_;
};

// Of a printer that has the option and not this choice. A choice that has no number is known of the job alone; a number
// that is no choice has no text.
std::optional<MenuItem> ItemWithoutText(const Bundle& bundle, JobContext context, PPDKeyword option, SInt32 value,
                                        const Menu& menu)
{
    const bool isUnmapped = value == kUnmappedChoice;
    const bool isChoice = isUnmapped ? context == JobContext::Job : PPDChoiceForTicketValue(option, value) != nullptr;
    if (!isChoice || !PPDCopyDefaultChoice(PPDGetCurrent(), option.name()))
        return std::nullopt;
    return ItemForOther(bundle, {.option = option}, PPDGetCurrent(), menu, value, kUnset);
}

Text OrNotOffered(const Text& text, const Bundle& bundle, JobContext context, PPDKeyword option, SInt32 value)
{
    if (text)
        return text;
    const auto item = ItemWithoutText(bundle, context, option, value, Menu());
    return !item ? Text() : item->notOffered ? WithCaution(item->title) : item->title;
}

void AddPaper(Parts& parts, const Bundle& bundle, JobContext context, const Stock& stock)
{
    const bool isJob = context == JobContext::Job;
    parts.addNamed("StockName", TextIfAny(stock.customName()));
    if (stock.customNameOnly())
        return;
    if (!isJob && stock.size() != kUnset)
        parts.add(OrNotOffered(StockSizeText(stock), bundle, context, "PageSize", stock.size()));
    if (stock.color() == kStockColorText)
        parts.addNamed("StockColor", StockColorText(stock));
    else if (isJob || stock.color() != kUnset)
        parts.add(OrNotOffered(StockColorText(stock), bundle, context, "MediaColor", stock.color()));
    if (isJob || stock.type() != kUnset)
        parts.add(OrNotOffered(StockTypeText(bundle, stock), bundle, context, "MediaType", stock.type()));
}

} // namespace

std::optional<MenuItem> StockItemNotOffered(const Bundle& bundle, JobContext context, const Stock& stock,
                                            PPDKeyword option, const Menu& menu)
{
    if (stock.source() != kUnset || stock.customNameOnly())
        return std::nullopt;
    const std::string_view keyword = option.name();
    const bool isSize = keyword == "PageSize", isColor = keyword == "MediaColor";
    const Text text = isSize ? StockSizeText(stock) : isColor ? StockColorText(stock) : StockTypeText(bundle, stock);
    const SInt32 value = isSize ? stock.size() : isColor ? stock.color() : stock.type();
    const bool isTold = isSize ? context != JobContext::Job : !isColor || value != kStockColorText;
    const auto item = text || !isTold ? std::nullopt : ItemWithoutText(bundle, context, option, value, menu);
    return item && item->notOffered ? item : std::nullopt;
}

QString GenerateStockSummary(const Bundle& bundle, JobContext context, const Stock& stock, const QString& separator)
{
    Parts parts(bundle);
    if (stock.source() == kUnset)
        AddPaper(parts, bundle, context, stock);
    else if (stock.source() == kStockSourcePostPrintInserter)
        parts.add(StockInserterText(bundle));
    return parts.joined(separator);
}

QString StockSummaryText(const Bundle& bundle, const Stock* stock, JobContext context)
{
    if (!stock)
        return u""_s;
    const QString summary = GenerateStockSummary(bundle, context, *stock, u"\n"_s);
    if (!summary.isEmpty())
        return summary;
    return LocalizedString(bundle, context == JobContext::Job ? "PrinterDefault" : "UseJobSetting");
}

} // namespace kesta
