#pragma once

#include "panels/booklet_watermark/watermark/PreviewBuffer.h"
#include "panels/booklet_watermark/watermark/WatermarkDrawing.h"

#include <QSizeF>

#include <functional>

namespace kesta::booklet_watermark {

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
