#pragma once

#include "panels/booklet_watermark/fonts/GlyphLine.h"

namespace kesta::booklet_watermark {

// In font units.
struct OutlinePoint {
    double x = 0;
    double y = 0;
};

// Takes the outline of a glyph piece by piece; curves are cubic ones.
class OutlineSink {
public:
    virtual ~OutlineSink() = default;
    virtual void moveTo(OutlinePoint to) = 0;
    virtual void lineTo(OutlinePoint to) = 0;
    virtual void curveTo(OutlinePoint first, OutlinePoint second, OutlinePoint to) = 0;
    virtual void close() = 0;
};

// The glyph's contours in font units, moved as it is placed; without the pen's place in the line.
void DrawOutline(const Typeface& typeface, const PlacedGlyph& glyph, OutlineSink& sink);

} // namespace kesta::booklet_watermark
