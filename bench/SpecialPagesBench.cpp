// How reading the special pages of a ticket, putting them in the order of the list, typing and moving them grow with
// their number: twice as many should take at most 2.2 times as long.

#include "Pair.h"

#include "panels/special_pages/SpecialPageSet.h"
#include "panels/special_pages/editors/PageTextRules.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"

#include <ctime>

namespace kesta::bench {
namespace {

using special_pages::SpecialPageSet;

void FillTicket(Ticket& settings, SInt32 count)
{
    Array inserts, exceptions;
    for (SInt32 page = 1; page <= count; ++page) {
        Dictionary special{{"Stock", Dictionary()}};
        WriteTicketValue(special, "StartPage", page);
        WriteTicketValue(special, "EndPage", page);
        inserts.emplace_back(special);
        exceptions.emplace_back(std::move(special));
    }
    settings.set("bench", key::SpecialPagesInsertList, std::move(inserts));
    settings.set("bench", key::SpecialPagesExceptionList, std::move(exceptions));
}

QString PageText(SInt32 count)
{
    QString text;
    for (SInt32 page = count; page > 0; --page) // the other way round
        text += QString::number(page) + QLatin1Char(',');
    return text;
}

// In seconds of the processor: some of these take so short that another program's turn would be most of the time.
template <class Function> void MeasureWork(Times& times, Function function)
{
    const std::clock_t start = std::clock();
    function();
    times.push_back(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
}

template <class Work> void Grow(benchmark::State& state, const Work& work)
{
    const auto count = static_cast<SInt32>(state.range(0));
    Times once, twice;
    for (auto _ : state) {
        work(count, once);
        state.SetIterationTime(once.back());
    }
    for (std::size_t i = 0; i < once.size(); ++i) // not by turns: what one size leaves of the heap slows the other down
        work(2 * count, twice);
    state.counters["time_2n_to_n"] = Median(twice) / Median(once);
}

void BuildingFromTicket(benchmark::State& state)
{
    Grow(state, [](SInt32 count, Times& times) {
        Ticket settings;
        FillTicket(settings, count);
        MeasureWork(times, [&] {
            SpecialPageSet set;
            special_pages::ReadTicket(set, settings);
            benchmark::DoNotOptimize(special_pages::RowsOf(set).size());
        });
    });
}

void PlacingTypedExceptions(benchmark::State& state)
{
    Grow(state, [](SInt32 count, Times& times) {
        const QString text = PageText(count);
        MeasureWork(times, [&] {
            SpecialPageSet set;
            std::vector<ExceptionPage> made;
            MakeExceptions(ExceptionPage(), text, set.exceptions, nullptr, made);
            PlacePages(set.exceptions, nullptr, PointersTo(made), {});
            benchmark::DoNotOptimize(set.exceptions.count());
        });
    });
}

void MovingEveryInsert(benchmark::State& state)
{
    Grow(state, [](SInt32 count, Times& times) {
        InsertList list;
        std::vector<Insert> made;
        MakeInserts(Insert(), kAfterPage, PageText(count), made);
        list.add(PointersTo(made));
        const SpecialPages pages = list.pages();
        const ChosenPages all(pages.begin(), pages.end());
        MeasureWork(times, [&] {
            list.demote(all);
            list.remove(all);
        });
    });
}

BENCHMARK(BuildingFromTicket)->Arg(10'000)->UseManualTime()->Iterations(11)->Unit(benchmark::kMillisecond);
// So few that they stay near the processor: what more memory costs is not what grows here.
BENCHMARK(PlacingTypedExceptions)->Arg(2'000)->UseManualTime()->Iterations(51)->Unit(benchmark::kMillisecond);
BENCHMARK(MovingEveryInsert)->Arg(10'000)->UseManualTime()->Iterations(11)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kesta::bench

BENCHMARK_MAIN();
