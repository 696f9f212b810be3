// Page ranges as users type them, by the rules of the panels and by those of the dialog: ranges name the pages that
// they expand to, and what the dialog writes reads back.

#include "Input.h"
#include "host/job/PageRanges.h"
#include "model/SpecialPageRanges.h"

using namespace kesta;
using fuzz::Require;

namespace {

constexpr qsizetype kMostExpanded = 3; // dashes; each may give all pages there are

PageRanges Expanded(const PageRanges& ranges)
{
    PageRanges pages;
    for (const PageRange& range : ranges)
        for (SInt32 page = range.start; page < range.start + range.count; ++page)
            pages.push_back({page, 1});
    return pages;
}

void CheckPanel(const QString& text)
{
    std::optional<PageRanges> ranges, pages;
    const OSStatus status = CreatePageRangesBySeparatingString(&text, true, &ranges);
    Require((status == noErr) == ranges.has_value() && (!ranges || !ranges->empty()));
    Require(status == noErr || FindPageRangeAlert(status));
    for (const PageRange& range : ranges.value_or(PageRanges()))
        Require(range.start >= 0 && range.count >= 1 && range.start + range.count - 1 <= kHighestPageNumber);
    if (text.count(u'-') > kMostExpanded)
        return;
    Require(CreatePageRangesBySeparatingString(&text, false, &pages) == status);
    Require(!ranges || Expanded(*ranges) == pages);
}

void CheckDialog(const QString& text)
{
    using namespace host;
    const host::PageRanges read = ParsePageRanges(text);
    Require(read.problem == PageRangesProblem::None || read.ranges.empty());
    SInt32 last = -1;
    for (const host::PageRange& range : read.ranges) {
        Require(range.first > last + 1 && range.last >= range.first && range.last <= kLastPage);
        last = range.last;
    }
    Require(ParsePageRanges(WritePageRanges(read.ranges, QStringLiteral(", "))).ranges == read.ranges);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(fuzz::Bytes(data, size));
    CheckPanel(text);
    CheckDialog(text);
    return 0;
}
