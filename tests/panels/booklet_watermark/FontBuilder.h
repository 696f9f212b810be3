#pragma once

#include <QByteArray>

#include <map>
#include <vector>

namespace kesta::test {

QByteArray BigEndian16(unsigned number);
QByteArray BigEndian32(unsigned number);

// A font file of a few empty glyphs, to be changed table by table.
struct FontBuilder {
    std::map<QByteArray, QByteArray> tables; // by tag, in the order of the file
    FontBuilder();

    QByteArray& operator[](const char* tag) { return tables[tag]; }
    void patch(const char* tag, qsizetype offset, const QByteArray& bytes);

    // Names the glyphs by their index in the standard order, or from 258 on by the strings, and fits maxp and loca.
    void setNames(const std::vector<unsigned>& indices, const std::vector<QByteArray>& strings);

    // Gives each glyph so many bytes of its own; offsets are long ones.
    void setGlyphSizes(const std::vector<unsigned>& sizes);

    QByteArray file() const;
};

} // namespace kesta::test
