// The preview of a watermark: its font looked up, its text laid out and drawn, beside Cairo alone drawing the same page
// at a place that is known already. Once with the record at hand, as the editor does it, and once with the record read
// from the store.

#include "DirectPage.h"
#include "Pair.h"

#include "panels/booklet_watermark/fonts/FontLookup.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include <QFile>
#include <QTemporaryDir>

namespace kesta::bench {
namespace {

using namespace booklet_watermark;

cairo_status_t Append(void* buffer, const unsigned char* bytes, unsigned count)
{
    static_cast<PreviewBuffer*>(buffer)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

void PreviewRender(benchmark::State& state)
{
    const QTemporaryDir folder;
    qputenv("KESTA_DATA_ROOT", QFile::encodeName(folder.path()));
    const _WatermarkData record = ConfidentialIn("DejaVuSans");
    saveWatermarkData(kWatermarkFile, record);
    saveWatermarkList(kWatermarkFile, QStringList{record.text.get()});
    PreviewBuffer preview, direct;
    renderSavedWatermark(kWatermarkFile, record.text.get(), kLetter, preview); // finds the font
    _WatermarkData drawn;
    loadWatermarkData(kWatermarkFile, record.text.get(), drawn);
    Times render, cairo, saved;
    for (auto _ : state) {
        Measure(render, [&] { renderWatermark(drawn, kLetter, preview); });
        Measure(saved, [&] { renderSavedWatermark(kWatermarkFile, record.text.get(), kLetter, preview); });
        Measure(cairo, [&] {
            direct.clear();
            DrawDirectly(drawn, "DejaVu Sans", Append, &direct);
        });
        state.SetIterationTime(render.back());
    }
    if (!preview.content().startsWith("%PDF-") || !direct.content().startsWith("%PDF-"))
        state.SkipWithError("no page was drawn");
    state.counters["render_to_cairo"] = Median(render) / Median(cairo);
    state.counters["with_store_to_cairo"] = Median(saved) / Median(cairo);
}

void FontList(benchmark::State& state)
{
    std::size_t count = 0;
    for (auto _ : state)
        count = InstalledFonts().size();
    state.counters["fonts"] = static_cast<double>(count);
}

BENCHMARK(PreviewRender)->UseManualTime()->Iterations(300)->Unit(benchmark::kMillisecond);
BENCHMARK(FontList)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kesta::bench

BENCHMARK_MAIN();
