#pragma once

#include "panels/booklet_watermark/fonts/GlyphEncoding.h"
#include "panels/booklet_watermark/fonts/GlyphLine.h"

#include <optional>
#include <span>

namespace kesta::booklet_watermark {

// A Type 1 font of the placed glyphs' outlines, the first one under the first name and so on. Nothing when there is no
// ink, or an outline has no room in such a font.
std::optional<QByteArray> MakeType1(const Typeface& typeface, std::span<const PlacedGlyph> glyphs,
                                    std::span<const std::string_view> names, const Encoding& encoding,
                                    const QByteArray& fontName);

} // namespace kesta::booklet_watermark
