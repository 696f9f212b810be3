#include "model/SpecialPageRanges.h"

#include <gtest/gtest.h>

namespace kesta {

void PrintTo(const PageRange& range, std::ostream* out)
{
    *out << '{' << range.start << ", " << range.count << '}';
}

namespace page_ranges_test {
namespace {

using namespace Qt::StringLiterals;

struct Read {
    OSStatus status;
    std::optional<PageRanges> ranges;
};

Read Pages(const QString& text, bool compact = true)
{
    std::optional<PageRanges> ranges;
    const OSStatus status = CreatePageRangesBySeparatingString(&text, compact, &ranges);
    return {status, ranges};
}

struct Accepted {
    const char* text;
    PageRanges ranges;
};

const Accepted kAccepted[] = {
    {"1-3, 7", {{1, 3}, {7, 1}}},
    {"5-", {{5, 99995}}},
    {"-5", {{1, 5}}},
    {"5-,2", {{5, 99995}, {2, 1}}},
    {"3 4", {{3, 1}, {4, 1}}},
    {"3,,4", {{3, 1}, {4, 1}}},
    {",3", {{3, 1}}},
    {"3,", {{3, 1}}},
    {"3-5-7", {{3, 3}, {1, 7}}},
    {"3-5 7", {{3, 3}, {7, 1}}},
    {"3 - 5", {{3, 3}}},
    {"3x-y5", {{3, 3}}},
    {"7-7", {{7, 1}}},
    {"0", {{0, 1}}},
    {"0-1", {{0, 2}}},
    {"007", {{7, 1}}},
    {"000000000000000000000000000001", {{1, 1}}},
    {"99999", {{99999, 1}}},
    {"99999-", {{99999, 1}}},
    {"٣5", {{5, 1}}}, // a digit of another script is skipped
};

TEST(PageRanges, AcceptsLists)
{
    for (const Accepted& accepted : kAccepted) {
        const Read read = Pages(QString::fromUtf8(accepted.text));
        EXPECT_EQ(read.status, noErr) << accepted.text;
        EXPECT_EQ(read.ranges, accepted.ranges) << accepted.text;
    }
}

struct Rejected {
    const char* text;
    OSStatus status;
    bool hadRead; // something, before the failure
};

const Rejected kRejected[] = {
    {"", kInvalidPageRanges, false},
    {"  ", kInvalidPageRanges, false},
    {",,", kInvalidPageRanges, false},
    {"-", kInvalidPageRanges, false},
    {"-,", kInvalidPageRanges, false},
    {"3--5", kInvalidPageRanges, false},
    {"--5", kInvalidPageRanges, false},
    {"1,-", kInvalidPageRanges, true},
    {"3-5-", kInvalidPageRanges, true},
    {"5-3", kInvalidRangeOrder, false},
    {"-0", kInvalidRangeOrder, false},
    {"1 2, 5-3", kInvalidRangeOrder, true},
    {"100000", kPageNumberAboveLimit, false},
    {"5-100000", kPageNumberAboveLimit, false},
    {"5 100000", kPageNumberAboveLimit, true},
    {"4294967297", kPageNumberAboveLimit, false},
    {"99999999999999999999999999999999999999", kPageNumberAboveLimit, false},
};

TEST(PageRanges, RejectsWithACodeAndClearsOnlyWhenNothingWasRead)
{
    for (const Rejected& rejected : kRejected) {
        const QString text = QString::fromUtf8(rejected.text);
        std::optional<PageRanges> ranges = PageRanges{{42, 1}};
        EXPECT_EQ(CreatePageRangesBySeparatingString(&text, true, &ranges), rejected.status) << rejected.text;
        EXPECT_EQ(ranges.has_value(), rejected.hadRead) << rejected.text;
    }
    const QString text = u"1"_s;
    std::optional<PageRanges> ranges;
    EXPECT_EQ(CreatePageRangesBySeparatingString(nullptr, true, &ranges), kMissingArgument);
    EXPECT_EQ(CreatePageRangesBySeparatingString(&text, true, nullptr), kMissingArgument);
}

TEST(PageRanges, EachPageCanBeAnElement)
{
    EXPECT_EQ(Pages(u"1-3, 7"_s, false).ranges, (PageRanges{{1, 1}, {2, 1}, {3, 1}, {7, 1}}));
    const Read open = Pages(u"5-"_s, false);
    ASSERT_EQ(open.ranges->size(), 99995u);
    EXPECT_EQ(open.ranges->back(), (PageRange{99999, 1}));
}

TEST(PageRanges, EachCodeHasItsAlert)
{
    EXPECT_STREQ(FindPageRangeAlert(kPageNumberAboveLimit)->messageKey, "Page Number Limit");
    EXPECT_STREQ(FindPageRangeAlert(kInvalidPageRanges)->titleKey, "Invalid Pages Title");
    EXPECT_STREQ(FindPageRangeAlert(kInvalidRangeOrder)->messageKey, "Invalid Range Order");
    EXPECT_STREQ(FindPageRangeAlert(kInvalidPageNumbers)->titleKey, "Invalid Page Numbers Title");
    EXPECT_STREQ(FindPageRangeAlert(1234)->titleKey, "PageRangeConflictTitle");
    for (const OSStatus silent : {noErr, kMissingArgument, 999})
        EXPECT_EQ(FindPageRangeAlert(silent), nullptr) << silent;
}

} // namespace
} // namespace page_ranges_test
} // namespace kesta
