#pragma once

#include <array>
#include <string_view>

namespace kesta::booklet_watermark {

// The names of Adobe's standard encoding by code; ".notdef" for a code without one.
extern const std::array<std::string_view, 256> _StandardEncodings;

// The names of the standard Macintosh glyph order, on which post tables build.
extern const std::array<std::string_view, 258> _macGlyphEncoding;

inline constexpr std::string_view kNotdef = ".notdef";

} // namespace kesta::booklet_watermark
