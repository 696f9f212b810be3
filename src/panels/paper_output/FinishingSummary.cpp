#include "panels/paper_output/FinishingSummary.h"

#include "panels/paper_output/FinishingRules.h"
#include "panels/special_pages/paper/SeparatorsRules.h"
#include "panels/special_pages/paper/StockSummary.h"
#include "platform/plugins/Bundle.h"
#include "printer/FinishingKinds.h"

using namespace Qt::StringLiterals;

namespace kesta::paper_output {
namespace {

const char* TextOf(Finishing finishing, SInt32 value)
{
    const FinishingKind* kind = FindFinishing(finishing, value);
    return kind ? kind->text : KindsOf(finishing).front().text;
}

const char* BookletText(SInt32 fold)
{
    const FinishingKind* kind = FindFinishing(Finishing::Fold, fold);
    return kind && kind->booklet.text ? kind->booklet.text : TextOf(Finishing::Fold, kNotFinished);
}

} // namespace

QString CreateFinishingString(const Bundle& bundle, const PaperOutputOptions& options,
                              const FinishingAccessories& accessories)
{
    QString summary = u""_s;
    const auto addLine = [&](const char* key) { summary += u"- "_s + LocalizedString(bundle, key) + u'\n'; };

    if (IsBooklet(options)) {
        addLine(BookletText(options.booklet.fold));
        if (options.booklet.isOn())
            addLine("Booklet Layout");
        return summary;
    }
    if (accessories.hasStapler)
        addLine(TextOf(Finishing::Staple, options.staple));
    if (accessories.hasPunch)
        addLine(TextOf(Finishing::Punch, options.punch));
    if (accessories.hasFolder)
        addLine(TextOf(Finishing::Fold, options.booklet.fold));
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
