#include "panels/booklet_watermark/fonts/FontProgram.h"

#include "panels/booklet_watermark/fonts/GlyphNames.h"
#include "panels/booklet_watermark/fonts/TrueTypeSubset.h"
#include "panels/booklet_watermark/fonts/Type1.h"
#include "panels/booklet_watermark/fonts/Type42Writer.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <map>
#include <string>

namespace kesta::booklet_watermark {
namespace {

constexpr QLatin1String kPrefix("KS-"), kSuffix("-KS");

// Names of glyphs by their number; no two fonts' glyphs of one number need be the same.
std::vector<std::string> NumberedNames(std::size_t count)
{
    std::vector<std::string> names(count);
    for (std::size_t glyph = 0; glyph < count; ++glyph)
        names[glyph] = "g" + std::to_string(glyph);
    return names;
}

Encoding EncodingOf(const std::vector<std::uint16_t>& glyphs, const std::vector<std::string_view>& names)
{
    Encoding encoding;
    encoding.fill(kNotdef);
    for (std::size_t code = 0; code < std::min(encoding.size(), glyphs.size()); ++code)
        encoding[code] = names[glyphs[code]];
    return encoding;
}

QByteArray AsType42(const Typeface& typeface, std::span<const PlacedGlyph> glyphs, const QByteArray& fontName)
{
    const std::optional<TrueTypeSubset> subset = MakeTrueTypeSubset(typeface, glyphs);
    std::optional<TrueTypeFont> truetype = subset ? ReadTrueTypeFont(subset->font) : std::nullopt;
    if (!truetype)
        return {};
    const std::vector<std::string> names = NumberedNames(truetype->glyphCount);
    truetype->names.assign(names.begin(), names.end());
    truetype->names.front() = kNotdef;
    truetype->hasNames = true;
    QByteArray program;
    // Some programs look at the directory when a string has gone on behind it, and want most of the font to come yet.
    const auto firstTable = static_cast<qsizetype>(truetype->tableOffsets.at(1));
    const bool isWhole = AppendType42(subset->font, *truetype, EncodingOf(subset->glyphs, truetype->names), fontName,
                                      program, firstTable);
    return isWhole ? program : QByteArray();
}

QByteArray AsType1(const Typeface& typeface, std::span<const PlacedGlyph> glyphs, const QByteArray& fontName)
{
    std::map<PlacedGlyph, std::uint16_t> numbers;
    std::vector<PlacedGlyph> distinct;
    std::vector<std::uint16_t> inLine;
    for (const PlacedGlyph& glyph : glyphs) {
        const auto [known, isNew] = numbers.try_emplace(glyph, static_cast<std::uint16_t>(distinct.size()));
        if (isNew)
            distinct.push_back(glyph);
        inLine.push_back(known->second);
    }
    const std::vector<std::string> texts = NumberedNames(distinct.size());
    const std::vector<std::string_view> names(texts.begin(), texts.end());
    return MakeType1(typeface, distinct, names, EncodingOf(inLine, names), fontName).value_or(QByteArray());
}

// A printer is no place to find out that a font is damaged: one that another library does not take is none.
bool IsLoadable(const QByteArray& program)
{
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        return false;
    bool isLoadable = FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(program.constData()), program.size(),
                                         0, &face) == 0;
    for (FT_Long glyph = 0; isLoadable && glyph < face->num_glyphs; ++glyph)
        isLoadable = FT_Load_Glyph(face, static_cast<FT_UInt>(glyph), FT_LOAD_NO_SCALE) == 0;
    FT_Done_FreeType(library); // and its faces
    return isLoadable;
}

} // namespace

QString SubsetFontName(const QString& postScriptName)
{
    return kPrefix + postScriptName + kSuffix;
}

bool IsSubsetFontName(const QString& name)
{
    return name.size() > kPrefix.size() + kSuffix.size() && name.startsWith(kPrefix) && name.endsWith(kSuffix);
}

QByteArray MakeFontProgram(const Typeface& typeface, std::span<const PlacedGlyph> glyphs)
{
    const bool isTrueType = typeface.sendability() == Sendability::AsTrueType;
    if (glyphs.empty() || (!isTrueType && typeface.sendability() != Sendability::AsOutlines))
        return {};
    const QByteArray name = PlainName(SubsetFontName(typeface.file().postScriptName).toUtf8());
    if (const QByteArray program = isTrueType ? AsType42(typeface, glyphs, name) : QByteArray();
        !program.isEmpty() && IsLoadable(program))
        return program;
    const QByteArray program = AsType1(typeface, glyphs, name);
    return IsLoadable(program) ? program : QByteArray();
}

} // namespace kesta::booklet_watermark
