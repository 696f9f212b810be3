#include "panels/booklet_watermark/fonts/Type1.h"

#include "panels/booklet_watermark/fonts/GlyphNames.h"
#include "panels/booklet_watermark/fonts/GlyphOutline.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kesta::booklet_watermark {
namespace {

// Starts of the cipher.
constexpr std::uint16_t kProgramKey = 55665;
constexpr std::uint16_t kCharStringKey = 4330;

constexpr double kLargestNumber = 32000; // that every interpreter takes as it is
constexpr qsizetype kLongestString = 65535;
constexpr qsizetype kHexInLine = 64;

// Commands of charstrings.
enum class Command : char {
    LineTo = 5,
    CurveTo = 8,
    ClosePath = 9,
    SideBearingAndWidth = 13,
    EndChar = 14,
    MoveTo = 21
};

QByteArray Encrypt(const QByteArray& plain, std::uint16_t key)
{
    QByteArray cipher(4, '\0'); // bytes that mean nothing come first; they must not look like hexadecimal digits
    cipher += plain;
    for (char& byte : cipher) {
        const auto encrypted = static_cast<std::uint8_t>(static_cast<std::uint8_t>(byte) ^ (key >> 8));
        key = static_cast<std::uint16_t>((encrypted + key) * 52845u + 22719u);
        byte = static_cast<char>(encrypted);
    }
    return cipher;
}

QByteArray NumberCode(SInt32 number)
{
    const auto byte = [](SInt32 value) { return static_cast<char>(static_cast<std::uint8_t>(value)); };
    if (number >= -107 && number <= 107)
        return {1, byte(number + 139)};
    if (number >= 108 && number <= 1131)
        return QByteArray(1, byte((number - 108) / 256 + 247)) + byte((number - 108) % 256);
    if (number >= -1131 && number <= -108)
        return QByteArray(1, byte((-number - 108) / 256 + 251)) + byte((-number - 108) % 256);
    return QByteArray(1, byte(255)) + byte(number >> 24) + byte(number >> 16) + byte(number >> 8) + byte(number);
}

struct Bounds {
    double left = 0, low = 0, right = 0, high = 0;
};

// Writes the steps from point to point; in whole numbers, so that rounding does not add up.
class CharString : public OutlineSink {
public:
    explicit CharString(SInt32 advance)
    {
        code_ += NumberCode(0) + NumberCode(advance);
        append(Command::SideBearingAndWidth);
    }

    void moveTo(OutlinePoint to) override
    {
        step(to);
        append(Command::MoveTo);
    }
    void lineTo(OutlinePoint to) override
    {
        step(to);
        append(Command::LineTo);
    }
    void curveTo(OutlinePoint first, OutlinePoint second, OutlinePoint to) override
    {
        step(first);
        step(second);
        step(to);
        append(Command::CurveTo);
    }
    void close() override
    {
        append(Command::ClosePath);
        hasInk_ = true;
    }

    QByteArray finish()
    {
        append(Command::EndChar);
        return code_;
    }
    bool hasInk() const { return hasInk_; }
    bool isValid() const { return isValid_; }
    const Bounds& bounds() const { return bounds_; }

private:
    void step(OutlinePoint to)
    {
        isValid_ &= std::abs(to.x) <= kLargestNumber / 2 && std::abs(to.y) <= kLargestNumber / 2;
        if (!isValid_)
            return;
        const auto x = static_cast<SInt32>(std::lround(to.x)), y = static_cast<SInt32>(std::lround(to.y));
        code_ += NumberCode(x - x_) + NumberCode(y - y_);
        x_ = x;
        y_ = y;
        bounds_ = {std::min(bounds_.left, to.x), std::min(bounds_.low, to.y), std::max(bounds_.right, to.x),
                   std::max(bounds_.high, to.y)};
    }
    void append(Command command) { code_ += static_cast<char>(command); }

    QByteArray code_;
    SInt32 x_ = 0;
    SInt32 y_ = 0;
    Bounds bounds_;
    bool hasInk_ = false;
    bool isValid_ = true;
};

struct CharStrings {
    std::vector<QByteArray> codes;
    Bounds bounds;
    bool hasInk = false;
};

std::optional<CharStrings> Convert(const Typeface& typeface, std::span<const PlacedGlyph> glyphs)
{
    CharStrings converted;
    Bounds& all = converted.bounds;
    for (const PlacedGlyph& glyph : glyphs) {
        CharString charString(glyph.advance);
        DrawOutline(typeface, glyph, charString);
        converted.codes.push_back(charString.finish());
        if (!charString.isValid() || std::abs(glyph.advance) > kLargestNumber ||
            converted.codes.back().size() > kLongestString - 4)
            return std::nullopt;
        converted.hasInk |= charString.hasInk();
        const Bounds& one = charString.bounds();
        all = {std::min(all.left, one.left), std::min(all.low, one.low), std::max(all.right, one.right),
               std::max(all.high, one.high)};
    }
    return converted;
}

QByteArray Bytes(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

QByteArray Header(const Typeface& typeface, const Bounds& bounds, const Encoding& encoding, const QByteArray& fontName)
{
    const QByteArray unit = QByteArray::number(1.0 / typeface.unitsPerEm(), 'g', 12);
    QByteArray text = "%!PS-AdobeFont-1.0: " + fontName + " 001.000\n11 dict begin\n" +
                      "/FontInfo 1 dict dup begin\nend readonly def\n/FontName /" + fontName +
                      " def\n/Encoding 256 array\n0 1 255 {1 index exch /.notdef put} for\n";
    for (std::size_t code = 0; code < encoding.size(); ++code)
        if (encoding[code] != kNotdef)
            text += "dup " + QByteArray::number(code) + " /" + Bytes(encoding[code]) + " put\n";
    text += "readonly def\n/PaintType 0 def\n/FontType 1 def\n/FontMatrix [" + unit + " 0 0 " + unit +
            " 0 0] readonly def\n/FontBBox {";
    for (const double side :
         {std::floor(bounds.left), std::floor(bounds.low), std::ceil(bounds.right), std::ceil(bounds.high)})
        text += QByteArray::number(static_cast<int>(side)) + ' ';
    return text + "} readonly def\ncurrentdict end\ncurrentfile eexec\n";
}

QByteArray Definition(std::string_view name, const QByteArray& code)
{
    const QByteArray encrypted = Encrypt(code, kCharStringKey);
    return '/' + Bytes(name) + ' ' + QByteArray::number(encrypted.size()) + " RD " + encrypted + " ND\n";
}

QByteArray PrivatePart(const CharStrings& charStrings, std::span<const std::string_view> names)
{
    QByteArray text = "dup /Private 8 dict dup begin\n"
                      "/RD {string currentfile exch readstring pop} executeonly def\n"
                      "/ND {noaccess def} executeonly def\n"
                      "/NP {noaccess put} executeonly def\n"
                      "/BlueValues [] def\n"
                      "/MinFeature {16 16} def\n"
                      "/password 5839 def\n"
                      "2 index /CharStrings " +
                      QByteArray::number(charStrings.codes.size() + 1) + " dict dup begin\n";
    text += Definition(kNotdef, CharString(0).finish());
    for (std::size_t glyph = 0; glyph < charStrings.codes.size(); ++glyph)
        text += Definition(names[glyph], charStrings.codes[glyph]);
    return text + "end\nend\nreadonly put\nnoaccess put\ndup /FontName get exch definefont pop\n"
                  "mark currentfile closefile\n";
}

// What ends the encrypted part, by being skipped.
QByteArray Trailer()
{
    return (QByteArray(kHexInLine, '0') + '\n').repeated(512 / kHexInLine) + "cleartomark\n";
}

QByteArray HexLines(const QByteArray& bytes)
{
    const QByteArray hex = bytes.toHex();
    QByteArray lines;
    lines.reserve(hex.size() + hex.size() / kHexInLine + 1);
    for (qsizetype at = 0; at < hex.size(); at += kHexInLine)
        lines.append(hex.constData() + at, std::min(kHexInLine, hex.size() - at)).append('\n');
    return lines;
}

} // namespace

std::optional<QByteArray> MakeType1(const Typeface& typeface, std::span<const PlacedGlyph> glyphs,
                                    std::span<const std::string_view> names, const Encoding& encoding,
                                    const QByteArray& fontName)
{
    const std::optional<CharStrings> charStrings = Convert(typeface, glyphs);
    if (!charStrings || !charStrings->hasInk)
        return std::nullopt;
    return Header(typeface, charStrings->bounds, encoding, fontName) +
           HexLines(Encrypt(PrivatePart(*charStrings, names), kProgramKey)) + Trailer();
}

} // namespace kesta::booklet_watermark
