// The preview of a watermark: its font looked up, its text laid out and drawn, beside Cairo alone drawing the same page
// at a place that is known already. Once with the record at hand, as the editor does it, and once with the record read
// from the store.

#include "Pair.h"

#include "panels/booklet_watermark/fonts/FontLookup.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <cairo-pdf.h>

#include <numbers>

namespace kesta::bench {
namespace {

using namespace booklet_watermark;

constexpr QSizeF kLetter(612, 792);
constexpr char kText[] = "CONFIDENTIAL";

_WatermarkData Watermark()
{
    _WatermarkData record;
    record.text.set(QString::fromLatin1(kText));
    record.fontName.set(QStringLiteral("DejaVuSans"));
    record.isText = 1;
    record.fontSize = 72;
    record.angle = 45;
    record.density = 25;
    record.wellColor = {0, 0, 1, 1};
    return record;
}

cairo_status_t Append(void* buffer, const unsigned char* bytes, unsigned count)
{
    static_cast<PreviewBuffer*>(buffer)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

void DrawDirectly(const _WatermarkData& record, PreviewBuffer& buffer)
{
    buffer.clear();
    cairo_surface_t* const surface =
        cairo_pdf_surface_create_for_stream(Append, &buffer, kLetter.width(), kLetter.height());
    cairo_t* const context = cairo_create(surface);
    cairo_set_source_rgb(context, 1, 1, 1);
    cairo_paint(context);
    cairo_push_group(context);
    cairo_set_source_rgb(context, 0, 0, 1);
    cairo_select_font_face(context, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(context, record.fontSize);
    cairo_translate(context, record.xPosition, kLetter.height() - record.yPosition);
    cairo_rotate(context, -record.angle * std::numbers::pi / 180);
    cairo_move_to(context, 0, 0);
    cairo_text_path(context, kText);
    cairo_fill(context);
    cairo_pop_group_to_source(context);
    cairo_paint_with_alpha(context, record.density / 100.0);
    cairo_show_page(context);
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
}

void PreviewRender(benchmark::State& state)
{
    const QTemporaryDir folder;
    qputenv("KESTA_DATA_ROOT", QFile::encodeName(folder.path()));
    const _WatermarkData record = Watermark();
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
        Measure(cairo, [&] { DrawDirectly(drawn, direct); });
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
