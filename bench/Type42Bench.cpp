// TrueType to Type 42, beside copying as many bytes as come out, and beside a plain loop over a table of digits.

#include "Pair.h"

#include "panels/booklet_watermark/fonts/Type42.h"

#include <QFile>

#include <malloc.h>

#include <array>
#include <cstring>

namespace kesta::bench {
namespace {

constexpr std::array kFonts = {
    "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
    "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf",
    "/usr/share/fonts/truetype/dejavu/DejaVuSerif-Bold.ttf",
};

void WriteHexByTable(const QByteArray& in, std::vector<char>& out)
{
    static constexpr char kDigits[] = "0123456789ABCDEF";
    char* to = out.data();
    for (const char byte : in) {
        *to++ = kDigits[static_cast<unsigned char>(byte) >> 4];
        *to++ = kDigits[byte & 15];
    }
}

void Type42(benchmark::State& state)
{
    QFile file(QString::fromLatin1(kFonts[static_cast<std::size_t>(state.range(0))]));
    if (!file.open(QIODevice::ReadOnly)) {
        state.SkipWithError("install fonts-dejavu-core");
        return;
    }
    const QByteArray font = file.readAll();
    QByteArray sample;
    if (!booklet_watermark::convertTTFtoPS42(font, "Font", sample)) {
        state.SkipWithError("the font was not converted");
        return;
    }

    // All three write to memory that the system has just given, as a program that converts a font does, or to memory
    // that the last one gave back.
    const bool isNew = state.range(1) != 0;
    mallopt(M_MMAP_THRESHOLD, isNew ? 64 * 1024 : 32 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 64 * 1024 * 1024);
    Times conversion, copy, table;
    for (auto _ : state) {
        Measure(conversion, [&] {
            QByteArray output;
            booklet_watermark::convertTTFtoPS42(font, "Font", output);
            benchmark::DoNotOptimize(output.constData());
        });
        Measure(copy, [&] {
            QByteArray output(sample.size(), Qt::Uninitialized);
            std::memcpy(output.data(), sample.constData(), static_cast<std::size_t>(sample.size()));
            benchmark::DoNotOptimize(output.constData());
        });
        Measure(table, [&] {
            std::vector<char> output(2 * static_cast<std::size_t>(font.size()));
            WriteHexByTable(font, output);
            benchmark::DoNotOptimize(output.data());
        });
        state.SetIterationTime(conversion.back());
    }
    state.SetLabel(QFile(file.fileName()).fileName().section(QLatin1Char('/'), -1).toStdString());
    state.SetBytesProcessed(state.iterations() * sample.size());
    state.counters["rate_to_memcpy"] = Median(copy) / Median(conversion);
    state.counters["rate_to_table_loop"] = Median(table) / Median(conversion);
}

BENCHMARK(Type42)
    ->ArgNames({"font", "new_memory"})
    ->ArgsProduct({{0, 1, 2}, {1, 0}})
    ->UseManualTime()
    ->Iterations(300)
    ->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace kesta::bench

BENCHMARK_MAIN();
