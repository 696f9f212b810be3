#include "panels/paper_output/FinishingSummary.h"

#include "panels/paper_output/FinishingRules.h"
#include "panels/special_pages/paper/SeparatorsRules.h"
#include "panels/special_pages/paper/StockSummary.h"
#include "pde/menus/Binding.h"
#include "platform/plugins/Bundle.h"
#include "printer/FinishingKinds.h"

using namespace Qt::StringLiterals;

namespace kesta::paper_output {
QString CreateFinishingString(const Bundle& bundle, const PaperOutputOptions& options,
                              const FinishingAccessories& accessories)
{
    QString summary = u""_s;
    const auto addLine = [&](const QString& text) { summary += u"- "_s + text + u'\n'; };
    const auto add = [&](Finishing finishing) {
        const QString text = LocalizedString(bundle, FinishingText(options, finishing));
        addLine(IsNotOffered(options, finishing) ? WithCaution(NotOnThisPrinter(bundle, text)) : text);
    };
    const bool isBooklet = IsBooklet(options);
    if (accessories.hasStapler && (!isBooklet || IsNotOffered(options, Finishing::Staple)))
        add(Finishing::Staple);
    if (accessories.hasPunch && (!isBooklet || IsNotOffered(options, Finishing::Punch)))
        add(Finishing::Punch);
    if (accessories.hasFolder || isBooklet)
        add(Finishing::Fold);
    if (options.booklet.isOn())
        addLine(LocalizedString(bundle, "Booklet Layout"));
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
