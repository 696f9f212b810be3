#include "host/job/HostTickets.h"

#include "host/job/PageRanges.h"
#include "platform/printsystem/PrintSystemKeys.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

std::optional<SInt32> NumberAt(const Ticket& ticket, const char* key)
{
    const Value* value = ticket.values().find(key);
    return value && value->number() ? value->number()->as<SInt32>() : std::nullopt;
}

QString StringAt(const Ticket& ticket, const char* key)
{
    const QString* text = ticket.values().string(key);
    return text ? *text : QString();
}

void SetNumber(Ticket& ticket, const char* key, SInt32 value)
{
    ticket.set(kHostClient, key, Number::Index(value));
}

QString ReadPageRanges(const Ticket& printSettings)
{
    const PageRanges read = ParsePageRanges(StringAt(printSettings, key::PageRanges));
    return WritePageRanges(read.ranges, u","_s);
}

} // namespace

void WriteTickets(const HostSettings& settings, Ticket& printSettings, Ticket& pageFormat)
{
    printSettings.set(kHostClient, key::PMJobName, settings.jobName);
    SetNumber(printSettings, key::PMCopies, settings.copies);
    printSettings.set(kHostClient, key::PMLayoutNUp, settings.pagesPerSheet > 1);
    SetNumber(printSettings, key::PagesPerSheet, settings.pagesPerSheet);
    if (settings.pageRanges.isEmpty())
        printSettings.remove(kHostClient, key::PageRanges);
    else
        printSettings.set(kHostClient, key::PageRanges, settings.pageRanges);
    SetNumber(pageFormat, key::PMOrientation, static_cast<SInt32>(settings.orientation));
}

HostSettings ReadTickets(const Ticket& printSettings, const Ticket& pageFormat)
{
    HostSettings settings{.jobName = StringAt(printSettings, key::PMJobName),
                          .pageRanges = ReadPageRanges(printSettings)};
    const SInt32 copies = NumberAt(printSettings, key::PMCopies).value_or(1);
    if (copies >= 1 && copies <= kMostCopies)
        settings.copies = copies;
    const SInt32 pages = NumberAt(printSettings, key::PagesPerSheet).value_or(1);
    if (std::ranges::find(kPagesPerSheet, pages) != kPagesPerSheet.end())
        settings.pagesPerSheet = pages;
    const SInt32 orientation = NumberAt(pageFormat, key::PMOrientation).value_or(1);
    if (orientation >= 1 && orientation <= 4)
        settings.orientation = static_cast<Orientation>(orientation);
    return settings;
}

void WritePaperRect(const PaperRect& paper, Ticket& pageFormat)
{
    Array edges;
    for (const double edge : {paper.top, paper.left, paper.bottom, paper.right})
        edges.emplace_back(Number::Float64(edge));
    pageFormat.set(kHostClient, key::PMUnadjustedPaperRect, std::move(edges));
}

std::optional<PaperRect> ReadPaperRect(const Ticket& pageFormat)
{
    const Array* edges = pageFormat.values().array(key::PMUnadjustedPaperRect);
    if (!edges || edges->size() != 4)
        return std::nullopt;
    std::array<double, 4> read{};
    for (std::size_t i = 0; i < read.size(); ++i) {
        const Number* edge = (*edges)[i].number();
        const std::optional<Float64> points = edge ? edge->as<Float64>() : std::nullopt;
        if (!points)
            return std::nullopt;
        read[i] = *points;
    }
    return PaperRect{read[0], read[1], read[2], read[3]};
}

void WriteInitialDuplexing(SInt32 duplexing, Ticket& printSettings)
{
    if (!printSettings.values().find(key::PMDuplexing))
        SetNumber(printSettings, key::PMDuplexing, duplexing);
}

} // namespace kesta::host
