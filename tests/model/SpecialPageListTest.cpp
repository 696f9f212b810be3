#include "model/SpecialPageList.h"

#include <gtest/gtest.h>

#include <random>

namespace kesta::special_page_list_test {
namespace {

struct Range {
    SInt32 start, end, plex;
    auto operator<=>(const Range&) const = default;
};

void PrintTo(const Range& range, std::ostream* out)
{
    *out << range.start << '-' << range.end << " plex " << range.plex;
}

ExceptionPage Exception(const Range& range)
{
    ExceptionPage page;
    page.setStartPage(range.start);
    page.setEndPage(range.end);
    page.setPlex(range.plex);
    return page;
}

void Add(ExceptionPageList& list, const std::vector<Range>& ranges)
{
    std::vector<ExceptionPage> pages;
    SpecialPages added;
    std::ranges::transform(ranges, std::back_inserter(pages), Exception);
    for (const ExceptionPage& page : pages)
        added.push_back(&page);
    ASSERT_EQ(list.add(added), noErr);
}

std::vector<Range> Ranges(const SpecialPageList& list)
{
    std::vector<Range> ranges;
    for (CFIndex index = 0; const SpecialPage* page = list.pageAtIndex(index); ++index) {
        const auto& exception = dynamic_cast<const ExceptionPage&>(*page);
        ranges.push_back({exception.startPage(), exception.endPage(), exception.plex()});
    }
    return ranges;
}

struct Split {
    std::vector<Range> before;
    Range added;
    std::vector<Range> after;
};

const Split kSplits[] = {
    {{}, {5, 10, 1}, {{5, 10, 1}}},
    {{{1, 20, 1}}, {5, 10, 2}, {{1, 4, 1}, {5, 10, 2}, {11, 20, 1}}},
    {{{5, 10, 1}, {12, 15, 2}}, {1, 20, 3}, {{1, 20, 3}}},
    {{{1, 5, 1}, {6, 10, 2}}, {3, 8, 3}, {{1, 2, 1}, {3, 8, 3}, {9, 10, 2}}},
    {{{1, 5, 1}}, {1, 5, 2}, {{1, 5, 2}}},
    {{{1, 5, 1}}, {1, 3, 2}, {{1, 3, 2}, {4, 5, 1}}},
    {{{1, 5, 1}}, {3, 5, 2}, {{1, 2, 1}, {3, 5, 2}}},
    {{{4, 5, 1}}, {1, 3, 2}, {{1, 3, 2}, {4, 5, 1}}},
    {{{4, 5, 1}}, {1, 4, 2}, {{1, 4, 2}, {5, 5, 1}}},
    {{{4, 5, 1}}, {6, 6, 2}, {{4, 5, 1}, {6, 6, 2}}},
    {{{1, 20, 1}}, {10, 5, 2}, {{1, 9, 1}, {10, 5, 2}, {11, 20, 1}}}, // ends before it starts: page 10 only
    {{{10, 5, 1}}, {10, 10, 2}, {{10, 10, 2}}},
    {{{1, 2147483647, 1}}, {2147483647, 2147483647, 2}, {{1, 2147483646, 1}, {2147483647, 2147483647, 2}}},
};

TEST(ExceptionPageList, ANewPageTakesItsRangeFromTheOthers)
{
    for (const Split& split : kSplits) {
        ExceptionPageList list;
        Add(list, split.before);
        Add(list, {split.added});
        EXPECT_EQ(Ranges(list), split.after) << "adding " << testing::PrintToString(split.added);
    }
}

TEST(ExceptionPageList, ARestKeepsTheSettingsOfThePageItWasPartOf)
{
    ExceptionPage whole = Exception({1, 20, 1});
    whole.stock().setColor(7);
    whole.setHalftoneScreen(3);
    ExceptionPageList list;
    list.add({&whole});
    Add(list, {{5, 10, 2}});
    const auto& rest = dynamic_cast<const ExceptionPage&>(*list.pageAtIndex(2));
    EXPECT_EQ(rest.stock().color(), 7);
    EXPECT_EQ(rest.halftoneScreen(), 3);
    EXPECT_EQ(dynamic_cast<const ExceptionPage&>(*list.pageAtIndex(1)).stock().color(), kStockColorWhite);
}

// The pages of a job, each with the plex of the exception that has it.
TEST(ExceptionPageList, ManyPagesEndUpWithTheirLastException)
{
    constexpr SInt32 pages = 3000;
    std::mt19937 random(7);
    std::vector<SInt32> expected(pages, kUnset);
    ExceptionPageList list;
    for (SInt32 plex = 0; plex < 4000; ++plex) {
        const SInt32 start = static_cast<SInt32>(random() % pages);
        const SInt32 length = static_cast<SInt32>(plex % 500 == 0 ? random() % 800 : random() % 3);
        const SInt32 end = std::min(start + length, pages - 1);
        Add(list, {{start, end, plex}});
        std::fill(expected.begin() + start, expected.begin() + end + 1, plex);
    }

    std::vector<SInt32> found(pages, kUnset);
    SInt32 last = -1;
    for (const Range& range : Ranges(list)) {
        ASSERT_LT(last, range.start);
        ASSERT_LE(range.start, range.end);
        std::fill(found.begin() + range.start, found.begin() + range.end + 1, range.plex);
        last = range.end;
    }
    EXPECT_EQ(found, expected);
    for (CFIndex index = 0; index < static_cast<CFIndex>(list.count()); index += 97)
        EXPECT_EQ(list.indexOfPage(list.pageAtIndex(index)), index);
}

TEST(ExceptionPageList, UpdatingSplitsAgain)
{
    ExceptionPageList list;
    Add(list, {{1, 4, 1}, {5, 10, 2}, {11, 20, 3}});
    const ExceptionPage moved = Exception({3, 12, 4});
    EXPECT_EQ(list.update(list.pageAtIndex(1), {&moved}), noErr);
    EXPECT_EQ(Ranges(list), (std::vector<Range>{{1, 2, 1}, {3, 12, 4}, {13, 20, 3}}));

    EXPECT_EQ(list.update(&moved, {}), noErr) << "not in the list";
    EXPECT_EQ(list.count(), 3u);

    const SpecialPage* old = list.pageAtIndex(1);
    const Cover cover;
    EXPECT_EQ(list.update(old, {&moved, &cover}), kMissingArgument);
    EXPECT_EQ(list.indexOfPage(old), 1) << "the old page is back";
    EXPECT_EQ(list.add({nullptr}), kMissingArgument);
    EXPECT_EQ(list.count(), 3u);
    const ExceptionPage exception;
    EXPECT_EQ(InsertList().add({&exception}), kMissingArgument);
}

TEST(ExceptionPageList, PagesOfTheListItselfCanBeAdded)
{
    ExceptionPageList list;
    Add(list, {{1, 3, 1}, {5, 7, 2}});
    EXPECT_EQ(list.add({list.pageAtIndex(0), list.pageAtIndex(1), list.pageAtIndex(0)}), noErr);
    EXPECT_EQ(Ranges(list), (std::vector<Range>{{1, 3, 1}, {5, 7, 2}}));
}

TEST(SpecialPageList, RemovesClearsAndCopies)
{
    ExceptionPageList list;
    EXPECT_EQ(list.asTicket(), std::nullopt);
    Add(list, {{1, 3, 1}, {5, 7, 2}});
    const ExceptionPageList copy = list;
    const auto clone = list.clone();
    EXPECT_EQ(*list.asTicket(), (Array{Exception({1, 3, 1}).asTicket(), Exception({5, 7, 2}).asTicket()}));

    const ExceptionPage other;
    EXPECT_EQ(list.remove(&other), -1);
    EXPECT_EQ(list.indexOfPage(&other), -1);
    EXPECT_EQ(list.remove(list.pageAtIndex(0)), noErr);
    EXPECT_EQ(Ranges(list), (std::vector<Range>{{5, 7, 2}}));
    EXPECT_EQ(list.pageAtIndex(1), nullptr);
    EXPECT_EQ(list.pageAtIndex(-1), nullptr);
    list.clear();
    EXPECT_EQ(list.count(), 0u);
    EXPECT_EQ(Ranges(copy).size(), 2u);
    EXPECT_EQ(Ranges(*clone), Ranges(copy));
}

// Inserts named by their quantity.
void Add(InsertList& list, const std::vector<std::pair<SInt32, SInt32>>& startsAndNames)
{
    std::vector<Insert> inserts(startsAndNames.size());
    SpecialPages added;
    for (std::size_t i = 0; i < inserts.size(); ++i) {
        inserts[i].setStartPage(startsAndNames[i].first);
        inserts[i].setQuantity(startsAndNames[i].second);
        added.push_back(&inserts[i]);
    }
    ASSERT_EQ(list.add(added), noErr);
}

std::vector<SInt32> Names(const InsertList& list)
{
    std::vector<SInt32> names;
    for (CFIndex index = 0; const SpecialPage* page = list.pageAtIndex(index); ++index)
        names.push_back(dynamic_cast<const Insert&>(*page).quantity());
    return names;
}

TEST(InsertList, PlacesEachBeforeTheFirstThatStartsBehindIt)
{
    std::mt19937 random(11);
    InsertList list;
    std::vector<std::pair<SInt32, SInt32>> expected;
    for (SInt32 name = 0; name < 3000;) {
        std::vector<std::pair<SInt32, SInt32>> batch;
        for (auto i = random() % 40; i > 0; --i)
            batch.emplace_back(static_cast<SInt32>(random() % 200 + 1), name++);
        Add(list, batch);
        for (const auto& insert : batch)
            expected.insert(std::ranges::find_if(expected, [&](auto& e) { return e.first > insert.first; }), insert);

        const std::size_t moved = random() % list.count(); // out of its order
        list.demote(list.pageAtIndex(static_cast<CFIndex>(moved)));
        if (moved + 1 < expected.size()) // no start page is 0
            std::swap(expected[moved], expected[moved + 1]);
    }
    std::vector<SInt32> names;
    std::ranges::transform(expected, std::back_inserter(names), [](auto& insert) { return insert.second; });
    EXPECT_EQ(Names(list), names);
}

TEST(InsertList, MovesPastAnyInsertButOneBeforePageOne)
{
    InsertList list;
    Add(list, {{0, 1}, {3, 2}, {3, 3}, {8, 4}});
    const auto at = [&](CFIndex index) { return list.pageAtIndex(index); };
    EXPECT_FALSE(list.canPromote(at(0)));
    EXPECT_FALSE(list.canPromote(at(1))) << "an insert before page 1 stays first";
    EXPECT_TRUE(list.canPromote(at(3))) << "past another page";
    EXPECT_TRUE(list.canDemote(at(0))) << "but itself may go down";
    EXPECT_FALSE(list.canDemote(at(3)));
    const Insert other;
    for (const SpecialPage* absent :
         {static_cast<const SpecialPage*>(&other), static_cast<const SpecialPage*>(nullptr)}) {
        EXPECT_FALSE(list.canPromote(absent));
        EXPECT_FALSE(list.canDemote(absent));
    }

    list.promote(at(1));
    EXPECT_EQ(Names(list), (std::vector<SInt32>{1, 2, 3, 4}));
    list.promote(at(3));
    EXPECT_EQ(Names(list), (std::vector<SInt32>{1, 2, 4, 3}));
    list.demote(at(0));
    EXPECT_EQ(Names(list), (std::vector<SInt32>{2, 1, 4, 3}));
    list.demote(at(3));
    EXPECT_FALSE(list.canDemote(at(0)));
    EXPECT_EQ(Names(list), (std::vector<SInt32>{2, 1, 4, 3}));
}

} // namespace
} // namespace kesta::special_page_list_test
