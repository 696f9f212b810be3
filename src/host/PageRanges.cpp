#include "host/PageRanges.h"

#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// The page of that text; open stands for a missing one.
PageRangesFault ReadPage(const QString& text, SInt32 open, SInt32& page)
{
    page = open;
    if (text.isEmpty())
        return PageRangesFault::None;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            return PageRangesFault::NotANumber;
    }
    bool fits = false;
    page = text.toInt(&fits);
    return fits && page >= 1 && page <= kLastPage ? PageRangesFault::None : PageRangesFault::NoSuchPage;
}

PageRangesFault ReadRange(const QString& text, PageRange& range)
{
    const QStringList ends = text.split(u'-');
    const QString first = ends.front().trimmed();
    const QString last = ends.back().trimmed();
    if (ends.size() > 2 || (first.isEmpty() && last.isEmpty()))
        return PageRangesFault::NotANumber;
    if (const PageRangesFault fault = ReadPage(first, 1, range.first); fault != PageRangesFault::None)
        return fault;
    if (const PageRangesFault fault = ReadPage(last, kLastPage, range.last); fault != PageRangesFault::None)
        return fault;
    return range.last < range.first ? PageRangesFault::Backwards : PageRangesFault::None;
}

std::vector<PageRange> Joined(std::vector<PageRange> ranges)
{
    std::ranges::sort(ranges, {}, &PageRange::first);
    std::vector<PageRange> joined;
    for (const PageRange& range : ranges) {
        if (!joined.empty() && range.first <= joined.back().last + 1)
            joined.back().last = std::max(joined.back().last, range.last);
        else
            joined.push_back(range);
    }
    return joined;
}

} // namespace

PageRanges ParsePageRanges(const QString& typed)
{
    QString text = typed.trimmed();
    text.replace(u';', u',');
    text.replace(u'\u2013', u'-'); // what word processors make of a dash
    if (text.isEmpty())
        return {};
    PageRanges read;
    for (const QString& part : text.split(u',')) {
        if (read.ranges.size() >= kMostRanges)
            return {.ranges = {}, .fault = PageRangesFault::TooMany};
        PageRange range;
        if (const PageRangesFault fault = ReadRange(part, range); fault != PageRangesFault::None)
            return {.ranges = {}, .fault = fault};
        read.ranges.push_back(range);
    }
    read.ranges = Joined(std::move(read.ranges));
    return read;
}

QString WritePageRanges(const std::vector<PageRange>& ranges, const QString& separator)
{
    QStringList texts;
    for (const PageRange& range : ranges) {
        QString text = QString::number(range.first);
        if (range.last == kLastPage && range.first != kLastPage)
            text += u'-';
        else if (range.last != range.first)
            text += u"-%1"_s.arg(range.last);
        texts << text;
    }
    return texts.join(separator);
}

} // namespace kesta::host
