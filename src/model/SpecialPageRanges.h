#pragma once

#include "platform/values/Types.h"

#include <QString>

#include <optional>
#include <vector>

namespace kesta {

inline constexpr SInt32 kHighestPageNumber = 99999;

// Results of page ranges and of the editors that use them. Others than these and noErr have no alert.
inline constexpr OSStatus kPageNumberAboveLimit = 1000;
inline constexpr OSStatus kInvalidPageRanges = 1001;
inline constexpr OSStatus kInvalidRangeOrder = 1002;
inline constexpr OSStatus kInvalidPageNumbers = 1003; // raised by the editors only, as is the next
inline constexpr OSStatus kPageRangeConflict = 1234;

struct PageRange {
    SInt32 start;
    SInt32 count;

    bool operator==(const PageRange&) const = default;
};
using PageRanges = std::vector<PageRange>;

// Reads pages and ranges such as "1-3, 7, 20-": an open start is page 1, an open end the highest page number, and
// characters other than digits, dashes and commas are skipped. Page 0 is accepted. Compact gives one element for a
// range, otherwise each page is one of its own (an open end then gives tens of thousands).
//
// noErr: ranges holds at least one element. kMissingArgument: no text or no place for ranges. Other failures clear
// ranges when nothing had been read yet and leave what the caller had there otherwise, so callers clear it first.
OSStatus CreatePageRangesBySeparatingString(const QString* text, bool compact, std::optional<PageRanges>* ranges);

// The localizable texts of the caution alert about a result.
struct PageRangeAlert {
    OSStatus status;
    const char* titleKey;
    const char* messageKey; // of kPageNumberAboveLimit: takes the number of digits of the highest page number
};

// Null for a status without an alert.
const PageRangeAlert* FindPageRangeAlert(OSStatus status);

} // namespace kesta
