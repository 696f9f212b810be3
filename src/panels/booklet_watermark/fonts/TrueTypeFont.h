#pragma once

#include "panels/booklet_watermark/fonts/Sfnt.h"

#include <QByteArray>

#include <array>
#include <string_view>

namespace kesta::booklet_watermark {

// What a Type 42 font tells of the TrueType font in it. The names point into the font's bytes or to constants.
struct TrueTypeFont {
    std::uint32_t version = 0; // 16.16 fixed, as revision and boundingBox
    std::uint32_t revision = 0;
    std::array<SInt32, 4> boundingBox{}; // xMin, yMin, xMax, yMax in parts of the em
    std::uint32_t minimumMemory = 0;     // bytes
    std::uint32_t maximumMemory = 0;     // 0: not known
    std::uint16_t glyphCount = 0;
    bool hasNames = false;
    std::vector<std::string_view> names; // by glyph, when there are names; empty for a glyph without one

    // Where the data may be cut: the offsets of tables and of glyphs, each in ascending order.
    std::vector<std::uint64_t> tableOffsets;
    std::vector<std::uint64_t> glyphOffsets;
};

// Nothing for a malformed font or one of a kind that is not converted. A missing table and a wrong magic number are
// said on standard error.
std::optional<TrueTypeFont> ReadTrueTypeFont(QByteArrayView font);

// Whether a PostScript name can be written with these characters only, that is none that would end it.
bool IsPlainName(std::string_view name);

// The name without the characters that no PostScript name holds.
QByteArray PlainName(const QByteArray& name);

} // namespace kesta::booklet_watermark
