#include "panels/booklet_watermark/fonts/Type42Writer.h"

#include "panels/booklet_watermark/fonts/Type42Strings.h"

#include <charconv>
#include <cstring>

namespace kesta::booklet_watermark {
namespace {

constexpr std::size_t kMostInHeader = 512;  // the lines whose length does not depend on the font
constexpr std::size_t kMostBesideName = 20; // in a line for a code or a glyph

// Writes text into room that is large enough.
class TextCursor {
public:
    explicit TextCursor(char* room) : end_(room) {}

    char* end() const { return end_; }
    void moveTo(char* end) { end_ = end; }

    TextCursor& operator<<(std::string_view text)
    {
        std::memcpy(end_, text.data(), text.size());
        end_ += text.size();
        return *this;
    }
    template <std::size_t size> TextCursor& operator<<(const char (&text)[size])
    {
        std::memcpy(end_, text, size - 1); // of known length: no call
        end_ += size - 1;
        return *this;
    }
    TextCursor& operator<<(std::uint32_t number)
    {
        end_ = std::to_chars(end_, end_ + 10, number).ptr;
        return *this;
    }
    TextCursor& fixed(SInt32 number, int decimals) // 16.16, rounded as printf does
    {
        end_ = std::to_chars(end_, end_ + 24, number / 65536.0, std::chars_format::fixed, decimals).ptr;
        return *this;
    }

private:
    char* end_;
};

std::size_t RoomFor(const TrueTypeFont& truetype, const Encoding& encoding, std::size_t fontSize,
                    const QByteArray& fontName)
{
    std::size_t room =
        kMostInHeader + static_cast<std::size_t>(fontName.size()) + RoomForStrings(fontSize) + RoomForStrings(0);
    for (const std::string_view name : encoding)
        room += name.size() + kMostBesideName;
    for (const std::string_view name : truetype.names)
        room += name.size() + kMostBesideName;
    return room;
}

void WriteHeader(TextCursor& out, const TrueTypeFont& truetype, const Encoding& encoding, const QByteArray& fontName)
{
    out << "%!PS-TrueTypeFont-";
    out.fixed(static_cast<SInt32>(truetype.version), 4) << "-";
    out.fixed(static_cast<SInt32>(truetype.revision), 4) << "\n";
    if (truetype.maximumMemory != 0)
        out << "%%VMUsage: " << truetype.minimumMemory << " " << truetype.maximumMemory << "\n";
    out << "11 dict begin\n/FontName /" << std::string_view(fontName) << " def\n/Encoding 256 array\n";
    for (std::uint32_t code = 0; code < encoding.size(); ++code)
        out << "dup " << code << " /" << encoding[code] << " put\n";
    out << "readonly def\n/PaintType 0 def\n/FontMatrix [1 0 0 1 0 0] def\n/FontBBox [";
    for (std::size_t side = 0; side < truetype.boundingBox.size(); ++side)
        out.fixed(truetype.boundingBox[side], 6)
            << std::string_view(side + 1 < truetype.boundingBox.size() ? " " : "] def\n");
    out << "/FontType 42 def\n/FontInfo 8 dict dup begin\nend readonly def\n/sfnts [\n";
}

// What stands behind a glyph's name: its number, counted up from 1.
class DefinitionEnd {
public:
    // With room to copy a constant number of bytes, which takes no call.
    static constexpr std::size_t kCopied = 12;
    const char* begin() const { return begin_; }
    std::size_t size() const { return static_cast<std::size_t>(text_ + kSize - begin_); }

    void countUp()
    {
        char* digit = text_ + kLastDigit;
        for (; *digit == '9'; --digit)
            *digit = '0';
        if (*digit == ' ') {
            *digit = '0';
            --begin_;
        }
        ++*digit;
    }

private:
    static constexpr std::size_t kLastDigit = 6, kSize = 12;

    char text_[kSize + kCopied] = "      1 def\n";
    char* begin_ = text_ + kLastDigit - 1;
};

void WriteDefinitions(TextCursor& out, const std::vector<std::string_view>& names)
{
    DefinitionEnd end;
    for (std::size_t glyph = 1; glyph < names.size(); ++glyph, end.countUp()) {
        if (names[glyph].empty())
            continue;
        out << "/" << names[glyph];
        std::memcpy(out.end(), end.begin(), DefinitionEnd::kCopied);
        out.moveTo(out.end() + end.size());
    }
}

void WriteCharStrings(TextCursor& out, const TrueTypeFont& truetype)
{
    out << "/CharStrings " << truetype.glyphCount << " dict dup begin\n";
    if (truetype.hasNames)
        out << "/.notdef 0 def\n";
    WriteDefinitions(out, truetype.names);
    out << "end readonly def\nFontName currentdict end definefont pop\n";
}

// The offsets counted from a place in the font, those behind it.
std::vector<std::uint64_t> Behind(const std::vector<std::uint64_t>& offsets, qsizetype place)
{
    std::vector<std::uint64_t> behind;
    behind.reserve(offsets.size());
    for (const std::uint64_t offset : offsets)
        if (offset > static_cast<std::uint64_t>(place))
            behind.push_back(offset - static_cast<std::uint64_t>(place));
    return behind;
}

} // namespace

bool AppendType42(QByteArrayView font, const TrueTypeFont& truetype, const Encoding& encoding,
                  const QByteArray& fontName, QByteArray& output, qsizetype firstString)
{
    const qsizetype before = output.size();
    output.resize(before +
                  static_cast<qsizetype>(RoomFor(truetype, encoding, static_cast<std::size_t>(font.size()), fontName)));
    TextCursor out(output.data() + before);
    WriteHeader(out, truetype, encoding, fontName);
    if (firstString > 0)
        out.moveTo(WriteStrings(font.first(firstString), {}, {}, out.end()).end);
    const WrittenStrings strings = WriteStrings(font.sliced(firstString), Behind(truetype.tableOffsets, firstString),
                                                Behind(truetype.glyphOffsets, firstString), out.end());
    out.moveTo(strings.end);
    if (strings.areComplete) {
        out << "] def\n";
        WriteCharStrings(out, truetype);
    }
    output.resize(out.end() - output.constData());
    return strings.areComplete;
}

} // namespace kesta::booklet_watermark
