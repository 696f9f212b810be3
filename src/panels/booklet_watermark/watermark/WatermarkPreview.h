#pragma once

#include "panels/booklet_watermark/watermark/WatermarkDrawing.h"

#include <QByteArrayView>
#include <QSizeF>

#include <functional>

namespace kesta::booklet_watermark {

// A growable buffer of bytes, one of which always stays free, with a place to write at and another one to read from.
class PreviewBuffer {
public:
    static constexpr std::size_t kUsualCapacity = 32768; // bytes

    explicit PreviewBuffer(std::size_t capacity = kUsualCapacity);
    ~PreviewBuffer();
    PreviewBuffer(const PreviewBuffer&) = delete;
    PreviewBuffer& operator=(const PreviewBuffer&) = delete;

    // The number of bytes; 0, and nothing is written, when there is no memory for them.
    std::size_t append(const char* bytes, std::size_t count);

    // Reads on, up to one byte before the capacity's end: behind what was written come zeros.
    std::size_t read(char* bytes, std::size_t count);
    void skip(std::size_t count);
    void rewind() { readPosition_ = 0; }

    // Keeps its capacity.
    void clear();

    std::size_t capacity() const { return capacity_; }
    QByteArrayView content() const { return {bytes_, static_cast<qsizetype>(position_)}; }

private:
    std::size_t capacity_ = 0;
    std::size_t position_ = 0;
    std::size_t readPosition_ = 0;
    char* bytes_ = nullptr;
};

// Writes a PDF of one white page of that size in points. "draw" gets a context whose user space is the page's: points
// from the lower left corner, y upwards. The same drawing gives the same bytes. False when they were not all written.
using WriteBytes = std::function<bool(const char* bytes, std::size_t count)>;
bool WritePDFPage(QSizeF page, const WriteBytes& write, const std::function<void(cairo_t*)>& draw);

// The same as a picture of so many pixels in an inch, a PNG.
bool WritePNGPage(QSizeF page, double resolution, const WriteBytes& write, const std::function<void(cairo_t*)>& draw);

// Draws a watermark as DrawWatermark() does, on a page from (0, 0) on, a text as dense as its record says.
WatermarkNotes DrawDenseWatermark(cairo_t* context, QSizeF page, _WatermarkData& record, QAnyStringView storeFile = {});

// Empties the buffer and writes the watermark on a page of that size in points into it, a text as dense as its record
// says. The record is changed and saved as DrawWatermark() does.
WatermarkNotes renderWatermark(_WatermarkData& record, QSizeF page, PreviewBuffer& buffer,
                               QAnyStringView storeFile = {});

// The same for a watermark of the store; a white page when there is none of that name or the name is empty.
WatermarkNotes renderSavedWatermark(QAnyStringView storeFile, const QString& name, QSizeF page, PreviewBuffer& buffer);

} // namespace kesta::booklet_watermark
