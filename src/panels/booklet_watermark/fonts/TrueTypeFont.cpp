#include "panels/booklet_watermark/fonts/TrueTypeFont.h"

#include "panels/booklet_watermark/fonts/GlyphNames.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace kesta::booklet_watermark {
namespace {

constexpr std::uint32_t kHeadMagic = 0x5F0F3CF5;
constexpr std::uint32_t kPostWithNames = 0x00020000;
constexpr std::uint64_t kPostNames = 32; // behind the part that all formats have

constexpr auto kIsPlain = [] {
    std::array<bool, 256> isPlain{};
    for (char c = '!'; c <= '~'; ++c)
        isPlain[static_cast<unsigned char>(c)] = std::string_view("()<>[]{}/%").find(c) == std::string_view::npos;
    return isPlain;
}();

enum class LocaFormat : std::uint16_t { Short = 0, Long = 1 };

struct VitalTables {
    SfntTable maxp, head, post, name, loca, glyf;
};

std::optional<VitalTables> FindVitalTables(QByteArrayView font)
{
    const auto maxp = find_table("maxp"_code, font), head = find_table("head"_code, font);
    const auto post = find_table("post"_code, font), name = find_table("name"_code, font);
    const auto loca = find_table("loca"_code, font), glyf = find_table("glyf"_code, font);
    if (!maxp || !head || !post || !name || !loca || !glyf)
        return std::nullopt;
    return VitalTables{*maxp, *head, *post, *name, *loca, *glyf};
}

// Nothing when there are no units to measure in.
std::optional<std::array<SInt32, 4>> ReadBoundingBox(SfntReader& reader, std::uint64_t head)
{
    const SInt64 unitsPerEm = reader.u16(head + 18);
    if (unitsPerEm == 0)
        return std::nullopt;
    std::array<SInt32, 4> box{};
    for (std::size_t side = 0; side < box.size(); ++side)
        box[side] = static_cast<SInt32>(reader.s16(head + 36 + 2 * side) * SInt64{65536} / unitsPerEm);
    return box;
}

// The counted strings from offset to end, but not more than some.
std::vector<std::string_view> ReadStrings(QByteArrayView font, std::uint64_t offset, std::uint64_t end,
                                          std::size_t most)
{
    std::vector<std::string_view> strings(most); // of the final size: growing one by one costs more than the reading
    std::size_t count = 0;
    while (offset < end && count < most) {
        const std::uint64_t length = static_cast<std::uint8_t>(font[static_cast<qsizetype>(offset)]);
        if (length > end - offset - 1)
            break;
        strings[count++] = {font.data() + offset + 1, length};
        offset += 1 + length;
    }
    strings.resize(count);
    return strings;
}

std::string_view GlyphName(std::size_t index, const std::vector<std::string_view>& strings)
{
    if (index < _macGlyphEncoding.size())
        return _macGlyphEncoding[index];
    index -= _macGlyphEncoding.size();
    return index < strings.size() && IsPlainName(strings[index]) ? strings[index] : std::string_view();
}

// As many strings as the glyphs refer to.
std::size_t NamedStrings(SfntReader& reader, std::uint64_t indices, std::size_t glyphCount)
{
    std::size_t most = 0;
    for (std::size_t glyph = 0; glyph < glyphCount; ++glyph)
        most = std::max<std::size_t>(most, reader.u16(indices + 2 * glyph));
    return most < _macGlyphEncoding.size() ? 0 : most - _macGlyphEncoding.size() + 1;
}

// False when the table and the font differ about the number of glyphs, or the file ends before.
bool ReadNames(TrueTypeFont& truetype, QByteArrayView font, SfntReader& reader, const SfntTable& post)
{
    const std::uint64_t indices = post.offset + kPostNames + 2;
    const std::uint64_t size = 2ull * truetype.glyphCount;
    if (reader.u16(post.offset + kPostNames) != truetype.glyphCount || !reader.holds(indices, size))
        return false;

    const std::uint64_t end = std::min(post.offset + std::uint64_t{post.length}, reader.size());
    const auto strings = ReadStrings(font, indices + size, end, NamedStrings(reader, indices, truetype.glyphCount));
    truetype.names.resize(truetype.glyphCount);
    for (std::uint64_t entry = indices; std::string_view & name : truetype.names) {
        name = GlyphName(reader.u16(entry), strings);
        entry += 2;
    }
    truetype.hasNames = true;
    return true;
}

// Where glyphs begin; those in the middle of a word of four bytes are left out.
void ReadGlyphOffsets(TrueTypeFont& truetype, SfntReader& reader, const VitalTables& tables, LocaFormat format)
{
    const bool isShort = format == LocaFormat::Short;
    if (!isShort && format != LocaFormat::Long) {
        truetype.glyphOffsets = {tables.glyf.offset};
        return;
    }
    const std::uint64_t entrySize = isShort ? 2 : 4;
    const std::uint64_t count =
        std::min<std::uint64_t>(truetype.glyphCount, (reader.size() - tables.loca.offset) / entrySize);
    truetype.glyphOffsets.resize(count);
    auto end = truetype.glyphOffsets.begin();
    for (std::uint64_t glyph = 0; glyph < count; ++glyph) {
        const std::uint64_t entry = tables.loca.offset + glyph * entrySize;
        const std::uint64_t offset = isShort ? 2ull * reader.u16(entry) : reader.u32(entry);
        if (offset % 4 == 0)
            *end++ = tables.glyf.offset + offset;
    }
    truetype.glyphOffsets.erase(end, truetype.glyphOffsets.end());
    if (!std::ranges::is_sorted(truetype.glyphOffsets))
        std::ranges::sort(truetype.glyphOffsets);
}

} // namespace

std::optional<TrueTypeFont> ReadTrueTypeFont(QByteArrayView font)
{
    const auto tables = FindVitalTables(font);
    if (!tables) {
        std::fputs("DEBUG: Malformed TrueType file - missing vital table.\n", stderr);
        return std::nullopt;
    }
    SfntReader reader(font);
    const std::uint64_t head = tables->head.offset, post = tables->post.offset;
    if (reader.u32(head + 12) != kHeadMagic) {
        std::fputs("DEBUG: Malformed TrueType file - Bad magic number\n", stderr);
        return std::nullopt;
    }

    TrueTypeFont truetype;
    truetype.glyphCount = reader.u16(tables->maxp.offset + std::uint64_t{4});
    truetype.version = reader.u32(head);
    truetype.revision = reader.u32(head + 4);
    truetype.minimumMemory = reader.u32(post + 16);
    truetype.maximumMemory = reader.u32(post + 20);
    const auto box = ReadBoundingBox(reader, head);
    const auto locaFormat = static_cast<LocaFormat>(reader.u16(head + 50));
    const bool hasNames = reader.u32(post) == kPostWithNames;
    if (!box || (hasNames && !ReadNames(truetype, font, reader, tables->post)))
        return std::nullopt;
    if (reader.u16(tables->name.offset) != 0 || reader.hasReadBeyondEnd())
        return std::nullopt;

    truetype.boundingBox = *box;
    ReadGlyphOffsets(truetype, reader, *tables, locaFormat);
    const auto offsets = TableOffsets(font);
    truetype.tableOffsets.assign(offsets.begin(), offsets.end());
    std::ranges::sort(truetype.tableOffsets);
    return truetype;
}

bool IsPlainName(std::string_view name)
{
    bool isPlain = !name.empty();
    for (const char c : name)
        isPlain &= kIsPlain[static_cast<unsigned char>(c)];
    return isPlain;
}

QByteArray PlainName(const QByteArray& name)
{
    QByteArray plain;
    std::ranges::copy_if(name, std::back_inserter(plain), [](char c) { return IsPlainName({&c, 1}); });
    return plain;
}

} // namespace kesta::booklet_watermark
