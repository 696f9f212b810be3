#include "panels/paper_output/FinishingSummary.h"

#include "panels/paper_output/FinishingRules.h"
#include "panels/special_pages/paper/SeparatorsRules.h"
#include "panels/special_pages/paper/StockSummary.h"
#include "platform/plugins/Bundle.h"

using namespace Qt::StringLiterals;

namespace kesta::paper_output {
namespace {

const char* BookletFoldKey(SInt32 fold)
{
    switch (fold) {
    case kFoldBi:
        return "Booklet Fold";
    case kFoldBiStaple:
        return "Booklet FoldStaple";
    default:
        return "No Fold";
    }
}

const char* StapleKey(const PaperOutputOptions& options)
{
    if (options.singleStaple != kNone)
        return "1 Staple";
    if (options.dualStaple != kNone)
        return "2 Staples";
    if (options.multipleStaple != kNone)
        return "4 Staples";
    return "No Staple Value";
}

const char* PunchKey(SInt32 punch)
{
    switch (punch) {
    case kPunchAny:
        return "HolePunch";
    case kPunchTwo:
        return "2 Hole Punch";
    case kPunchThree:
        return "3 Hole Punch";
    case kPunchFour:
        return "4 Hole Punch";
    default:
        return "NoHolePunch";
    }
}

const char* FoldKey(SInt32 fold)
{
    switch (fold) {
    case kFoldC:
        return "FoldCFold";
    case kFoldZ:
        return "FoldZFold";
    case kFoldZHalfSheet:
        return "Z Fold Half Sheet";
    case kFoldBi:
        return "BiFoldNoStaple";
    default:
        return "No Fold";
    }
}

} // namespace

QString CreateFinishingString(const Bundle& bundle, const PaperOutputOptions& options,
                              const FinishingAccessories& accessories)
{
    QString summary = u""_s;
    const auto addLine = [&](const char* key) { summary += u"- "_s + LocalizedString(bundle, key) + u'\n'; };

    if (IsBooklet(options)) {
        addLine(BookletFoldKey(options.fold));
        if (options.bookletLayout == kBookletOn)
            addLine("Booklet Layout");
        return summary;
    }
    if (accessories.hasStapler)
        addLine(StapleKey(options));
    if (accessories.hasPunch)
        addLine(PunchKey(options.punch));
    if (accessories.hasFolder)
        addLine(FoldKey(options.fold));
    return summary;
}

QString AppendSeparatorSummary(const QString& summary, const Bundle& bundle, ppd_file_t* ppd, SInt32 separatorCount,
                               const Stock& separatorStock)
{
    if (separatorCount != kSeparatorsBlank && separatorCount != kSeparatorsPrinted)
        return summary;
    const char* choice = PPDChoiceForTicketValue("MediaColor", separatorStock.color());
    const std::optional<QString> color = choice ? PPDCopyChoiceText(ppd, "MediaColor", choice) : std::nullopt;
    if (!color)
        return summary;
    return summary + u"\n- "_s + LocalizedString(bundle, "Separators") + LocalizedString(bundle, ":") + *color;
}

QString PaperSummary(const Bundle& bundle, ppd_file_t* ppd, const PaperOutputOptions& options)
{
    const QString summary = StockSummaryText(bundle, &options.stock, JobContext::Job);
    if (options.stock.type() != kStockTypeTransparency)
        return summary;
    return AppendSeparatorSummary(summary, bundle, ppd, options.separatorCount, options.separatorStock);
}

} // namespace kesta::paper_output
