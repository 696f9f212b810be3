#pragma once

#include "model/SpecialPageList.h"
#include "model/SpecialPageRanges.h"
#include "panels/special_pages/editors/EditorCalls.h"

namespace kesta {

struct Bundle;

inline constexpr char kPageTextCharacters[] = "0123456789, -";
inline constexpr int kLongestPageText = 600'000;
inline constexpr SInt32 kMostNamedPages = 100'000;

// Refusals beside those of page ranges.
inline constexpr OSStatus kTooManyPages = 1500;
inline constexpr OSStatus kMoreThanJobCarries = 1501;

// Reads the text of a page field into ranges. noErr, a result of page ranges, or kTooManyPages, before anything is made
// of so many.
OSStatus ReadPageText(const QString& text, PageRanges& ranges);

inline constexpr SInt32 kAfterPage = 1;
inline constexpr SInt32 kBeforePage1 = 2;

// An insert like the given one after each named page, or before page 1.
OSStatus MakeInserts(const Insert& like, SInt32 option, const QString& text, std::vector<Insert>& made);

// An exception like the given one for each named range. Pages start at 1 and none has two exceptions: neither by the
// text nor together with the list, where the edited one does not count.
OSStatus MakeExceptions(const ExceptionPage& like, const QString& text, const ExceptionPageList& list,
                        const SpecialPage* edited, std::vector<ExceptionPage>& made);

// Adds the pages, or puts them in the place of the edited one, if a job can carry what comes of it; the panel hears of
// it before and after.
OSStatus PlacePages(SpecialPageList& list, const SpecialPage* edited, const SpecialPages& made,
                    const EditorCalls& calls);

template <class Page> SpecialPages PointersTo(const std::vector<Page>& pages)
{
    SpecialPages pointers;
    for (const Page& page : pages)
        pointers.push_back(&page);
    return pointers;
}

// The caution alert of a page range; any other code shows nothing.
void SpecialPagesUserNotification(OSStatus code, const Bundle& bundle);
// The same, and the refusals above.
void ShowRefusal(OSStatus code, const Bundle& bundle);

} // namespace kesta
