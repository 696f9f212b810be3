#pragma once

#include "panels/booklet_watermark/fonts/GlyphLine.h"

#include <optional>
#include <span>

namespace kesta::booklet_watermark {

struct TrueTypeSubset {
    QByteArray font;                   // a font file with what a printer needs, without hints
    std::vector<std::uint16_t> glyphs; // where in it each of the placed glyphs is
};

// A font of the placed glyphs and what they are composed of. A glyph that is moved or has another advance than its own
// is there as a composite of its own. Nothing when the font is damaged or a move or advance has no room in it.
std::optional<TrueTypeSubset> MakeTrueTypeSubset(const Typeface& typeface, std::span<const PlacedGlyph> glyphs);

} // namespace kesta::booklet_watermark
