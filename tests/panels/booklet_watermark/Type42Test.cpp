#include "panels/booklet_watermark/fonts/Type42.h"
#include "panels/booklet_watermark/FontBuilder.h"
#include "panels/booklet_watermark/fonts/Sfnt.h"
#include "panels/booklet_watermark/fonts/SfntName.h"
#include "panels/booklet_watermark/fonts/Type42Strings.h"

#include <QByteArrayList>

#include <gtest/gtest.h>

#include <random>

namespace kesta::booklet_watermark {
namespace {

using test::BigEndian16;
using test::BigEndian32;
using test::FontBuilder;

struct Converted {
    bool isComplete;
    QByteArray text;
};

Converted Convert(const QByteArray& font, const QByteArray& name = "Test")
{
    QByteArray text;
    const bool isComplete = convertTTFtoPS42(font, name, text);
    return {isComplete, text};
}

QByteArray Hex(const QByteArray& bytes)
{
    return bytes.toHex().toUpper();
}

// The bytes of each string of the font.
std::vector<QByteArray> Strings(const QByteArray& text)
{
    std::vector<QByteArray> strings;
    const qsizetype start = text.indexOf("/sfnts [\n") + 9;
    for (const QByteArray& part : text.mid(start, text.indexOf("] def\n", start) - start).split('>'))
        if (part.startsWith('<'))
            strings.push_back(QByteArray::fromHex(part.mid(1)).chopped(1)); // without the pad byte
    return strings;
}

QByteArray Encoded(const QByteArray& text, int code)
{
    const qsizetype line = text.indexOf("dup " + QByteArray::number(code) + " /");
    return text.mid(line, text.indexOf('\n', line) - line);
}

TEST(Type42, WritesTheWholeFontInItsOrder)
{
    FontBuilder builder;
    builder.setNames({0, 36, 258}, {"f_f"});
    builder.patch("post", 16, BigEndian32(7) + BigEndian32(3000000000u));
    const QByteArray font = builder.file();
    const auto [isComplete, text] = Convert(font, "Test-Font (hidden) /x");
    EXPECT_TRUE(isComplete);

    QByteArray expected = "%!PS-TrueTypeFont-1.0000-2.5000\n"
                          "%%VMUsage: 7 3000000000\n"
                          "11 dict begin\n"
                          "/FontName /Test-Fonthiddenx def\n"
                          "/Encoding 256 array\n";
    for (int code = 0; code < 256; ++code)
        expected += "dup " + QByteArray::number(code) + " /" +
                    (code == 'A'  ? "A"
                     : code == 32 ? "f_f"
                                  : ".notdef") +
                    " put\n";
    expected += "readonly def\n"
                "/PaintType 0 def\n"
                "/FontMatrix [1 0 0 1 0 0] def\n"
                "/FontBBox [-0.500000 -0.000488 1.000000 0.000488] def\n"
                "/FontType 42 def\n"
                "/FontInfo 8 dict dup begin\n"
                "end readonly def\n"
                "/sfnts [\n"
                "<";
    for (qsizetype line = 0; line < font.size(); line += 30)
        expected += Hex(font.mid(line, 30)) + (line + 30 <= font.size() ? "\n" : "");
    expected += "00>] def\n"
                "/CharStrings 3 dict dup begin\n"
                "/.notdef 0 def\n"
                "/A 1 def\n"
                "/f_f 2 def\n"
                "end readonly def\n"
                "FontName currentdict end definefont pop\n";
    EXPECT_EQ(text, expected);

    QByteArray appended = "before";
    EXPECT_TRUE(convertTTFtoPS42(font, "Test-Font(hidden)x", appended));
    EXPECT_EQ(appended, "before" + expected);
}

TEST(Type42, AFontWithoutNamesHasNoCharStrings)
{
    for (const unsigned format : {0x00030000u, 0x00010000u}) {
        FontBuilder builder;
        builder.patch("post", 0, BigEndian32(format));
        const QByteArray text = Convert(builder.file()).text;
        EXPECT_TRUE(text.contains("/CharStrings 3 dict dup begin\nend readonly def\n"));
        EXPECT_EQ(text.count(" /.notdef put\n"), 256);
        EXPECT_FALSE(text.contains("VMUsage"));
    }
}

TEST(Type42, EncodesStandardNamesThenTheRest)
{
    FontBuilder builder;
    std::vector<unsigned> indices{258, 3}; // glyph 0 is "first", glyph 1 "space"
    std::vector<QByteArray> strings{"first"};
    builder.setNames(indices, strings);
    EXPECT_EQ(Encoded(Convert(builder.file()).text, 65), "dup 65 /first put") << "a missing name is that of glyph 0";
    EXPECT_EQ(Encoded(Convert(builder.file()).text, 32), "dup 32 /space put");

    indices = {0, 36, 258, 259, 258}; // a name of its own, twice, takes one code
    builder.setNames(indices, {"own", "other"});
    const QByteArray text = Convert(builder.file()).text;
    EXPECT_EQ(Encoded(text, 32), "dup 32 /own put");
    EXPECT_EQ(Encoded(text, 33), "dup 33 /other put");
    EXPECT_EQ(Encoded(text, 34), "dup 34 /.notdef put");
    EXPECT_EQ(Encoded(text, 65), "dup 65 /A put");
    EXPECT_EQ(Encoded(text, 31), "dup 31 /.notdef put");

    indices = {0};
    strings.clear();
    for (unsigned glyph = 0; glyph < 300; ++glyph) {
        indices.push_back(258 + glyph);
        strings.push_back("g" + QByteArray::number(glyph));
    }
    builder.setNames(indices, strings);
    const QByteArray many = Convert(builder.file()).text;
    EXPECT_EQ(Encoded(many, 255), "dup 255 /g223 put");
    EXPECT_TRUE(many.contains("/g299 300 def\n")) << "not encoded, but there";
    EXPECT_FALSE(many.contains("/g224 put"));
}

TEST(Type42, AFontMayHaveMoreNamesThanGlyphs)
{
    FontBuilder builder;
    builder.setNames({0, 262}, {"a", "b", "c", "d", "fifth"});
    EXPECT_TRUE(Convert(builder.file()).text.contains("/fifth 1 def\n"));
}

TEST(Type42, NumbersAreRoundedAsPrintfDoes)
{
    FontBuilder builder;
    builder.patch("head", 4, BigEndian32(0x00010800)); // 1.03125, half way between 1.0312 and 1.0313
    EXPECT_TRUE(Convert(builder.file()).text.startsWith("%!PS-TrueTypeFont-1.0000-1.0312\n"));
}

TEST(Type42, NamesThatWouldNotBeNamesAreLeftOut)
{
    FontBuilder builder;
    builder.setNames({0, 258, 259, 260, 261, 999}, {"a b", "x)show(", "", "fine"});
    const QByteArray text = Convert(builder.file()).text;
    EXPECT_FALSE(text.contains("a b"));
    EXPECT_FALSE(text.contains("show"));
    EXPECT_TRUE(text.contains("/.notdef 0 def\n/fine 4 def\nend readonly def\n"));

    builder.setNames({0, 258}, {"x"});
    builder.patch("post", 38, "\2"); // a byte longer than its table, and the byte behind it could be of a name
    builder["zzzz"] = "zzzz";
    EXPECT_FALSE(Convert(builder.file()).text.contains("xz"));
    builder.patch("post", 38, "\1");
    EXPECT_TRUE(Convert(builder.file()).text.contains("/x 1 def\n"));
}

TEST(Type42, CutsBetweenGlyphsOnly)
{
    FontBuilder builder;
    builder.setGlyphSizes({30000, 30002, 30002, 30000, 65532, 8}); // the third begins at 60002
    const QByteArray font = builder.file();
    const auto [isComplete, text] = Convert(font);
    EXPECT_TRUE(isComplete);
    const auto strings = Strings(text);
    const qsizetype glyf = find_table("glyf"_code, font)->offset;
    ASSERT_EQ(strings.size(), 5u);
    EXPECT_EQ(strings[0].size(), glyf + 30000) << "the third glyph does not begin at a multiple of four";
    EXPECT_EQ(strings[1].size(), 60004);
    EXPECT_EQ(strings[2].size(), 30000) << "the next glyph would be too much";
    EXPECT_EQ(strings[3].size(), 65532) << "which is as much as one string takes";
    QByteArray joined;
    for (const QByteArray& string : strings)
        joined += string;
    EXPECT_EQ(joined, font);

    // Lines go on over strings, and the end of a string counts for two bytes.
    const qsizetype cut = text.indexOf("00><");
    const qsizetype rest = 30 - (strings[0].size() % 30 + 2) % 30;
    EXPECT_EQ(text.indexOf('\n', cut), cut + 4 + 2 * rest);
}

TEST(Type42, ShortOffsetsCountInWords)
{
    FontBuilder builder;
    builder.setGlyphSizes({40000, 40000});
    builder["loca"] = BigEndian16(0) + BigEndian16(20000) + BigEndian16(40000);
    builder.patch("head", 50, BigEndian16(0));
    const QByteArray font = builder.file();
    const auto strings = Strings(Convert(font).text);
    ASSERT_EQ(strings.size(), 2u);
    EXPECT_EQ(strings[0].size(), find_table("glyf"_code, font)->offset + 40000);
}

TEST(Type42, AFontThatCannotBeCutStaysUnfinished)
{
    FontBuilder builder;
    builder.setGlyphSizes({70000, 4});
    const QByteArray font = builder.file();
    const auto [isComplete, text] = Convert(font);
    EXPECT_FALSE(isComplete);
    EXPECT_TRUE(text.endsWith("00>"));
    EXPECT_FALSE(text.contains("CharStrings"));

    builder.patch("head", 50, BigEndian16(7)); // offsets of no known format: every glyph is at the start
    EXPECT_FALSE(Convert(builder.file()).isComplete);
}

TEST(Type42, AStringTakesUpToTheLastBoundaryThatFits)
{
    constexpr qsizetype kMost = 65'534;
    std::vector<char> out(RoomForStrings(70'000));
    const auto first = [&](std::uint64_t boundary, qsizetype size = 70'000) {
        const WrittenStrings written = WriteStrings(QByteArray(size, 'x'), {boundary}, {0, 8}, out.data());
        const QByteArray text(out.data(), written.end - out.data());
        return text.first(text.indexOf('>')).count("78");
    };
    EXPECT_EQ(first(kMost - 1), kMost - 1);
    EXPECT_EQ(first(kMost), kMost);
    EXPECT_EQ(first(kMost + 1), 8) << "and never half of one that does not fit";
    EXPECT_EQ(first(100, kMost - 1), kMost - 1);
    EXPECT_EQ(first(100, kMost), 100) << "what is as large as a string is cut where it can be";
}

TEST(Type42, MalformedFontsGiveNothing)
{
    const auto error = [](const FontBuilder& builder) {
        testing::internal::CaptureStderr();
        const auto [isComplete, text] = Convert(builder.file());
        EXPECT_FALSE(isComplete);
        EXPECT_EQ(text, QByteArray());
        return testing::internal::GetCapturedStderr();
    };
    for (const char* tag : {"maxp", "head", "post", "name", "loca", "glyf"}) {
        FontBuilder missing;
        missing.tables.erase(tag);
        EXPECT_EQ(error(missing), "DEBUG: Malformed TrueType file - missing vital table.\n") << tag;
    }
    for (const char* tag : {"glyf", "loca"}) {
        QByteArray font = FontBuilder().file();
        const qsizetype entry = font.indexOf(tag);
        const auto resultOf = [&](unsigned offset) {
            testing::internal::CaptureStderr();
            const bool isComplete = Convert(font.replace(entry + 8, 4, BigEndian32(offset))).isComplete;
            testing::internal::GetCapturedStderr();
            return isComplete;
        };
        EXPECT_TRUE(resultOf(static_cast<unsigned>(font.size()))) << "an empty table at the end";
        EXPECT_FALSE(resultOf(static_cast<unsigned>(font.size()) + 1)) << tag;
        EXPECT_FALSE(resultOf(0xFFFFFFF0)) << tag;
    }
    FontBuilder magic;
    magic.patch("head", 12, BigEndian32(0x5F0F3CF4));
    EXPECT_EQ(error(magic), "DEBUG: Malformed TrueType file - Bad magic number\n");

    FontBuilder counts, names, units, ends;
    counts.setNames({0, 1}, {});
    counts.patch("maxp", 4, BigEndian16(3));
    names.patch("name", 0, BigEndian16(1));
    units.patch("head", 18, BigEndian16(0));
    ends.setNames({0, 1, 2}, {});
    ends.tables["zzzz"] = ends.tables["post"].first(34); // the indices would come behind the end of the file
    ends.tables.erase("post");
    QByteArray cut = ends.file();
    cut.replace("zzzz", "post");
    for (const FontBuilder& builder : {counts, names, units})
        EXPECT_EQ(error(builder), "");
    EXPECT_EQ(Convert(cut.chopped(2)).text, QByteArray());
}

TEST(Type42, HostileFontsAreReadWithinTheirBytes)
{
    FontBuilder builder;
    builder.setNames({0, 36, 258, 259}, {"one", "two"});
    const QByteArray font = builder.file();
    testing::internal::CaptureStderr();
    for (qsizetype size = 0; size < font.size(); ++size) {
        const QByteArray cut(font.constData(), size); // bytes of its own, so that sanitizers know the end
        Convert(cut);
        EXPECT_FALSE(PostScriptName(cut));
    }
    std::mt19937 random(5);
    int converted = 0;
    for (int round = 0; round < 5000; ++round) {
        QByteArray damaged(font.constData(), font.size());
        for (int change = 0; change < 3; ++change)
            damaged[static_cast<qsizetype>(random() % static_cast<unsigned>(font.size()))] =
                static_cast<char>(random() % 3 ? random() : 255);
        converted += Convert(damaged).isComplete;
        PostScriptName(damaged);
    }
    testing::internal::GetCapturedStderr();
    EXPECT_GT(converted, 500) << "most of the damage should get past the first check";
}

TEST(SfntName, FindsThePostScriptName)
{
    FontBuilder builder;
    builder["name"] = BigEndian16(0) + BigEndian16(2) + BigEndian16(30) + BigEndian16(3) + BigEndian16(1) +
                      BigEndian16(0x409) + BigEndian16(4) + BigEndian16(2) + BigEndian16(0) + BigEndian16(3) +
                      BigEndian16(1) + BigEndian16(0x409) + BigEndian16(6) + BigEndian16(4) + BigEndian16(2) +
                      QByteArray("\0X\0A\0b", 6);
    EXPECT_EQ(PostScriptName(builder.file()), "Ab");
    builder.patch("name", 18, BigEndian16(1));
    EXPECT_EQ(PostScriptName(builder.file()), QByteArray("\0A\0b", 4));
    builder.patch("name", 24, BigEndian16(5));
    EXPECT_EQ(PostScriptName(builder.file()), std::nullopt);
}

} // namespace
} // namespace kesta::booklet_watermark
