#include "panels/booklet_watermark/FontBuilder.h"

namespace kesta::test {

QByteArray BigEndian16(unsigned number)
{
    QByteArray bytes(1, static_cast<char>(number >> 8));
    return bytes += static_cast<char>(number);
}

QByteArray BigEndian32(unsigned number)
{
    return BigEndian16(number >> 16) + BigEndian16(number & 0xFFFF);
}

FontBuilder::FontBuilder()
{
    tables["head"] = QByteArray(54, '\0');
    patch("head", 0, BigEndian32(0x00010000));
    patch("head", 4, BigEndian32(0x00028000));
    patch("head", 12, BigEndian32(0x5F0F3CF5));
    patch("head", 18, BigEndian16(2048));
    patch("head", 36, BigEndian16(0x10000 - 1024) + BigEndian16(0x10000 - 1) + BigEndian16(2048) + BigEndian16(1));
    tables["maxp"] = BigEndian32(0x00010000) + BigEndian16(0);
    tables["name"] = QByteArray(6, '\0');
    tables["post"] = BigEndian32(0x00030000) + QByteArray(28, '\0');
    tables["glyf"] = "";
    tables["loca"] = "";
    setGlyphSizes({4, 4, 4});
}

void FontBuilder::patch(const char* tag, qsizetype offset, const QByteArray& bytes)
{
    tables[tag].replace(offset, bytes.size(), bytes);
}

void FontBuilder::setNames(const std::vector<unsigned>& indices, const std::vector<QByteArray>& strings)
{
    QByteArray post =
        BigEndian32(0x00020000) + tables["post"].mid(4, 28) + BigEndian16(static_cast<unsigned>(indices.size()));
    for (const unsigned index : indices)
        post += BigEndian16(index);
    for (const QByteArray& text : strings)
        post += static_cast<char>(text.size()) + text;
    tables["post"] = post;
    setGlyphSizes(std::vector<unsigned>(indices.size(), 4));
}

void FontBuilder::setGlyphSizes(const std::vector<unsigned>& sizes)
{
    QByteArray loca, glyf;
    for (std::size_t glyph = 0; glyph < sizes.size(); ++glyph) {
        loca += BigEndian32(static_cast<unsigned>(glyf.size()));
        glyf += QByteArray(sizes[glyph], static_cast<char>('a' + glyph % 26));
    }
    tables["loca"] = loca + BigEndian32(static_cast<unsigned>(glyf.size()));
    tables["glyf"] = glyf;
    patch("head", 50, BigEndian16(1));
    patch("maxp", 4, BigEndian16(static_cast<unsigned>(sizes.size())));
}

QByteArray FontBuilder::file() const
{
    const unsigned count = static_cast<unsigned>(tables.size());
    QByteArray directory = BigEndian32(0x00010000) + BigEndian16(count) + QByteArray(6, '\0'), content;
    for (const auto& [tag, bytes] : tables) {
        const qsizetype offset = 12 + 16 * count + content.size();
        directory += tag + BigEndian32(0) + BigEndian32(static_cast<unsigned>(offset)) +
                     BigEndian32(static_cast<unsigned>(bytes.size()));
        content += bytes + QByteArray(-bytes.size() & 3, '\0');
    }
    return directory + content;
}

} // namespace kesta::test
