#pragma once

#include "panels/booklet_watermark/fonts/GlyphLine.h"

#include <span>

namespace kesta::booklet_watermark {

// "KS-%@-KS" around a font's PostScript name.
QString SubsetFontName(const QString& postScriptName);
bool IsSubsetFontName(const QString& name);

// A PostScript font with the glyphs of a line, named SubsetFontName(): code i of its encoding shows the i-th glyph
// where and as wide as the line has it, up to code 255. Further glyphs are in the font, too, but have no code.
//
// Empty when the font can't be sent; a font that only looks like one gives none either.
QByteArray MakeFontProgram(const Typeface& typeface, std::span<const PlacedGlyph> glyphs);

} // namespace kesta::booklet_watermark
