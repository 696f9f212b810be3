// Draws glyphs of converted fonts with an interpreter and compares them with what a rasterizer makes of the originals.

#include "panels/booklet_watermark/FontBuilder.h"
#include "panels/booklet_watermark/fonts/GlyphNames.h"
#include "panels/booklet_watermark/fonts/Sfnt.h"
#include "panels/booklet_watermark/fonts/SfntName.h"
#include "panels/booklet_watermark/fonts/Type42.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <ft2build.h>
#include FT_FREETYPE_H
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <numeric>
#include <string>

namespace kesta::booklet_watermark {
namespace {

constexpr int kSize = 100; // of an em, in pixels
constexpr int kSide = 320; // of the picture, in pixels
constexpr int kOrigin = 100;
constexpr unsigned kSampledGlyphs = 24;

// Black and white, rows from the top.
struct Picture {
    std::vector<char> pixels = std::vector<char>(kSide * kSide);

    bool isBlack(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < kSide && y < kSide && pixels[static_cast<std::size_t>(y * kSide + x)] != 0;
    }
    long count() const { return std::ranges::count(pixels, 1); }
};

// The black pixels of a with no black pixel of b at most one away.
int CountFarFrom(const Picture& b, const Picture& a)
{
    int count = 0;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) {
            bool isNear = !a.isBlack(x, y);
            for (int neighbor = 0; neighbor < 9 && !isNear; ++neighbor)
                isNear = b.isBlack(x + neighbor % 3 - 1, y + neighbor / 3 - 1);
            count += !isNear;
        }
    return count;
}

class Rasterizer {
public:
    explicit Rasterizer(const QByteArray& font)
    {
        EXPECT_EQ(FT_Init_FreeType(&library_), 0);
        EXPECT_EQ(
            FT_New_Memory_Face(library_, reinterpret_cast<const FT_Byte*>(font.constData()), font.size(), 0, &face_),
            0);
        EXPECT_EQ(FT_Set_Pixel_Sizes(face_, 0, kSize), 0);
    }
    ~Rasterizer() { FT_Done_FreeType(library_); }
    Rasterizer(const Rasterizer&) = delete;
    Rasterizer& operator=(const Rasterizer&) = delete;

    std::string nameOf(unsigned glyph) const
    {
        std::array<char, 64> name{};
        EXPECT_EQ(FT_Get_Glyph_Name(face_, glyph, name.data(), name.size()), 0);
        return name.data();
    }
    unsigned glyphCount() const { return static_cast<unsigned>(face_->num_glyphs); }

    Picture draw(unsigned glyph)
    {
        Picture picture;
        EXPECT_EQ(FT_Load_Glyph(face_, glyph, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP | FT_LOAD_RENDER), 0);
        const FT_Bitmap& bitmap = face_->glyph->bitmap;
        for (int y = 0; y < static_cast<int>(bitmap.rows); ++y)
            for (int x = 0; x < static_cast<int>(bitmap.width); ++x) {
                const int left = kOrigin + face_->glyph->bitmap_left + x;
                const int top = kSide - kOrigin - face_->glyph->bitmap_top + y;
                if (bitmap.buffer[y * bitmap.pitch + x] >= 128 && left >= 0 && top >= 0 && left < kSide && top < kSide)
                    picture.pixels[static_cast<std::size_t>(top * kSide + left)] = 1;
            }
        return picture;
    }

private:
    FT_Library library_ = nullptr;
    FT_Face face_ = nullptr;
};

// One glyph a page, named by number, whatever names the font has.
QByteArray Program(const QByteArray& type42, const QByteArray& name, const std::vector<unsigned>& glyphs)
{
    QByteArray program = type42 + "/" + name +
                         " findfont dup length dict begin\n"
                         "{ 1 index /FID ne { def } { pop pop } ifelse } forall\n"
                         "/CharStrings 100 dict dup begin /.notdef 0 def\n";
    for (const unsigned glyph : glyphs)
        program += "/n" + QByteArray::number(glyph) + " " + QByteArray::number(glyph) + " def\n";
    program +=
        "end def currentdict end /ByNumber exch definefont " + QByteArray::number(kSize) + " scalefont setfont\n";
    for (const unsigned glyph : glyphs)
        program += QByteArray::number(kOrigin) + " dup moveto /n" + QByteArray::number(glyph) + " glyphshow showpage\n";
    return program;
}

// The pages; none, and a failure, when the interpreter has anything to say.
std::vector<Picture> Draw(const QByteArray& program)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("font.ps")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(program) == program.size());
    file.close();

    const QString side = QString::number(kSide), pages = folder.filePath(QStringLiteral("pages.pgm"));
    QProcess interpreter;
    interpreter.setProcessChannelMode(QProcess::MergedChannels);
    interpreter.start(QStringLiteral("gs"),
                      {QStringLiteral("-q"), QStringLiteral("-dSAFER"), QStringLiteral("-dBATCH"),
                       QStringLiteral("-dNOPAUSE"), QStringLiteral("-dGridFitTT=0"),
                       QStringLiteral("-dTextAlphaBits=4"), QStringLiteral("-sDEVICE=pgmraw"), QStringLiteral("-r72"),
                       QStringLiteral("-g%1x%1").arg(side), QStringLiteral("-o"), pages, file.fileName()});
    EXPECT_TRUE(interpreter.waitForFinished(60000));
    EXPECT_EQ(interpreter.exitCode(), 0);
    const QByteArray said = interpreter.readAll();
    EXPECT_EQ(said, QByteArray());

    QFile output(pages);
    EXPECT_TRUE(output.open(QIODevice::ReadOnly));
    std::vector<Picture> pictures;
    while (!output.atEnd()) {
        QByteArray header;
        for (int line = 0; line < 4; ++line)
            header += output.readLine();
        EXPECT_TRUE(header.startsWith("P5\n#") && header.endsWith("255\n")) << header.constData();
        const QByteArray gray = output.read(kSide * kSide);
        Picture& picture = pictures.emplace_back();
        std::ranges::transform(gray, picture.pixels.begin(),
                               [](char level) { return static_cast<char>(static_cast<unsigned char>(level) < 128); });
    }
    return pictures;
}

QByteArray Read(const std::filesystem::path& path)
{
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll();
}

class Type42Drawing : public testing::TestWithParam<std::string> {};

TEST_P(Type42Drawing, GlyphsLookAsInTheOriginal)
{
    const QByteArray font = Read(GetParam());
    const auto name = PostScriptName(font);
    ASSERT_TRUE(name);
    QByteArray type42;
    ASSERT_TRUE(convertTTFtoPS42(font, *name, type42));

    Rasterizer rasterizer(font);
    std::vector<unsigned> glyphs;
    for (unsigned sample = 0; sample < kSampledGlyphs; ++sample)
        glyphs.push_back(sample * (rasterizer.glyphCount() - 1) / (kSampledGlyphs - 1));
    const auto drawn = Draw(Program(type42, *name, glyphs));
    ASSERT_EQ(drawn.size(), glyphs.size());

    int withInk = 0;
    for (std::size_t page = 0; page < drawn.size(); ++page) {
        const Picture original = rasterizer.draw(glyphs[page]);
        EXPECT_EQ(CountFarFrom(original, drawn[page]), 0) << "glyph " << glyphs[page] << " has too much";
        EXPECT_EQ(CountFarFrom(drawn[page], original), 0) << "glyph " << glyphs[page] << " lacks something";
        withInk += original.count() > 0;
        EXPECT_EQ(drawn[page].count() > 0, original.count() > 0) << "glyph " << glyphs[page];
    }
    EXPECT_GT(withInk, static_cast<int>(kSampledGlyphs) / 2);
}

// Whether a table is longer than a string and has no glyphs to cut between.
bool HasUncutTable(const QByteArray& font)
{
    std::vector<std::uint32_t> offsets = TableOffsets(font);
    offsets.push_back(static_cast<std::uint32_t>(font.size()));
    std::ranges::sort(offsets);
    const std::uint32_t glyphs = find_table("glyf"_code, font)->offset;
    for (auto next = offsets.begin() + 1; next != offsets.end(); ++next)
        if (*next - *(next - 1) > 65534 && *(next - 1) != glyphs)
            return true;
    return false;
}

std::vector<std::string> Fonts(bool withUncutTables)
{
    std::vector<std::string> fonts;
    for (const char* folder : {"dejavu", "liberation", "droid"})
        for (const auto& entry :
             std::filesystem::directory_iterator(std::string("/usr/share/fonts/truetype/") + folder))
            if (entry.path().extension() == ".ttf" && HasUncutTable(Read(entry.path())) == withUncutTables)
                fonts.push_back(entry.path());
    std::ranges::sort(fonts);
    return fonts;
}

std::string TestName(const testing::TestParamInfo<std::string>& font)
{
    std::string name = std::filesystem::path(font.param).stem();
    std::erase_if(name, [](unsigned char c) { return !std::isalnum(c); });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Installed, Type42Drawing, testing::ValuesIn(Fonts(false)), TestName);

class Type42Unfinished : public testing::TestWithParam<std::string> {};

TEST_P(Type42Unfinished, ALongTableCannotBeCut)
{
    QByteArray type42;
    EXPECT_FALSE(convertTTFtoPS42(Read(GetParam()), "Font", type42));
    EXPECT_TRUE(type42.startsWith("%!PS-TrueTypeFont") && !type42.contains("CharStrings"));
}

INSTANTIATE_TEST_SUITE_P(Installed, Type42Unfinished, testing::ValuesIn(Fonts(true)), TestName);

// The rasterizer has the names of the standard Macintosh order, too; codes of the standard encoding up to 126 follow it
// but for two quotes.
TEST(GlyphNames, AreThoseThatTheRasterizerKnows)
{
    std::vector<unsigned> order(_macGlyphEncoding.size());
    std::iota(order.begin(), order.end(), 0U);
    test::FontBuilder font;
    font.setNames(order, {});
    font["hhea"] = test::BigEndian32(0x00010000) + QByteArray(30, '\0') + test::BigEndian16(1); // one width for all
    font["hmtx"] = QByteArray(2 + 2 * static_cast<qsizetype>(order.size()), '\0');
    const QByteArray file = font.file();
    const Rasterizer rasterizer(file);
    for (const unsigned glyph : order)
        EXPECT_EQ(rasterizer.nameOf(glyph), _macGlyphEncoding[glyph]) << glyph;
    for (std::size_t code = ' '; code <= '~'; ++code) {
        const bool isQuote = code == '\'' || code == '`';
        EXPECT_EQ(_StandardEncodings[code] == _macGlyphEncoding[code - ' ' + 3], !isQuote) << code;
    }
}

} // namespace
} // namespace kesta::booklet_watermark
