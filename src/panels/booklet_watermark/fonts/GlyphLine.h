#pragma once

#include "panels/booklet_watermark/fonts/Typeface.h"
#include "platform/values/Types.h"

#include <compare>
#include <cstdint>
#include <vector>

namespace kesta::booklet_watermark {

// A glyph of a line as it is drawn: at the pen, moved by x and y, the pen then moves on by the advance. In font units.
struct PlacedGlyph {
    std::uint16_t glyph = 0;
    SInt32 x = 0;
    SInt32 y = 0;
    SInt32 advance = 0;

    auto operator<=>(const PlacedGlyph&) const = default;
};

// A text as one line of glyphs from left to right.
struct GlyphLine {
    std::vector<PlacedGlyph> glyphs; // glyph 0 for a character that the font lacks
    QString missing;                 // those characters, each once
};

// Lays a text out in one font, with the font's ligatures and marks, right to left where the script wants it, and
// without kerning: whoever shows the glyphs one after the other, each at its own advance, gets the same line. Control
// characters and line ends count as spaces.
GlyphLine LayOutLine(const Typeface& typeface, const QString& text);

// The font in which a text is drawn.
struct FontChoice {
    std::shared_ptr<const Typeface> typeface; // null when this computer has no font to draw with
    bool isSubstitute = false;                // not the font of that name
    GlyphLine line;
};

// The font of that PostScript name; when there is none, or it lacks a character of the text, the first of the
// substitutes that has all of them; when none has, the font of the name, or the best substitute, with what it has.
FontChoice ChooseFont(const QString& postScriptName, const QString& text);

} // namespace kesta::booklet_watermark
