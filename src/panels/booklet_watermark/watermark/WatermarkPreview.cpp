#include "panels/booklet_watermark/watermark/WatermarkPreview.h"

#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include <cairo-pdf.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

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

PreviewBuffer::PreviewBuffer(std::size_t capacity) : bytes_(static_cast<char*>(std::calloc(capacity, 1)))
{
    capacity_ = bytes_ ? capacity : 0;
}

PreviewBuffer::~PreviewBuffer()
{
    std::free(bytes_);
}

std::size_t PreviewBuffer::append(const char* bytes, std::size_t count)
{
    std::size_t needed = std::max<std::size_t>(capacity_, 1);
    while (needed - position_ - 1 < count) {
        if (needed > std::numeric_limits<std::size_t>::max() / 4)
            return 0;
        needed *= 2;
    }
    if (needed > capacity_) {
        char* const grown = static_cast<char*>(std::realloc(bytes_, needed));
        if (!grown)
            return 0;
        std::memset(grown + capacity_, 0, needed - capacity_);
        bytes_ = grown;
        capacity_ = needed;
    }
    std::memcpy(bytes_ + position_, bytes, count);
    position_ += count;
    return count;
}

std::size_t PreviewBuffer::read(char* bytes, std::size_t count)
{
    const std::size_t left = readPosition_ + 1 < capacity_ ? capacity_ - readPosition_ - 1 : 0;
    count = std::min(count, left);
    if (count > 0)
        std::memcpy(bytes, bytes_ + readPosition_, count);
    readPosition_ += count;
    return count;
}

void PreviewBuffer::skip(std::size_t count)
{
    readPosition_ += std::min(count, std::numeric_limits<std::size_t>::max() - 1 - readPosition_);
}

void PreviewBuffer::clear()
{
    if (bytes_)
        std::memset(bytes_, 0, position_);
    position_ = 0;
    readPosition_ = 0;
}

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
    if (record != stored) // or its bytes would be the same
        saveWatermarkData(storeFile, record);
    return notes;
}

} // namespace kesta::booklet_watermark
