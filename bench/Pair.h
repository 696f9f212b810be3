// Two ways to do something, measured by turns in one run, so that the machine's load falls on both.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace kesta::bench {

// Seconds of each call.
using Times = std::vector<double>;

template <class Function> void Measure(Times& times, Function function)
{
    const auto start = std::chrono::steady_clock::now();
    function();
    times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
}

inline double Median(Times times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

} // namespace kesta::bench
