#pragma once

#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include <QRectF>

typedef struct _cairo cairo_t;

namespace kesta::booklet_watermark {

enum class PictureProblem {
    None,
    CantOpen,   // missing, or may not be read
    NotPicture, // of no known type, or damaged
    TooLarge,   // more pixels than are worth the memory
};

// What the user should know of a drawing, for whoever has a place to say it.
struct WatermarkNotes {
    QString fontName;            // of a text: the font that it is drawn in, for people; empty when there is none
    bool isSubstitute = false;   // that isn't the font which the record names
    bool lacksCharacter = false; // of a substitute: the record's font is there, but not for the whole text
    QString missingCharacters;   // of a text: what no font on this computer has, each once
    PictureProblem picture = PictureProblem::None;
    QRectF frame = {}; // of a text before it is turned: around its outlines, from its origin, in points, y upwards

    bool operator==(const WatermarkNotes&) const = default;
};

// Draws a watermark, centred on the page; in opaque colour, density is the caller's: cairo_push_group() before,
// cairo_pop_group_to_source() and cairo_paint_with_alpha() after.
//
// The context's user space is the page's: points from the lower left corner, y upwards (WritePDFPage). A text is drawn
// about its origin and its record gets the glyphs and the origin; when there is a store file, the record is then saved
// into it. With neither text nor file name, or a picture that can't be had, nothing is drawn.
WatermarkNotes DrawWatermark(cairo_t* context, const QRectF& page, _WatermarkData& record,
                             QAnyStringView storeFile = {});

} // namespace kesta::booklet_watermark
