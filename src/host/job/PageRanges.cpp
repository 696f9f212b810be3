#include "host/job/PageRanges.h"

#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// The page of that text; open stands for a missing one.
PageRangesProblem ReadPage(const QString& text, SInt32 open, SInt32& page)
{
    page = open;
    if (text.isEmpty())
        return PageRangesProblem::None;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            return PageRangesProblem::NotANumber;
    }
    bool fits = false;
    page = text.toInt(&fits);
    return fits && page >= 1 && page <= kLastPage ? PageRangesProblem::None : PageRangesProblem::NoSuchPage;
}

PageRangesProblem ReadRange(const QString& text, PageRange& range)
{
    const QStringList ends = text.split(u'-');
    const QString first = ends.front().trimmed();
    const QString last = ends.back().trimmed();
    if (ends.size() > 2 || (first.isEmpty() && last.isEmpty()))
        return PageRangesProblem::NotANumber;
    if (const PageRangesProblem problem = ReadPage(first, 1, range.first); problem != PageRangesProblem::None)
        return problem;
    if (const PageRangesProblem problem = ReadPage(last, kLastPage, range.last); problem != PageRangesProblem::None)
        return problem;
    return range.last < range.first ? PageRangesProblem::Backwards : PageRangesProblem::None;
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
            return {.ranges = {}, .problem = PageRangesProblem::TooMany};
        PageRange range;
        if (const PageRangesProblem problem = ReadRange(part, range); problem != PageRangesProblem::None)
            return {.ranges = {}, .problem = problem};
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
