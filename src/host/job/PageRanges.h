#pragma once

#include "platform/values/Types.h"

#include <QString>

#include <vector>

namespace kesta::host {

struct PageRange {
    SInt32 first = 1; // from 1
    SInt32 last = 1;  // not below first

    bool operator==(const PageRange&) const = default;
};

enum class PageRangesProblem {
    None,
    NotANumber, // letters, a missing number, two dashes
    NoSuchPage, // page 0 or one above kLastPage
    Backwards,  // the larger page first
    TooMany     // more than kMostRanges
};

inline constexpr SInt32 kLastPage = 99'999;
inline constexpr std::size_t kMostRanges = 200;

struct PageRanges {
    std::vector<PageRange> ranges; // in order, apart from each other; none: all pages
    PageRangesProblem problem = PageRangesProblem::None;
};

// Reads "1-4, 7" as a person types it: blanks anywhere but within a number, commas or semicolons between ranges, "7-"
// to the last page, "-3" from the first. Ranges come back sorted and joined where they touch, because a printer gets
// the pages in their order anyway.
PageRanges ParsePageRanges(const QString& typed);

// "1-4,7", as a print server wants it; with a blank behind each comma for people. Empty for all pages.
QString WritePageRanges(const std::vector<PageRange>& ranges, const QString& separator);

} // namespace kesta::host
