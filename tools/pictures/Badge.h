#pragma once

#include "Drawing.h"

namespace kesta::pictures {

enum class Glyph {
    pause,
    download,
    phone,
    lock,
    clock,
    check,
    printer,
    weight,
    recycle,
    archive,
    sequence,
    dots,
    plus,
    note
};

// The badge in a sheet's bitten corner.
void DrawBadge(Drawing& drawing, Glyph glyph);

// A badge with a white ring, for what is drawn over a picture that can't make room.
void DrawRingedBadge(Drawing& drawing, Glyph glyph, Point center);
void DrawRingedNumber(Drawing& drawing, int number, Point center); // 1 to 7

} // namespace kesta::pictures
