// A font file of which glyphs are sent: none, or a PostScript font that another library loads, every glyph of it.

#include "Input.h"
#include "panels/booklet_watermark/fonts/FontProgram.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <memory>

using namespace kesta::booklet_watermark;
using kesta::fuzz::Require;

namespace {

void LoadAll(const QByteArray& program)
{
    static const FT_Library library = [] {
        FT_Library made = nullptr;
        FT_Init_FreeType(&made);
        return made;
    }();
    FT_Face face = nullptr;
    Require(FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(program.constData()), program.size(), 0,
                               &face) == 0);
    Require(face->num_glyphs > 1);
    for (FT_Long glyph = 0; glyph < face->num_glyphs; ++glyph)
        Require(FT_Load_Glyph(face, static_cast<FT_UInt>(glyph), FT_LOAD_NO_SCALE) == 0);
    FT_Done_Face(face);
}

// Glyphs as they are, moved, and of another width.
std::vector<PlacedGlyph> Placed(const Typeface& typeface)
{
    std::vector<PlacedGlyph> glyphs;
    for (unsigned glyph = 0; glyph < std::min(typeface.glyphCount(), 12u); ++glyph) {
        const auto number = static_cast<std::uint16_t>(glyph);
        glyphs.push_back({number, 0, 0, 500});
        glyphs.push_back({number, static_cast<kesta::SInt32>(glyph) * 7 - 30, 40, 0});
    }
    return glyphs;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FontFile file;
    file.postScriptName = QStringLiteral("Name");
    const std::shared_ptr<const Typeface> typeface = Typeface::read(kesta::fuzz::Bytes(data, size), file);
    if (!typeface)
        return 0;
    const QString text = QString::fromUtf8("Ag \u0645\u064f\u0633 fi");
    for (const PlacedGlyph& placed : LayOutLine(*typeface, text).glyphs)
        Require(placed.glyph < std::max(typeface->glyphCount(), 1u));
    const QByteArray program = MakeFontProgram(*typeface, Placed(*typeface));
    if (!program.isEmpty())
        LoadAll(program);
    return 0;
}
