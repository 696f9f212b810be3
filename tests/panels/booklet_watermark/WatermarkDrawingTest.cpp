#include "panels/booklet_watermark/FontBuilder.h"
#include "panels/booklet_watermark/TestFonts.h"
#include "panels/booklet_watermark/fonts/FontProgram.h"
#include "panels/booklet_watermark/watermark/WatermarkFont.h"
#include "panels/booklet_watermark/watermark/WatermarkNames.h"
#include "panels/booklet_watermark/watermark/WatermarkPicture.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "platform/system/SharedStoreFile.h"
#include "support/SmallDisk.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include <cairo.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <zlib.h>

#include <array>
#include <cmath>
#include <limits>

namespace kesta::booklet_watermark {
namespace {

using namespace Qt::StringLiterals;

constexpr QSizeF kLetter(612, 792);

_WatermarkData Text(const QString& text, const char* font = "LiberationSans")
{
    _WatermarkData record;
    record.text.set(text);
    record.fontName.set(QLatin1String(font));
    record.isText = 1;
    record.fontSize = 72;
    record.density = 25;
    record.scale = 100;
    record.wellColor = {0, 0, 1, 1};
    return record;
}

_WatermarkData Picture(const QString& path, SInt32 scale = 100)
{
    _WatermarkData record;
    record.fileName.set(QFileInfo(path).fileName());
    record.filePath.set(path);
    record.scale = scale;
    return record;
}

// The page as pixels, one a point.
QImage Draw(_WatermarkData& record, WatermarkNotes* notes = nullptr)
{
    QImage image(kLetter.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    cairo_surface_t* const surface = cairo_image_surface_create_for_data(
        image.bits(), CAIRO_FORMAT_ARGB32, image.width(), image.height(), static_cast<int>(image.bytesPerLine()));
    cairo_t* const context = cairo_create(surface);
    cairo_translate(context, 0, kLetter.height());
    cairo_scale(context, 1, -1);
    const WatermarkNotes said = DrawDenseWatermark(context, kLetter, record, {});
    if (notes)
        *notes = said;
    EXPECT_EQ(cairo_status(context), CAIRO_STATUS_SUCCESS);
    cairo_destroy(context);
    cairo_surface_flush(surface);
    cairo_surface_destroy(surface);
    return image;
}

// Of what is not white.
QRect InkBounds(const QImage& image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

class WatermarkDrawing : public testing::Test {
public:
    WatermarkDrawing() { qputenv("KESTA_DATA_ROOT", QFile::encodeName(folder_.path())); }

    QString at(const char* file) const { return folder_.filePath(QLatin1String(file)); }
    static QString storePath() { return CopyPreferenceFileURL(kWatermarkFile).value(); }

    static QByteArray font(const QString& key)
    {
        QByteArray program;
        loadFontData(kWatermarkFile, key, program);
        return program;
    }

    // Saved and listed.
    static void add(const _WatermarkData& record)
    {
        saveWatermarkData(kWatermarkFile, record);
        saveWatermarkList(kWatermarkFile, loadWatermarkList(kWatermarkFile).value_or(QStringList()) << NameOf(record));
    }

private:
    QTemporaryDir folder_;
};

TEST_F(WatermarkDrawing, TheInkIsCentredAndMovedByWholeInches)
{
    for (const SInt32 angle : {0, 45, 90, -30, 360}) {
        _WatermarkData record = Text(u"Qj,"_s);
        record.angle = angle;
        const QRectF ink = InkBounds(Draw(record));
        EXPECT_NEAR(ink.center().x(), 306, 1) << angle;
        EXPECT_NEAR(ink.center().y(), 396, 1) << angle;

        const double x = record.xPosition, y = record.yPosition;
        record.xOffset = 1;
        record.yOffset = 2;
        EXPECT_EQ(InkBounds(Draw(record)), InkBounds(Draw(record)));
        EXPECT_EQ(InkBounds(Draw(record)), ink.translated(72, -144).toRect()) << angle;
        EXPECT_EQ(QPointF(record.xPosition, record.yPosition), QPointF(x + 72, y + 144)) << angle;
        record.xOffset = 0.1F; // exact in parts of 65536
        Draw(record);
        EXPECT_EQ(record.xPosition * 65536, std::round(record.xPosition * 65536));
    }
}

TEST_F(WatermarkDrawing, TextIsAsDenseAsItSaysAlsoWhereGlyphsOverlap)
{
    _WatermarkData record = Text(QString::fromUtf8("\u0645\u0633\u062a\u0646\u062f"), "DejaVuSans"); // joined letters
    record.fontSize = 150;
    record.density = 40;
    const QImage image = Draw(record);
    int darkest = 255;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            darkest = std::min(darkest, qRed(image.pixel(x, y)));
    EXPECT_NEAR(darkest, 153, 1);
    record.density = 0;
    EXPECT_TRUE(InkBounds(Draw(record)).isEmpty());
}

TEST_F(WatermarkDrawing, TextIsOneLineWithoutKerning)
{
    const FontChoice font = ChooseFont(u"LiberationSans"_s, u"AV\tAV\nAV"_s);
    ASSERT_TRUE(font.typeface);
    const std::vector<PlacedGlyph>& glyphs = font.line.glyphs;
    ASSERT_EQ(glyphs.size(), 8U);
    EXPECT_EQ(font.line.missing, QString());
    EXPECT_EQ(glyphs[2], glyphs[5]); // both are spaces
    EXPECT_EQ(glyphs[0], glyphs[3]);
    EXPECT_EQ(glyphs[0], (PlacedGlyph{36, 0, 0, 1366}));                          // the font's own advance
    EXPECT_EQ(LayOutLine(*font.typeface, u"A\u200dV\u00ad"_s).glyphs.size(), 2U); // what isn't seen takes no code
    EXPECT_TRUE(LayOutLine(*font.typeface, QString()).glyphs.empty());
}

TEST_F(WatermarkDrawing, RightToLeftTextIsInTheOrderOfItsDrawing)
{
    const FontChoice font = ChooseFont(u"DejaVuSans"_s, QString::fromUtf8("\u05d0\u05d1 12"));
    const FontChoice alef = ChooseFont(u"DejaVuSans"_s, QString::fromUtf8("\u05d0"));
    ASSERT_EQ(font.line.glyphs.size(), 5U);
    EXPECT_EQ(font.line.glyphs.back(), alef.line.glyphs.front());
    EXPECT_EQ(font.line.glyphs.front(), ChooseFont(u"DejaVuSans"_s, u"1"_s).line.glyphs.front());
}

TEST_F(WatermarkDrawing, AnotherFontStandsInForOneThatIsNotHere)
{
    struct {
        const char* named;
        const char* text;
        const char* drawnIn;
        bool isSubstitute;
    } const cases[] = {
        {"LiberationSans-Bold", "Draft", "LiberationSans-Bold", false},
        {"ArialMT", "Draft", "LiberationSans", true},
        {"Arial-BoldItalicMT", "Draft", "LiberationSans-BoldItalic", true},
        {"NoSuchFont-Bold", "Draft", "DejaVuSans-Bold", true},
        {"", "Draft", "DejaVuSans", true},
        {"LiberationSans", "\u673a\u5bc6", "DroidSansFallback", true},
        {"NimbusRoman-Regular", "\u0645 x", "DejaVuSans", true}, // the whole text in one font
    };
    for (const auto& [named, text, drawnIn, isSubstitute] : cases) {
        _WatermarkData record = Text(QString::fromUtf8(text), named);
        WatermarkNotes notes;
        Draw(record, &notes);
        const FontChoice font = ChooseFont(QLatin1String(named), QString::fromUtf8(text));
        EXPECT_EQ(font.typeface->file().postScriptName, QLatin1String(drawnIn)) << named;
        EXPECT_EQ(notes.isSubstitute, isSubstitute) << named;
        EXPECT_EQ(notes.missingCharacters, QString()) << named;
        EXPECT_EQ(record.fontName.get(), QLatin1String(named)); // stays
    }
}

TEST_F(WatermarkDrawing, CharactersThatNoFontHasAreNamedAndDrawnAsGlyph0)
{
    _WatermarkData record = Text(QString::fromUtf8("A\U00012000B\U00012000\U00012001"));
    WatermarkNotes notes;
    Draw(record, &notes);
    EXPECT_FALSE(notes.isSubstitute);
    EXPECT_EQ(notes.missingCharacters, QString::fromUtf8("\U00012000\U00012001"));
    ASSERT_EQ(record.glyphs.size(), 5U);
    EXPECT_EQ(record.glyphs[1], 0);
    EXPECT_EQ(record.glyphs[3], 0);

    add(record);
    EXPECT_EQ(convertFont(kWatermarkFile, NameOf(record)).problem, FontProblem::None);
}

TEST_F(WatermarkDrawing, OnlyAStoreThatIsNamedIsWrittenAndOnlyWhenSomethingChanged)
{
    _WatermarkData record = Text(u"Draft"_s);
    PreviewBuffer buffer;
    renderWatermark(record, kLetter, buffer);
    EXPECT_FALSE(QFileInfo::exists(storePath()));
    add(Text(u"Draft"_s));
    renderSavedWatermark(kWatermarkFile, u"Draft"_s, kLetter, buffer);
    _WatermarkData drawn;
    loadWatermarkData(kWatermarkFile, u"Draft"_s, drawn);
    EXPECT_EQ(drawn, record);

    const QByteArray first = buffer.content().toByteArray(), path = QFile::encodeName(storePath());
    const timespec longAgo[2] = {{1000, 0}, {1000, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, path.constData(), longAgo, 0), 0);
    renderSavedWatermark(kWatermarkFile, u"Draft"_s, kLetter, buffer);
    struct stat status = {};
    ASSERT_EQ(stat(path.constData(), &status), 0);
    EXPECT_EQ(status.st_mtim.tv_sec, 1000);
    EXPECT_EQ(buffer.content(), first); // the same page, the same bytes
    renderSavedWatermark(kWatermarkFile, u"Other"_s, kLetter, buffer);
    EXPECT_TRUE(buffer.content().startsWith("%PDF-") && buffer.content() != first);
}

TEST_F(WatermarkDrawing, ARecordUnderAnotherNameReplacesNothing)
{
    saveWatermarkData(kWatermarkFile, Text(u"WatermarkListEntries"_s));
    ASSERT_EQ(ChangeXMLData(kWatermarkFile, WhenUnreadable::DoNothing,
                            [](Dictionary& root) {
                                root.set("Draft", *root.dictionary(kWatermarkListKey));
                                root.set(kWatermarkListKey, Array{QStringLiteral("Draft")});
                            }),
              0);
    PreviewBuffer buffer;
    renderSavedWatermark(kWatermarkFile, u"Draft"_s, kLetter, buffer);
    EXPECT_FALSE(convertFont(kWatermarkFile, u"Draft"_s).subsetName.isEmpty());
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), QStringList{u"Draft"_s});
}

TEST_F(WatermarkDrawing, ABufferGrowsByDoublingAndIsReadUpToItsLastByte)
{
    PreviewBuffer buffer(8);
    EXPECT_EQ(buffer.append("1234567", 7), 7U);
    EXPECT_EQ(buffer.capacity(), 8U); // one is left
    EXPECT_EQ(buffer.append("8", 1), 1U);
    EXPECT_EQ(buffer.capacity(), 16U);
    EXPECT_EQ(buffer.append("abc", std::numeric_limits<std::size_t>::max() / 2), 0U); // no memory has that
    EXPECT_EQ(buffer.content(), "12345678");

    std::array<char, 32> read{};
    EXPECT_EQ(buffer.read(read.data(), 3), 3U);
    buffer.skip(1);
    EXPECT_EQ(buffer.read(read.data(), read.size()), 11U);
    EXPECT_EQ(QByteArray(read.data(), 11), QByteArray("5678") + QByteArray(7, '\0'));
    EXPECT_EQ(buffer.read(read.data(), 1), 0U);
    buffer.rewind();
    EXPECT_EQ(buffer.read(read.data(), 2), 2U);
    EXPECT_EQ(QByteArray(read.data(), 2), "12");
    buffer.clear();
    EXPECT_TRUE(buffer.content().isEmpty());
    EXPECT_EQ(buffer.capacity(), 16U);
}

TEST_F(WatermarkDrawing, PicturesAreCentredAtTheirScaleAndNothingElse)
{
    QImage red(200, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    for (const char* file : {"p.png", "p.jpg", "p.bmp", "p.tiff"})
        ASSERT_TRUE(red.save(at(file))) << file;
    test::WriteBytes(at("p.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'>"
                                  "<rect width='200' height='100' fill='red'/></svg>");
    for (const char* file : {"p.png", "p.jpg", "p.bmp", "p.tiff", "p.svg"}) {
        _WatermarkData record = Picture(at(file));
        record.angle = 45;
        record.xOffset = 2;
        record.density = 10;
        WatermarkNotes notes;
        const QImage image = Draw(record, &notes);
        EXPECT_EQ(notes, WatermarkNotes()) << file;
        EXPECT_EQ(InkBounds(image), QRect(206, 346, 200, 100)) << file;
        EXPECT_GT(qRed(image.pixel(306, 396)), 250) << file;
        EXPECT_LT(qGreen(image.pixel(306, 396)), 5) << file;
        record.scale = 50;
        EXPECT_EQ(InkBounds(Draw(record)), QRect(256, 371, 100, 50)) << file;
        record.scale = 300;
        const QRect large = InkBounds(Draw(record)); // smooth at its edges
        EXPECT_TRUE(QRect(4, 244, 604, 304).contains(large) && large.contains(QRect(6, 246, 600, 300))) << file;
    }
}

TEST_F(WatermarkDrawing, PicturesTopIsUpAndTheyAreEmbeddedOnce)
{
    QImage photo(300, 300, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    for (int x = 0; x < 300; ++x)
        photo.setPixel(x, 0, qRgb(255, 0, 0));
    ASSERT_TRUE(photo.save(at("p.png")));
    _WatermarkData record = Picture(at("p.png"));
    EXPECT_GT(qRed(Draw(record).pixel(306, 246)), 200);
    PreviewBuffer buffer;
    renderWatermark(record, kLetter, buffer);
    EXPECT_EQ(buffer.content().toByteArray().count("/Subtype /Image"), 1);
}

// Of a pixel, which says that it has 100,000 x 100,000.
QByteArray HugePNG(const QString& path)
{
    QImage(1, 1, QImage::Format_RGB32).save(path);
    QByteArray bytes = test::FileBytes(path);
    bytes.replace(16, 8, QByteArray::fromHex("000186a0000186a0"));
    const auto check = crc32(0, reinterpret_cast<const Bytef*>(bytes.constData() + 12), 17);
    return bytes.replace(29, 4, test::BigEndian32(static_cast<unsigned>(check)));
}

TEST_F(WatermarkDrawing, HostilePicturesDrawNothingAndAreNamed)
{
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' ";
    QByteArray bomb = svg + "width='9' height='9'><g id='a0'><rect width='1' height='1'/></g>";
    for (int level = 1; level < 12; ++level)
        bomb += "<g id='a" + QByteArray::number(level) + "'>" +
                ("<use xlink:href='#a" + QByteArray::number(level - 1) + "'/>").repeated(10) + "</g>";
    struct {
        const char* file;
        QByteArray bytes;
        PictureProblem problem;
    } const cases[] = {
        {"bomb.png", HugePNG(at("one.png")), PictureProblem::TooLarge},
        {"big.svg", svg + "width='100000' height='100000'><rect width='9' height='9'/></svg>",
         PictureProblem::TooLarge},
        {"uses.svg", bomb + "</svg>", PictureProblem::TooLarge},
        {"self.svg", svg + "width='9' height='9'><g id='a'><use xlink:href='#a'/></g></svg>", PictureProblem::TooLarge},
        {"cut.jpg", QByteArray::fromHex("ffd8ffe000104a46494600"), PictureProblem::NotPicture},
        {"text.png", "no picture", PictureProblem::NotPicture},
        {"empty.gif", "", PictureProblem::NotPicture},
    };
    for (const auto& [file, bytes, problem] : cases) {
        test::WriteBytes(at(file), bytes);
        _WatermarkData record = Picture(at(file));
        WatermarkNotes notes;
        EXPECT_TRUE(InkBounds(Draw(record, &notes)).isEmpty()) << file;
        EXPECT_EQ(notes.picture, problem) << file;
    }
    for (const QString& path : {at("missing.png"), u"/dev/zero"_s, at("."), QString()})
        EXPECT_EQ(LoadPicture(path, 100).problem, PictureProblem::CantOpen) << qPrintable(path);
}

TEST_F(WatermarkDrawing, FontsThatCannotBeSentAreNamed)
{
    struct {
        const char* font;
        FontProblem problem;
    } const cases[] = {
        {"RestrictedSans", FontProblem::Forbidden},
        {"NoSubsetSans12", FontProblem::Forbidden},
        {"BitmapOnlySan1", FontProblem::NotOutlines},
        {"ColoredSans123", FontProblem::NotOutlines},
    };
    for (const auto& [font, problem] : cases) {
        add(Text(u"Draft"_s, font));
        const ConvertedFont converted = convertFont(kWatermarkFile, u"Draft"_s);
        EXPECT_EQ(converted.problem, problem) << font;
        EXPECT_EQ(converted.subsetName, QString()) << font;
        EXPECT_EQ(this->font(SubsetFontName(QLatin1String(font))), QByteArray()) << font;
    }
    add(Picture(u"logo.png"_s));
    EXPECT_EQ(convertFont(kWatermarkFile, u"logo.png"_s).problem, FontProblem::NoText);
    EXPECT_EQ(convertFont(kWatermarkFile, u"Unknown"_s).problem, FontProblem::NoText);
}

TEST_F(WatermarkDrawing, AFontFileThatVanishesOrIsDamagedGivesWayToAnother)
{
    add(Text(u"Draft"_s, "VanishingSans1"));
    EXPECT_EQ(convertFont(kWatermarkFile, u"Draft"_s).subsetName, u"KS-VanishingSans1-KS"_s);
    ASSERT_TRUE(QFile::remove(test::FontCopy("VanishingSans1")));
    EXPECT_EQ(convertFont(kWatermarkFile, u"Draft"_s).subsetName, u"KS-DejaVuSans-KS"_s);

    const QByteArray good = test::FileBytes(test::FontCopy("DamagedSans123"));
    add(Text(u"Draft"_s, "DamagedSans123"));
    EXPECT_EQ(convertFont(kWatermarkFile, u"Draft"_s).subsetName, u"KS-DamagedSans123-KS"_s);
    test::WriteBytes(test::FontCopy("DamagedSans123"), QByteArray(5000, 'x'));
    EXPECT_EQ(convertFont(kWatermarkFile, u"Draft"_s).subsetName, u"KS-DejaVuSans-KS"_s);
    test::WriteBytes(test::FontCopy("DamagedSans123"), good.left(400)); // tables, but nothing in them
    EXPECT_EQ(convertFont(kWatermarkFile, u"Draft"_s).subsetName, u"KS-DejaVuSans-KS"_s);
    test::WriteBytes(test::FontCopy("DamagedSans123"), good);
    EXPECT_EQ(convertFont(kWatermarkFile, u"Draft"_s).subsetName, u"KS-DamagedSans123-KS"_s);
}

TEST_F(WatermarkDrawing, WithoutAFontInTheStoreThereIsNoNameForTheTicket)
{
    add(Text(u"Draft"_s));
    add(Text(u"KS-LiberationSans-KS"_s, "DejaVuSans")); // takes the font's place
    EXPECT_EQ(convertFont(kWatermarkFile, u"Draft"_s).problem, FontProblem::NotStored);
    EXPECT_TRUE(HasWatermark(kWatermarkFile, u"KS-LiberationSans-KS"_s));

    add(Text(u"Serif"_s, "LiberationSerif"));
    const QByteArray before = test::FileBytes(storePath());
    {
        const test::SmallDisk disk(static_cast<rlim_t>(before.size()));
        EXPECT_EQ(convertFont(kWatermarkFile, u"Serif"_s).problem, FontProblem::NotStored);
    }
    EXPECT_EQ(test::FileBytes(storePath()), before);
}

TEST_F(WatermarkDrawing, AFontGoesWithItsLastWatermark)
{
    add(Text(u"One"_s, "ArialMT"));
    add(Text(u"Two"_s));
    const QString key = convertFont(kWatermarkFile, u"One"_s).subsetName;
    ASSERT_EQ(key, convertFont(kWatermarkFile, u"Two"_s).subsetName);

    removeWatermarkData(kWatermarkFile, u"One"_s);
    DropFont(kWatermarkFile, Text(u"One"_s, "ArialMT"));
    EXPECT_FALSE(font(key).isEmpty());
    _WatermarkData changed = Text(u"Two"_s, "DejaVuSans");
    saveWatermarkData(kWatermarkFile, changed);
    DropFont(kWatermarkFile, Text(u"Two"_s));
    EXPECT_TRUE(font(key).isEmpty());
}

TEST_F(WatermarkDrawing, NamesOfTheStoresOwnAreRefused)
{
    storeFontData(kWatermarkFile, u"X"_s, "x");
    add(Text(u"Draft"_s));
    storeFontData(kWatermarkFile, u"OldFont"_s, "%!PS");
    const auto check = [](const QString& name) { return CheckWatermarkName(kWatermarkFile, name); };
    EXPECT_EQ(check(QString()), NameProblem::Empty);
    EXPECT_EQ(check(QString(u'x').repeated(511)), NameProblem::None);
    EXPECT_EQ(check(QString(u'ä').repeated(256)), NameProblem::TooLong);
    EXPECT_EQ(check(u"WatermarkListEntries"_s), NameProblem::Reserved);
    EXPECT_EQ(check(u"KS-Any-KS"_s), NameProblem::FontsName);
    EXPECT_EQ(check(u"OldFont"_s), NameProblem::FontsName);
    EXPECT_EQ(check(u"Draft"_s), NameProblem::None);
    EXPECT_EQ(check(u"KS--KS"_s), NameProblem::None);
}

} // namespace
} // namespace kesta::booklet_watermark
