#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace kesta::booklet_watermark {

// The name for each code.
using Encoding = std::array<std::string_view, 256>;

// Standard encoding with what the font has of it: a code whose name is not among the names by glyph gets that of glyph
// 0. The names that are left take the codes from 32 on that are ".notdef" then, in the order of the glyphs.
Encoding MakeEncoding(const std::vector<std::string_view>& names);

} // namespace kesta::booklet_watermark
