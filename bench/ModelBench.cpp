// Page ranges beside sorting as many numbers, the growth of a list of exception pages, and reading a property list.

#include "Pair.h"

#include "model/SpecialPageList.h"
#include "model/SpecialPageRanges.h"
#include "platform/values/PropertyList.h"

#include <algorithm>
#include <numeric>
#include <random>

namespace kesta::bench {
namespace {

std::vector<SInt32> ShuffledPages(std::size_t count, SInt32 step = 1, unsigned seed = 7)
{
    std::vector<SInt32> pages(count);
    for (SInt32 page = 1; SInt32 & number : pages) {
        number = page;
        page = page + step > kHighestPageNumber ? 1 : page + step;
    }
    std::ranges::shuffle(pages, std::mt19937(seed));
    return pages;
}

// Both begin with the same numbers in the same order, another one each time: a processor that meets an order again has
// learnt how the comparisons come out, which no user's text is read often enough for.
void PageRangesToSort(benchmark::State& state)
{
    Times parse, sort;
    for (auto _ : state) {
        const std::vector<SInt32> pages =
            ShuffledPages(static_cast<std::size_t>(state.range(0)), 1, static_cast<unsigned>(parse.size()));
        QString text;
        for (const SInt32 page : pages)
            text += QString::number(page) + QLatin1Char(',');
        std::optional<PageRanges> ranges;
        Measure(parse, [&] { CreatePageRangesBySeparatingString(&text, true, &ranges); });
        std::vector<SInt32> numbers = pages;
        Measure(sort, [&] { std::sort(numbers.begin(), numbers.end()); });
        if (!ranges || ranges->size() != numbers.size()) {
            state.SkipWithError("ranges are missing");
            return;
        }
        benchmark::DoNotOptimize(numbers.data());
        state.SetIterationTime(parse.back());
    }
    state.counters["time_to_sort"] = Median(parse) / Median(sort);
}

BENCHMARK(PageRangesToSort)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(90'000)
    ->UseManualTime()
    ->Iterations(60)
    ->Unit(benchmark::kMicrosecond);

struct Exceptions {
    std::vector<ExceptionPage> pages;
    SpecialPages list;
};

// Single pages with one between, so that none is split; in any order.
Exceptions MakeExceptions(std::size_t count)
{
    Exceptions made;
    made.pages.resize(count);
    const std::vector<SInt32> numbers = ShuffledPages(count, 2);
    for (std::size_t i = 0; i < count; ++i) {
        made.pages[i].setStartPage(numbers[i]);
        made.pages[i].setEndPage(numbers[i]);
        made.list.push_back(&made.pages[i]);
    }
    return made;
}

void ExceptionListGrowth(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    const Exceptions once = MakeExceptions(count), twice = MakeExceptions(2 * count),
                     fourfold = MakeExceptions(4 * count);
    const auto fill = [&](const Exceptions& exceptions, Times& times) {
        ExceptionPageList list;
        Measure(times, [&] { list.add(exceptions.list); });
        return list.count() == exceptions.list.size();
    };
    Times n, n2, n4;
    for (auto _ : state) {
        if (!fill(once, n) || !fill(twice, n2) || !fill(fourfold, n4)) {
            state.SkipWithError("pages are missing");
            return;
        }
        state.SetIterationTime(n.back());
    }
    state.counters["time_2n_to_n"] = Median(n2) / Median(n);
    state.counters["time_4n_to_2n"] = Median(n4) / Median(n2);
}

BENCHMARK(ExceptionListGrowth)->Arg(1000)->Arg(10'000)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

void PropertyListLoad(benchmark::State& state)
{
    Array entries;
    for (SInt32 i = 0; i < 2000; ++i)
        entries.emplace_back(Dictionary{{"Name", QStringLiteral("Entry %1").arg(i)}, {"Size", Number::Index(i)}});
    const QByteArray xml = WritePropertyList(Value(entries));
    for (auto _ : state) {
        const PropertyListResult result = ParsePropertyList(xml);
        if (!result.value) {
            state.SkipWithError("the list was not read");
            return;
        }
    }
    state.SetBytesProcessed(state.iterations() * xml.size());
    state.counters["ns_per_byte"] = benchmark::Counter(static_cast<double>(state.iterations() * xml.size()) / 1e9,
                                                       benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK(PropertyListLoad)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kesta::bench

BENCHMARK_MAIN();
