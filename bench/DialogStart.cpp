// From exec to exit, and peak memory: kesta-print with all options shown and gone again beside Qt's own print dialog
// with its options tab, and kesta-print that sends a document without a dialog beside lp, on the same queue, run by
// turns. Needs KESTA_BENCH_QUEUE and CUPS_SERVER; scripts/bench sets both.

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

extern char** environ;

namespace {

struct Run {
    double milliseconds = 0;
    double peakMiB = 0;
    bool succeeded = false;
};

Run RunOnce(std::vector<std::string> arguments)
{
    std::vector<char*> argv;
    for (std::string& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&quiet, 2, "/dev/null", O_WRONLY, 0);

    Run run;
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    const auto start = std::chrono::steady_clock::now();
    if (posix_spawn(&child, argv[0], &quiet, nullptr, argv.data(), environ) == 0 &&
        wait4(child, &status, 0, &usage) == child) {
        const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
        run = {spent.count(), static_cast<double>(usage.ru_maxrss) / 1024,
               WIFEXITED(status) && WEXITSTATUS(status) == 0};
    }
    posix_spawn_file_actions_destroy(&quiet);
    return run;
}

double Median(std::vector<double> values)
{
    std::ranges::nth_element(values, values.begin() + values.size() / 2);
    return values[values.size() / 2];
}

void Compare(benchmark::State& state, const std::vector<std::string>& ours, const std::vector<std::string>& peer)
{
    std::vector<double> ourTimes, peerTimes, ourPeaks, peerPeaks;
    for (auto _ : state) {
        const Run a = RunOnce(ours);
        const Run b = RunOnce(peer);
        if (!a.succeeded || !b.succeeded) {
            state.SkipWithError(a.succeeded ? "the peer failed" : "kesta-print failed");
            return;
        }
        state.SetIterationTime(a.milliseconds / 1000);
        ourTimes.push_back(a.milliseconds);
        peerTimes.push_back(b.milliseconds);
        ourPeaks.push_back(a.peakMiB);
        peerPeaks.push_back(b.peakMiB);
    }
    state.counters["ours_ms"] = Median(ourTimes);
    state.counters["peer_ms"] = Median(peerTimes);
    state.counters["time_ratio"] = Median(ourTimes) / Median(peerTimes);
    state.counters["ours_MiB"] = Median(ourPeaks);
    state.counters["peer_MiB"] = Median(peerPeaks);
}

const char* Given(benchmark::State& state, const char* variable)
{
    const char* value = std::getenv(variable);
    if (!value)
        state.SkipWithError("run this through scripts/bench");
    return value;
}

void DialogStart(benchmark::State& state)
{
    const char* queue = Given(state, "KESTA_BENCH_QUEUE");
    const char* script = Given(state, "KESTA_BENCH_SCRIPT");
    if (queue && script)
        Compare(state, {KESTA_PRINT, "-d", queue, "--script", script}, {PEER, queue});
}

void Submission(benchmark::State& state)
{
    if (const char* queue = Given(state, "KESTA_BENCH_QUEUE"))
        Compare(state, {KESTA_PRINT, "-d", queue, "--no-dialog", SAMPLE}, {"/usr/bin/lp", "-d", queue, SAMPLE});
}

BENCHMARK(DialogStart)->UseManualTime()->Iterations(25)->Unit(benchmark::kMillisecond);
BENCHMARK(Submission)->UseManualTime()->Iterations(25)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
