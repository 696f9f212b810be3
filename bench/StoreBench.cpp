// Saving a watermark into a store that holds others and a font, beside writing as many bytes with WriteFile. What is
// more than 1 is what it takes to read the file and to make its text anew.

#include "Pair.h"

#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "platform/system/SafeFile.h"
#include "platform/system/SharedStoreFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace kesta::bench {
namespace {

using namespace booklet_watermark;

constexpr qsizetype kFontSize = 700'000; // bytes, of a usual font as Type 42

_WatermarkData TextWatermark(int number)
{
    _WatermarkData record;
    record.text.set(QStringLiteral("Watermark %1").arg(number));
    record.isText = 1;
    record.glyphs.assign(12, 77);
    return record;
}

void StoreSave(benchmark::State& state)
{
    const QTemporaryDir folder;
    qputenv("KESTA_DATA_ROOT", QFile::encodeName(folder.path()));
    const auto count = static_cast<int>(state.range(0));
    for (int i = 0; i < count; ++i)
        saveWatermarkData(kWatermarkFile, TextWatermark(i));
    if (state.range(1) != 0)
        storeFontData(kWatermarkFile, u"DejaVuSans", QByteArray(kFontSize, '7'));

    const QString path = CopyPreferenceFileURL(kWatermarkFile).value_or(QString());
    const QByteArray same(QFileInfo(path).size(), ' ');
    Times save, write;
    _WatermarkData changed = TextWatermark(count / 2);
    for (auto _ : state) {
        changed.angle = (changed.angle + 1) % 10; // what is there already isn't written
        Measure(save, [&] { saveWatermarkData(kWatermarkFile, changed); });
        Measure(write, [&] { WriteFile(folder.filePath(QStringLiteral("same")), same); });
        state.SetIterationTime(save.back());
    }
    if (QFileInfo(path).size() != same.size())
        state.SkipWithError("the store is not what it was");
    state.counters["file_bytes"] = static_cast<double>(same.size());
    state.counters["save_to_write"] = Median(save) / Median(write);
}

BENCHMARK(StoreSave)
    ->ArgNames({"watermarks", "font"})
    ->Args({10, 0})
    ->Args({100, 0})
    ->Args({10, 1})
    ->UseManualTime()
    ->Iterations(40)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kesta::bench

BENCHMARK_MAIN();
