#include "panels/special_pages/SpecialPagesSummary.h"

#include "panels/special_pages/editors/PageDescriptions.h"
#include "panels/special_pages/paper/StockSummary.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/LocalizedText.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "printer/InstallableOptions.h"

using namespace Qt::StringLiterals;

namespace kesta::special_pages {
namespace {

using MaybeText = std::optional<QString>;

constexpr std::size_t kNamedExceptions = 3; // more are counted

MaybeText CoverPart(const Bundle& bundle, const Cover& cover, const Ticket* settings)
{
    if (settings && !ReadTicketValue(*settings, key::PMDuplexing))
        return std::nullopt;
    return CoverSidesText(bundle, CoverSidesMap(settings), cover.sidesImaged());
}

MaybeText InsertPart(const Bundle& bundle, const Insert& insert)
{
    return LocalizedFormat(bundle, "Sheets In List",
                           {LocalizedString(bundle, "InsertSummaryQuantity"), QString::number(insert.quantity())});
}

MaybeText KindPart(const Bundle& bundle, const SpecialPage& page, const Ticket* settings)
{
    if (const auto* cover = dynamic_cast<const Cover*>(&page))
        return CoverPart(bundle, *cover, settings);
    if (const auto* insert = dynamic_cast<const Insert*>(&page))
        return InsertPart(bundle, *insert);
    const auto* exception = dynamic_cast<const ExceptionPage*>(&page);
    return exception && exception->plex() != kUnset ? PlexText(bundle, exception->plex()) : MaybeText();
}

std::vector<MaybeText> PaperParts(const Bundle& bundle, const Stock& stock)
{
    if (stock.source() == kStockSourcePostPrintInserter)
        return {StockInserterText(bundle)};
    if (stock.source() != kUnset)
        return {};
    return {stock.size() != kUnset ? StockSizeText(stock) : MaybeText(),
            stock.color() != kUnset ? StockColorText(stock) : MaybeText(),
            stock.type() != kUnset ? StockTypeText(bundle, stock) : MaybeText()};
}

MaybeText NamePart(const Bundle& bundle, const Stock& stock)
{
    if (stock.customName().isEmpty())
        return std::nullopt;
    return LocalizedFormat(bundle, "Paper Name In List",
                           {LocalizedString(bundle, "Paper Name Label"), stock.customName()});
}

} // namespace

QString CopySpecialPageSummary(const Bundle& bundle, const SpecialPage& page, const Ticket* settings)
{
    std::vector<MaybeText> parts{NamePart(bundle, page.stock()), KindPart(bundle, page, settings)};
    for (MaybeText& part : PaperParts(bundle, page.stock()))
        parts.push_back(std::move(part));
    QStringList texts;
    for (const MaybeText& part : parts) {
        if (part)
            texts << *part;
    }
    return texts.join(u"; "_s);
}

OSStatus PageTexts::cell(const SpecialPage& page, int column, QString& text) const
{
    switch (static_cast<Column>(column)) {
    case Column::Pages:
        text = pages(page);
        return noErr;
    case Column::Type:
        text = type(page);
        return noErr;
    case Column::Attributes:
        text = CopySpecialPageSummary(bundle_, page, settings_);
        return noErr;
    }
    return kNoSuchColumn;
}

QString PageTexts::pages(const SpecialPage& page) const
{
    if (&page == set_.frontCover.get())
        return LocalizedString(bundle_, "SpecialPageSummaryFront");
    if (&page == set_.backCover.get())
        return LocalizedString(bundle_, "SpecialPageSummaryBack");
    const auto* exception = dynamic_cast<const ExceptionPage*>(&page);
    if (exception && LastPageOf(*exception) != exception->startPage())
        return PageRangeText(bundle_, *exception);
    if (dynamic_cast<const Insert*>(&page) && page.startPage() == 0)
        return LocalizedString(bundle_, "SpecialPageSummaryBefore1");
    return dynamic_cast<const Cover*>(&page) ? QString() : QString::number(page.startPage());
}

QString PageTexts::type(const SpecialPage& page) const
{
    if (dynamic_cast<const Cover*>(&page))
        return LocalizedString(bundle_, "SpecialPageSummaryCover");
    return LocalizedString(bundle_, dynamic_cast<const Insert*>(&page) ? "SpecialPageSummaryInsert"
                                                                       : "SpecialPageSummaryException");
}

QString PageTexts::spokenPages(const SpecialPage& page) const
{
    const QString start = QString::number(page.startPage());
    const auto* exception = dynamic_cast<const ExceptionPage*>(&page);
    if (exception && LastPageOf(*exception) != exception->startPage())
        return LocalizedFormat(bundle_, "Spoken Page Range", {start, QString::number(LastPageOf(*exception))});
    const auto* insert = dynamic_cast<const Insert*>(&page);
    if (insert && page.startPage() != 0)
        return LocalizedFormat(bundle_, "Spoken After Page", {start});
    return exception ? LocalizedFormat(bundle_, "Spoken Page", {start}) : pages(page);
}

QString PageTexts::spoken(const SpecialPage& page, int row, int count) const
{
    return LocalizedFormat(bundle_, "Spoken Special Page",
                           {QString::number(row), QString::number(count), spokenPages(page), type(page),
                            CopySpecialPageSummary(bundle_, page, settings_)});
}

QString PageTexts::exceptionPhrase(const ExceptionPage& exception) const
{
    const bool isRange = LastPageOf(exception) != exception.startPage();
    const Stock& stock = exception.stock();
    const MaybeText color = stock.source() == kUnset && stock.color() != kUnset ? StockColorText(stock) : MaybeText();
    const bool isOwnText = stock.color() == kStockColorText;
    const QString summary = !color      ? CopySpecialPageSummary(bundle_, exception, settings_)
                            : isOwnText ? *color
                                        : color->toLower();
    if (summary.isEmpty())
        return LocalizedFormat(bundle_, isRange ? "Exception Range Summary" : "Exception Page Summary",
                               {pages(exception)});
    const char* key = color ? (isRange ? "Exception Range On Summary" : "Exception Page On Summary")
                            : (isRange ? "Exception Range As Summary" : "Exception Page As Summary");
    return LocalizedFormat(bundle_, key, {pages(exception), summary});
}

QStringList PageTexts::phrases() const
{
    QStringList phrases;
    if (set_.frontCover || set_.backCover)
        phrases << LocalizedString(bundle_, !set_.backCover    ? "Front Cover Summary"
                                            : !set_.frontCover ? "Back Cover Summary"
                                                               : "Both Covers Summary");
    if (const std::size_t inserts = set_.inserts.count())
        phrases << LocalizedCount(bundle_, "Inserts Summary", static_cast<int>(inserts));
    const std::size_t exceptions = set_.exceptions.count();
    if (exceptions > kNamedExceptions)
        return phrases << LocalizedCount(bundle_, "Exceptions Summary", static_cast<int>(exceptions));
    for (const SpecialPage* page : set_.exceptions.pages())
        phrases << exceptionPhrase(static_cast<const ExceptionPage&>(*page));
    return phrases;
}

} // namespace kesta::special_pages
