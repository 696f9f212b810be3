#include "panels/special_pages/editors/PageDescriptions.h"

#include "panels/special_pages/paper/StockSummary.h"
#include "pde/menus/SettingMap.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "product/Westmarch2.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

QString WithPaper(const Bundle& bundle, JobContext context, QStringList parts, const Stock& stock)
{
    const QString paper = GenerateStockSummary(bundle, context, stock, u", "_s);
    if (!paper.isEmpty())
        parts << paper;
    return parts.join(u";  "_s);
}

} // namespace

SInt32 LastPageOf(const ExceptionPage& exception)
{
    return std::max(exception.startPage(), exception.endPage());
}

QString PageRangeText(const Bundle& bundle, const ExceptionPage& exception)
{
    return LocalizedFormat(bundle, "Page Range In List",
                           {QString::number(exception.startPage()), QString::number(LastPageOf(exception))});
}

QString PlexText(const Bundle& bundle, SInt32 plex)
{
    const char* key = LocalizedKeyForTicketValue(_PlexMap, plex);
    return key ? LocalizedString(bundle, key) : LocalizedFormat(bundle, "Unknown Setting", {QString::number(plex)});
}

QString CreateInsertAttributesDescription(const Bundle& bundle, const Insert& insert)
{
    const QString sheets =
        LocalizedFormat(bundle, "Sheets Described",
                        {LocalizedString(bundle, "InsertSummaryQuantity"), QString::number(insert.quantity())});
    return WithPaper(bundle, JobContext::Insert, {sheets}, insert.stock());
}

QString CreateExceptionAttributesDescription(const Bundle& bundle, const ExceptionPage& exception)
{
    QStringList parts;
    if (exception.plex() != kUnset)
        parts << PlexText(bundle, exception.plex());
    return WithPaper(bundle, JobContext::ExceptionPage, parts, exception.stock());
}

} // namespace kesta
