#include "panels/booklet_watermark/fonts/GlyphLine.h"

#include "panels/booklet_watermark/fonts/TextItems.h"

#include <hb.h>

#include <algorithm>

namespace kesta::booklet_watermark {
namespace {

struct BufferDeleter {
    void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
};
using Buffer = std::unique_ptr<hb_buffer_t, BufferDeleter>;

QString OneLine(const QString& text)
{
    QString line = text;
    for (QChar& character : line)
        if (character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph)
            character = u' ';
    return line;
}

// Glyphs between which the space depends on their neighbours can't be shown one after the other.
constexpr hb_feature_t kWithoutKerning = {HB_TAG('k', 'e', 'r', 'n'), 0, HB_FEATURE_GLOBAL_START,
                                          HB_FEATURE_GLOBAL_END};

Buffer Shape(const Typeface& typeface, const std::u32string& text, const TextItem& item)
{
    Buffer buffer(hb_buffer_create());
    hb_buffer_add_utf32(buffer.get(), reinterpret_cast<const std::uint32_t*>(text.data()),
                        static_cast<int>(text.size()), item.start, static_cast<int>(item.length));
    hb_buffer_set_direction(buffer.get(), item.isRightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer.get(), hb_script_from_iso15924_tag(item.script));
    hb_buffer_set_language(buffer.get(), hb_language_from_string(item.language.constData(), -1));
    hb_buffer_set_flags(buffer.get(), HB_BUFFER_FLAG_REMOVE_DEFAULT_IGNORABLES);
    hb_shape(typeface.font(), buffer.get(), &kWithoutKerning, 1);
    return buffer;
}

void AddMissing(QString& missing, const std::u32string& text, const TextItem& item, std::uint32_t cluster,
                const Typeface& typeface)
{
    const std::size_t end = std::size_t{item.start} + item.length;
    hb_unicode_funcs_t* unicode = hb_unicode_funcs_get_default();
    for (std::size_t at = cluster; at < end; ++at) {
        const QString character = QString::fromUcs4(&text[at], 1);
        const bool isMark =
            hb_unicode_general_category(unicode, text[at]) == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK;
        if (at > cluster && !isMark)
            break;
        if (!typeface.hasCharacter(text[at]) && !missing.contains(character))
            missing += character;
    }
}

void AppendItem(GlyphLine& line, const Typeface& typeface, const std::u32string& text, const TextItem& item)
{
    const Buffer buffer = Shape(typeface, text, item);
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer.get(), &count);
    for (unsigned i = 0; i < count; ++i) {
        const bool isThere = infos[i].codepoint > 0 && infos[i].codepoint < typeface.glyphCount(); // not in every font
        line.glyphs.push_back({isThere ? static_cast<std::uint16_t>(infos[i].codepoint) : std::uint16_t{0},
                               positions[i].x_offset, positions[i].y_offset, positions[i].x_advance});
        if (!isThere)
            AddMissing(line.missing, text, item, infos[i].cluster, typeface);
    }
}

// What a font must have to show the text; nothing is seen of the others.
QString CharactersToShow(const QString& text)
{
    QString characters;
    hb_unicode_funcs_t* unicode = hb_unicode_funcs_get_default();
    for (const char32_t character : OneLine(text).toStdU32String()) {
        const QString one = QString::fromUcs4(&character, 1);
        const bool isShown = hb_unicode_general_category(unicode, character) != HB_UNICODE_GENERAL_CATEGORY_FORMAT;
        if (isShown && !characters.contains(one))
            characters += one;
    }
    return characters;
}

std::shared_ptr<const Typeface> OpenFirst(const std::vector<FontFile>& files)
{
    for (const FontFile& file : files)
        if (std::shared_ptr<const Typeface> typeface = Typeface::open(file))
            return typeface;
    return nullptr;
}

FontChoice Choose(std::shared_ptr<const Typeface> typeface, bool isSubstitute, const QString& text)
{
    FontChoice choice{std::move(typeface), isSubstitute, {}};
    if (choice.typeface)
        choice.line = LayOutLine(*choice.typeface, text);
    return choice;
}

} // namespace

GlyphLine LayOutLine(const Typeface& typeface, const QString& text)
{
    const QString oneLine = OneLine(text);
    const std::u32string characters = oneLine.toStdU32String();
    GlyphLine line;
    for (const TextItem& item : ItemsInVisualOrder(oneLine))
        AppendItem(line, typeface, characters, item);
    return line;
}

FontChoice ChooseFont(const QString& postScriptName, const QString& text)
{
    const std::shared_ptr<const Typeface> named = OpenFirst(FontsNamed(postScriptName));
    FontChoice first = Choose(named ? named : OpenFirst(SubstitutesFor(postScriptName, {})), !named, text);
    if (first.line.missing.isEmpty() && first.typeface)
        return first;
    for (const FontFile& file : SubstitutesFor(postScriptName, CharactersToShow(text)))
        if (FontChoice choice = Choose(Typeface::open(file), true, text);
            choice.typeface && choice.line.missing.isEmpty())
            return choice;
    return first;
}

} // namespace kesta::booklet_watermark
