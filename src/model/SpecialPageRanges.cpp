#include "model/SpecialPageRanges.h"

#include <algorithm>
#include <array>

namespace kesta {
namespace {

constexpr auto kAlerts = std::to_array<PageRangeAlert>({
    {kPageNumberAboveLimit, "Page Number Limit Title", "Page Number Limit"},
    {kInvalidPageRanges, "Invalid Pages Title", "Invalid Page Ranges"},
    {kInvalidRangeOrder, "Invalid Ranges Title", "Invalid Range Order"},
    {kInvalidPageNumbers, "Invalid Page Numbers Title", "Invalid Page Numbers Message"},
    {kPageRangeConflict, "PageRangeConflictTitle", "PageRangeConflictMessage"},
});
static_assert(kAlerts.size() == 5);

constexpr bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

// Takes the characters one after the other; what is pending becomes a range at the next separator.
class PageRangeParser {
public:
    explicit PageRangeParser(bool compact) : isCompact_(compact) {}

    OSStatus parse(QStringView text);
    PageRanges& ranges() { return ranges_; }

private:
    enum class Pending { Nothing, LeadingDash, Number, NumberAndDash };

    OSStatus takeNumber(SInt32 number);
    OSStatus takeDash();
    OSStatus takeSeparator();
    OSStatus produce(SInt32 start, SInt32 end);

    bool isCompact_;
    Pending pending_ = Pending::Nothing;
    SInt32 start_ = 1;
    PageRanges ranges_;
};

// The number whose first digit is at position, which moves behind its last one; too large a number is just above the
// limit.
SInt32 ReadNumber(QStringView text, qsizetype& position)
{
    SInt32 number = 0;
    for (; position < text.size() && IsDigit(text[position].unicode()); ++position)
        number = std::min(number * 10 + (text[position].unicode() - u'0'), kHighestPageNumber + 1);
    return number;
}

OSStatus PageRangeParser::parse(QStringView text)
{
    OSStatus status = noErr;
    for (qsizetype position = 0; position < text.size() && status == noErr;) {
        const char16_t c = text[position].unicode();
        if (IsDigit(c)) {
            if (pending_ == Pending::Number)
                produce(start_, start_); // only other characters stood between the two numbers
            status = takeNumber(ReadNumber(text, position));
            continue;
        }
        if (c == u'-')
            status = takeDash();
        else if (c == u',')
            status = takeSeparator();
        ++position;
    }
    if (status == noErr)
        status = takeSeparator();
    return status == noErr && ranges_.empty() ? kInvalidPageRanges : status;
}

OSStatus PageRangeParser::takeNumber(SInt32 number)
{
    if (number > kHighestPageNumber)
        return kPageNumberAboveLimit;
    if (pending_ != Pending::Nothing)
        return produce(start_, number);
    start_ = number;
    pending_ = Pending::Number;
    return noErr;
}

OSStatus PageRangeParser::takeDash()
{
    if (pending_ != Pending::Nothing && pending_ != Pending::Number)
        return kInvalidPageRanges;
    pending_ = pending_ == Pending::Number ? Pending::NumberAndDash : Pending::LeadingDash;
    return noErr;
}

OSStatus PageRangeParser::takeSeparator()
{
    switch (pending_) {
    case Pending::Nothing:
        return noErr;
    case Pending::LeadingDash:
        return kInvalidPageRanges;
    case Pending::Number:
        return produce(start_, start_);
    case Pending::NumberAndDash:
        return produce(start_, kHighestPageNumber);
    }
    return noErr;
}

OSStatus PageRangeParser::produce(SInt32 start, SInt32 end)
{
    if (start > end)
        return kInvalidRangeOrder;
    if (isCompact_)
        ranges_.push_back({start, end - start + 1});
    else
        for (SInt32 page = start; page <= end; ++page)
            ranges_.push_back({page, 1});
    pending_ = Pending::Nothing;
    start_ = 1;
    return noErr;
}

} // namespace

OSStatus CreatePageRangesBySeparatingString(const QString* text, bool compact, std::optional<PageRanges>* ranges)
{
    if (!text || !ranges)
        return kMissingArgument;

    PageRangeParser parser(compact);
    const OSStatus status = parser.parse(*text);
    if (status == noErr)
        *ranges = std::move(parser.ranges());
    else if (parser.ranges().empty())
        ranges->reset();
    return status;
}

const PageRangeAlert* FindPageRangeAlert(OSStatus status)
{
    const auto found = std::ranges::find(kAlerts, status, &PageRangeAlert::status);
    return found == kAlerts.end() ? nullptr : &*found;
}

} // namespace kesta
