// The page of a watermark as Cairo alone draws it, at a place that is known already.
#pragma once

#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include <QSizeF>

#include <cairo-pdf.h>

#include <numbers>

namespace kesta::bench {

inline constexpr QSizeF kLetter(612, 792);

inline booklet_watermark::_WatermarkData ConfidentialIn(const char* fontName)
{
    booklet_watermark::_WatermarkData record;
    record.text.set(QStringLiteral("CONFIDENTIAL"));
    record.fontName.set(QString::fromLatin1(fontName));
    record.isText = 1;
    record.fontSize = 72;
    record.angle = 45;
    record.density = 25;
    record.wellColor = {0, 0, 1, 1};
    return record;
}

inline void DrawDirectly(const booklet_watermark::_WatermarkData& record, const char* family, cairo_write_func_t write,
                         void* closure)
{
    cairo_surface_t* const surface =
        cairo_pdf_surface_create_for_stream(write, closure, kLetter.width(), kLetter.height());
    cairo_t* const context = cairo_create(surface);
    cairo_set_source_rgb(context, 1, 1, 1);
    cairo_paint(context);
    cairo_push_group(context);
    cairo_set_source_rgb(context, 0, 0, 1);
    cairo_select_font_face(context, family, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(context, record.fontSize);
    cairo_translate(context, record.xPosition, kLetter.height() - record.yPosition);
    cairo_rotate(context, -record.angle * std::numbers::pi / 180);
    cairo_move_to(context, 0, 0);
    cairo_text_path(context, record.text.get().toUtf8().constData());
    cairo_fill(context);
    cairo_pop_group_to_source(context);
    cairo_paint_with_alpha(context, record.density / 100.0);
    cairo_show_page(context);
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
}

} // namespace kesta::bench
