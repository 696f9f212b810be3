#include "panels/special_pages/editors/PageTextRules.h"

#include "panels/special_pages/editors/PageDescriptions.h"
#include "pde/ticket/LocalizedText.h"
#include "pde/ticket/TicketUtilities.h"
#include "platform/plugins/Bundle.h"
#include "platform/system/Notices.h"

#include <algorithm>

namespace kesta {
namespace {

SInt32 LastOf(const PageRange& range)
{
    return range.start + range.count - 1;
}

// Of ranges in order.
bool HavePageInCommon(const PageRanges& ranges)
{
    const auto found = std::ranges::adjacent_find(
        ranges, [](const PageRange& one, const PageRange& next) { return next.start <= LastOf(one); });
    return found != ranges.end();
}

PageRanges RangesOf(const ExceptionPageList& list, const SpecialPage* leftOut)
{
    PageRanges ranges;
    for (const SpecialPage* page : list.pages()) {
        const auto& exception = static_cast<const ExceptionPage&>(*page);
        if (page != leftOut)
            ranges.push_back({exception.startPage(), LastPageOf(exception) - exception.startPage() + 1});
    }
    return ranges;
}

// Both are in order; the list has no page twice.
bool IsFree(const PageRanges& ranges, const ExceptionPageList& list, const SpecialPage* edited)
{
    if (HavePageInCommon(ranges))
        return false;
    const PageRanges taken = RangesOf(list, edited);
    auto next = taken.begin();
    return std::ranges::none_of(ranges, [&](const PageRange& range) {
        next = std::find_if(next, taken.end(), [&](const PageRange& one) { return LastOf(one) >= range.start; });
        return next != taken.end() && next->start <= LastOf(range);
    });
}

void ShowNotice(const Bundle& bundle, const char* titleKey, const char* messageKey, const QStringList& arguments)
{
    GetNotices().show(
        {.title = LocalizedString(bundle, titleKey), .message = LocalizedFormat(bundle, messageKey, arguments)});
}

} // namespace

OSStatus ReadPageText(const QString& text, PageRanges& ranges)
{
    std::optional<PageRanges> read;
    const OSStatus status = CreatePageRangesBySeparatingString(&text, true, &read);
    if (status != noErr)
        return status;
    SInt64 pages = 0;
    for (const PageRange& range : *read)
        pages += range.count;
    if (pages > kMostNamedPages)
        return kTooManyPages;
    ranges = std::move(*read);
    return noErr;
}

OSStatus MakeInserts(const Insert& like, SInt32 option, const QString& text, std::vector<Insert>& made)
{
    PageRanges ranges{{0, 1}};
    if (option != kBeforePage1) {
        const OSStatus status = ReadPageText(text, ranges);
        if (status != noErr)
            return status;
    }
    for (const PageRange& range : ranges) {
        for (SInt32 page = range.start; page <= LastOf(range); ++page) {
            made.push_back(like);
            made.back().setStartPage(page);
        }
    }
    return noErr;
}

OSStatus MakeExceptions(const ExceptionPage& like, const QString& text, const ExceptionPageList& list,
                        const SpecialPage* edited, std::vector<ExceptionPage>& made)
{
    PageRanges ranges;
    const OSStatus status = ReadPageText(text, ranges);
    if (status != noErr)
        return status;
    if (std::ranges::any_of(ranges, [](const PageRange& range) { return range.start < 1; }))
        return kInvalidPageNumbers;
    std::ranges::sort(ranges, {}, &PageRange::start);
    if (!IsFree(ranges, list, edited))
        return kPageRangeConflict;
    made.reserve(made.size() + ranges.size());
    for (const PageRange& range : ranges) {
        made.push_back(like);
        made.back().setStartPage(range.start);
        made.back().setEndPage(LastOf(range));
    }
    return noErr;
}

OSStatus PlacePages(SpecialPageList& list, const SpecialPage* edited, const SpecialPages& made,
                    const EditorCalls& calls)
{
    const auto change = [&](SpecialPageList& changed, const SpecialPage* replaced) {
        return replaced ? changed.update(replaced, made) : changed.add(made);
    };
    const std::unique_ptr<SpecialPageList> changed = list.clone();
    const OSStatus status = change(*changed, edited ? changed->pageAtIndex(list.indexOfPage(edited)) : nullptr);
    if (status != noErr)
        return status;
    if (!calls.canCarry(*changed))
        return kMoreThanJobCarries;
    calls.saveUndoState();
    change(list, edited);
    calls.rebuildList();
    return noErr;
}

void SpecialPagesUserNotification(OSStatus code, const Bundle& bundle)
{
    if (const PageRangeAlert* alert = FindPageRangeAlert(code))
        ShowNotice(bundle, alert->titleKey, alert->messageKey, {QString::number(CountDigits(kHighestPageNumber))});
}

void ShowRefusal(OSStatus code, const Bundle& bundle)
{
    if (code == kTooManyPages)
        ShowNotice(bundle, "Too Many Pages Title", "Too Many Pages Message",
                   {CreateLocalizedCFStringFromNumberWithDecimals(kMostNamedPages, 0)});
    else if (code == kMoreThanJobCarries)
        ShowNotice(bundle, "Too Many Special Pages Title", "Too Many Special Pages Message", {});
    else
        SpecialPagesUserNotification(code, bundle);
}

} // namespace kesta
