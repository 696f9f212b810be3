#include "panels/booklet_watermark/watermark/WatermarkPreview.h"

#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include <cairo-pdf.h>

#include <algorithm>

namespace kesta::booklet_watermark {
namespace {

// Any day will do: the same drawing is to give the same bytes.
constexpr char kCreated[] = "2000-01-01T00:00:00Z";

cairo_status_t Write(void* write, const unsigned char* bytes, unsigned count)
{
    const bool isWritten = (*static_cast<const WriteBytes*>(write))(reinterpret_cast<const char*>(bytes), count);
    return isWritten ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

void DrawPage(cairo_surface_t* surface, QSizeF page, double pixelsInPoint, const std::function<void(cairo_t*)>& draw)
{
    cairo_t* const context = cairo_create(surface);
    cairo_scale(context, pixelsInPoint, -pixelsInPoint);
    cairo_translate(context, 0, -page.height());
    cairo_set_source_rgb(context, 1, 1, 1);
    cairo_paint(context);
    draw(context);
    cairo_show_page(context);
    cairo_destroy(context);
}

double Density(const _WatermarkData& record)
{
    return record.text.isEmpty() ? 1 : std::clamp(record.density, 0, 100) / 100.0;
}

} // namespace

bool WritePDFPage(QSizeF page, const WriteBytes& write, const std::function<void(cairo_t*)>& draw)
{
    cairo_surface_t* const surface =
        cairo_pdf_surface_create_for_stream(Write, const_cast<WriteBytes*>(&write), page.width(), page.height());
    cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_CREATE_DATE, kCreated);
    DrawPage(surface, page, 1, draw);
    cairo_surface_finish(surface);
    const bool isWritten = cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    return isWritten;
}

bool WritePNGPage(QSizeF page, double resolution, const WriteBytes& write, const std::function<void(cairo_t*)>& draw)
{
    const double pixelsInPoint = resolution / 72;
    const QSize pixels = (page * pixelsInPoint).toSize();
    cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels.width(), pixels.height());
    DrawPage(surface, page, pixelsInPoint, draw);
    const bool isWritten =
        cairo_surface_write_to_png_stream(surface, Write, const_cast<WriteBytes*>(&write)) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    return isWritten;
}

WatermarkNotes DrawDenseWatermark(cairo_t* context, QSizeF page, _WatermarkData& record, QAnyStringView storeFile)
{
    const QRectF whole({0, 0}, page);
    if (Density(record) >= 1)
        return DrawWatermark(context, whole, record, storeFile);
    cairo_push_group(context);
    const WatermarkNotes notes = DrawWatermark(context, whole, record, storeFile);
    cairo_pop_group_to_source(context);
    cairo_paint_with_alpha(context, Density(record));
    return notes;
}

WatermarkNotes renderWatermark(_WatermarkData& record, QSizeF page, PreviewBuffer& buffer, QAnyStringView storeFile)
{
    WatermarkNotes notes;
    buffer.clear();
    WritePDFPage(
        page, [&](const char* bytes, std::size_t count) { return buffer.append(bytes, count) == count; },
        [&](cairo_t* context) { notes = DrawDenseWatermark(context, page, record, storeFile); });
    return notes;
}

WatermarkNotes renderSavedWatermark(QAnyStringView storeFile, const QString& name, QSizeF page, PreviewBuffer& buffer)
{
    _WatermarkData record;
    if (!name.isEmpty())
        loadWatermarkData(storeFile, name, record);
    const _WatermarkData stored = record;
    const WatermarkNotes notes = renderWatermark(record, page, buffer);
    const bool isOwnName = NameOf(record) == name; // in a damaged store it may be another watermark's, or the list's
    if (isOwnName && record != stored)             // or its bytes would be the same
        saveWatermarkData(storeFile, record);
    return notes;
}

} // namespace kesta::booklet_watermark
