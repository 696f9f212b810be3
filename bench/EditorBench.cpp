// The windows of watermarks: the editor's preview after a change, beside what the libraries alone take for the same
// page; and opening the list of fonts on a computer that has 2,000 of them, beside asking which they are.

#include "DirectPage.h"
#include "Pair.h"

#include "panels/booklet_watermark/watermark/DrawingLibrary.h"
#include "panels/booklet_watermark/watermark/FontPanel.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"
#include "platform/plugins/Bundle.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPdfDocument>
#include <QTemporaryDir>

#include <hb-subset.h>

#include <cstdio>

namespace kesta::bench {
namespace {

using namespace booklet_watermark;

constexpr QSize kPixels(236, 305); // of the editor's preview
constexpr int kFonts = 2000;
constexpr char kBase[] = LIBERATION_SANS;

cairo_status_t Append(void* bytes, const unsigned char* more, unsigned count)
{
    static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(more), count);
    return CAIRO_STATUS_SUCCESS;
}

QImage ShowDirectly(QByteArray pdf)
{
    QBuffer file(&pdf);
    file.open(QIODevice::ReadOnly);
    QPdfDocument document;
    document.load(&file);
    return document.render(0, kPixels);
}

void EditorRepaint(benchmark::State& state)
{
    const DrawingLibrary& drawing = GetDrawingLibrary();
    _WatermarkData record = ConfidentialIn("LiberationSans");
    PreviewBuffer buffer;
    drawing.renderWatermark(record, kLetter, buffer, {}); // finds the font
    Times repaint, sum;
    bool areDrawn = true;
    for (auto _ : state) {
        record.angle = (record.angle + 1) % 360; // another page each time
        Measure(repaint, [&] {
            drawing.renderWatermark(record, kLetter, buffer, {});
            areDrawn = !drawing.PictureOfPage(buffer.content(), kPixels).isNull() && areDrawn;
        });
        Measure(sum, [&] {
            QByteArray pdf;
            DrawDirectly(record, "Liberation Sans", Append, &pdf);
            areDrawn = !ShowDirectly(pdf).isNull() && areDrawn;
        });
        state.SetIterationTime(repaint.back());
    }
    if (!areDrawn)
        state.SkipWithError("no page was drawn");
    state.counters["repaint_to_sum"] = Median(repaint) / Median(sum);
}

// Both encodings of a name table have the same length for the new name.
void Rename(QByteArray& font, const QString& from, const QString& to)
{
    const auto wide = [](const QString& text) {
        QByteArray bytes;
        for (const QChar character : text)
            bytes.append('\0').append(character.toLatin1());
        return bytes;
    };
    font.replace(from.toLatin1(), to.toLatin1());
    font.replace(wide(from), wide(to));
}

// Letters and figures only, so that 2,000 of them are no burden to the disk.
QByteArray SmallFont()
{
    hb_blob_t* const blob = hb_blob_create_from_file(kBase);
    hb_face_t* const face = hb_face_create(blob, 0);
    hb_subset_input_t* const input = hb_subset_input_create_or_fail();
    hb_set_add_range(hb_subset_input_unicode_set(input), 0x20, 0x7e);
    hb_set_t* const names = hb_subset_input_set(input, HB_SUBSET_SETS_NAME_ID);
    hb_set_add_range(names, 0, 6);
    hb_face_t* const subset = hb_subset_or_fail(face, input);
    hb_blob_t* const result = hb_face_reference_blob(subset);
    unsigned length = 0;
    const char* const bytes = hb_blob_get_data(result, &length);
    const QByteArray font(bytes, static_cast<qsizetype>(length));
    hb_blob_destroy(result);
    hb_face_destroy(subset);
    hb_subset_input_destroy(input);
    hb_face_destroy(face);
    hb_blob_destroy(blob);
    return font;
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::fprintf(stderr, "%s can't be written\n", qPrintable(path));
}

// The computer's only fonts, before anybody asks for any.
void MakeFonts(const QString& folder)
{
    QDir().mkpath(folder + QStringLiteral("/fonts"));
    const QByteArray small = SmallFont();
    for (int i = 0; i < kFonts; ++i) {
        const QString number = QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0'));
        QByteArray font = small;
        Rename(font, QStringLiteral("LiberationSans"), QStringLiteral("BenchSans") + number);
        Rename(font, QStringLiteral("Liberation Sans"), QStringLiteral("Bench Sans") + number);
        Write(folder + QStringLiteral("/fonts/%1.ttf").arg(i), font);
    }
    QFile::copy(QString::fromLatin1(kBase), folder + QStringLiteral("/fonts/base.ttf"));
    Write(folder + QStringLiteral("/fonts.conf"),
          QStringLiteral("<fontconfig><dir>%1/fonts</dir><cachedir>%1/cache</cachedir></fontconfig>")
              .arg(folder)
              .toUtf8());
    qputenv("FONTCONFIG_FILE", QFile::encodeName(folder + QStringLiteral("/fonts.conf")));
}

void FontListOpening(benchmark::State& state)
{
    const Bundle* bundle = LoadBundleAt(QStringLiteral(KESTA_PLUGIN)).bundle;
    const auto count = GetDrawingLibrary().InstalledFonts().size();
    Times opening, listing;
    for (auto _ : state) {
        Measure(listing, [] { benchmark::DoNotOptimize(GetDrawingLibrary().InstalledFonts()); });
        SetModalIdleAction([](QWidget& window) { EndModalLoop(window, ModalResult::Cancel); });
        Measure(opening, [&] {
            ChosenFont font{QStringLiteral("LiberationSans"), 72, QStringLiteral("DRAFT")};
            ModalResult result = ModalResult::Cancel;
            RunModalFontPanelDialog(*bundle, font, result);
        });
        state.SetIterationTime(opening.back());
    }
    SetModalIdleAction({});
    if (count < kFonts)
        state.SkipWithError("there are too few fonts");
    state.counters["fonts"] = static_cast<double>(count);
    state.counters["opening_to_listing"] = Median(opening) / Median(listing);
}

BENCHMARK(EditorRepaint)->UseManualTime()->Iterations(300)->Unit(benchmark::kMillisecond);
BENCHMARK(FontListOpening)->UseManualTime()->Iterations(30)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kesta::bench

int main(int argc, char** argv)
{
    const QTemporaryDir folder;
    kesta::bench::MakeFonts(folder.path());
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
