// The preview beside what a printer makes of the stored font program: the same glyphs in the same places.

#include "panels/booklet_watermark/TestFonts.h"
#include "panels/booklet_watermark/watermark/WatermarkFont.h"
#include "panels/booklet_watermark/watermark/WatermarkPreview.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace kesta::booklet_watermark {
namespace {

using namespace Qt::StringLiterals;

constexpr QSizeF kLetter(612, 792);
constexpr int kResolution = 150; // pixels in an inch
constexpr QSize kPixels(1275, 1650);

void RunProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    ASSERT_TRUE(process.waitForFinished(60000)) << qPrintable(program);
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_EQ(process.readAll(), QByteArray()) << qPrintable(program);
}

QImage Read(const QString& path)
{
    QImage image(path);
    EXPECT_EQ(image.size(), kPixels);
    return image.convertToFormat(QImage::Format_RGB32);
}

int Darkness(QRgb color)
{
    return 3 * 255 - qRed(color) - qGreen(color) - qBlue(color);
}

// The pixels more than half of which the watermark covers.
class Ink {
public:
    explicit Ink(const QImage& image) : image_(image)
    {
        forEach([this](QPoint at) { color_ = std::max(color_, image_.pixel(at), byDarkness); });
        forEach([this](QPoint at) { count_ += has(at); });
    }

    bool has(QPoint at) const
    {
        return image_.rect().contains(at) && Darkness(image_.pixel(at)) > Darkness(color_) / 2;
    }
    int count() const { return count_; }
    QRgb color() const { return color_; }

    // Those that are more than a pixel away from the other one's.
    int countAstray(const Ink& other) const
    {
        int count = 0;
        forEach([&](QPoint at) {
            bool isNear = !has(at);
            for (int neighbor = 0; neighbor < 9 && !isNear; ++neighbor)
                isNear = other.has(at + QPoint(neighbor % 3 - 1, neighbor / 3 - 1));
            count += !isNear;
        });
        return count;
    }

private:
    static bool byDarkness(QRgb a, QRgb b) { return Darkness(a) < Darkness(b); }
    template <class Function> void forEach(Function function) const
    {
        for (int y = 0; y < image_.height(); ++y)
            for (int x = 0; x < image_.width(); ++x)
                function(QPoint(x, y));
    }

    QImage image_;
    QRgb color_ = qRgb(255, 255, 255);
    int count_ = 0;
};

class WatermarkPrinting : public testing::Test {
public:
    WatermarkPrinting() { qputenv("KESTA_DATA_ROOT", QFile::encodeName(folder_.path())); }

    QImage preview(const QString& name)
    {
        PreviewBuffer buffer;
        notes = renderSavedWatermark(kWatermarkFile, name, kLetter, buffer);
        test::WriteBytes(at("preview.pdf"), buffer.content().toByteArray());
        RunProgram(u"pdftoppm"_s, {u"-r"_s, QString::number(kResolution), u"-png"_s, u"-singlefile"_s,
                                   at("preview.pdf"), at("preview")});
        return Read(at("preview.png"));
    }

    // As a driver does it, from what it finds in the store and the ticket. The interpreter's usual rasterizer rounds
    // large glyphs to a grid; its own one does not.
    QImage print(const QString& name, const QString& subsetName)
    {
        _WatermarkData record;
        EXPECT_TRUE(loadWatermarkData(kWatermarkFile, name, record));
        QByteArray program;
        loadFontData(kWatermarkFile, subsetName, program);
        EXPECT_FALSE(program.isEmpty());
        test::WriteBytes(at("job.ps"), program + Showing(record, subsetName));
        RunProgram(u"gs"_s,
                   {u"-q"_s, u"-dSAFER"_s, u"-dBATCH"_s, u"-dNOPAUSE"_s, u"-dDisableFAPI=true"_s, u"-dGridFitTT=0"_s,
                    u"-dTextAlphaBits=4"_s, u"-sDEVICE=png16m"_s, u"-r%1"_s.arg(kResolution),
                    u"-g%1x%2"_s.arg(kPixels.width()).arg(kPixels.height()), u"-o"_s, at("job.png"), at("job.ps")});
        return Read(at("job.png"));
    }

    WatermarkNotes notes;

private:
    static QByteArray Showing(const _WatermarkData& record, const QString& subsetName)
    {
        QByteArray codes, color;
        for (std::size_t code = 0; code < std::min<std::size_t>(record.glyphs.size(), 256); ++code)
            codes += QByteArray(1, static_cast<char>(code)).toHex();
        for (const float channel : {record.wellColor.red, record.wellColor.green, record.wellColor.blue})
            color += QByteArray::number(1 - (1 - double{channel}) * record.density / 100) + ' ';
        return '/' + subsetName.toUtf8() + " findfont " + QByteArray::number(record.fontSize) + " scalefont setfont\n" +
               color + "setrgbcolor\n" + QByteArray::number(record.xPosition, 'f', 6) + ' ' +
               QByteArray::number(record.yPosition, 'f', 6) + " translate " + QByteArray::number(record.angle) +
               " rotate\n0 0 moveto <" + codes + "> show showpage\n";
    }

    QString at(const char* file) const { return folder_.filePath(QLatin1String(file)); }

    QTemporaryDir folder_;
};

struct Case {
    const char* name;
    const char* font;
    const char* text;
    int size;
    int angle;
    bool isType1;
};

_WatermarkData RecordOf(const Case& what)
{
    _WatermarkData record;
    record.text.set(QString::fromUtf8(what.text));
    record.fontName.set(QLatin1String(what.font));
    record.isText = 1;
    record.fontSize = what.size;
    record.angle = what.angle;
    record.density = 60;
    record.scale = 100;
    record.wellColor = {1, 0.25F, 0, 1};
    record.xOffset = 0.3F;
    record.yOffset = -1.1F;
    return record;
}

class WatermarkFonts : public WatermarkPrinting, public testing::WithParamInterface<Case> {};

TEST_P(WatermarkFonts, ArePrintedAsInThePreview)
{
    const _WatermarkData record = RecordOf(GetParam());
    const QString name = record.text.get();
    saveWatermarkData(kWatermarkFile, record);
    const Ink shown(preview(name));
    EXPECT_FALSE(notes.isSubstitute);
    EXPECT_EQ(notes.missingCharacters, QString());

    const ConvertedFont font = convertFont(kWatermarkFile, name);
    ASSERT_EQ(font.problem, FontProblem::None);
    EXPECT_EQ(font.subsetName, u"KS-%1-KS"_s.arg(QLatin1String(GetParam().font)));
    QByteArray program;
    loadFontData(kWatermarkFile, font.subsetName, program);
    EXPECT_TRUE(program.startsWith(GetParam().isType1 ? "%!PS-AdobeFont-1.0: KS-" : "%!PS-TrueTypeFont-"));

    const Ink printed(print(name, font.subsetName));
    EXPECT_GT(shown.count(), 3000);
    EXPECT_EQ(printed.countAstray(shown), 0);
    EXPECT_EQ(shown.countAstray(printed), 0);
    EXPECT_NEAR(qRed(printed.color()), qRed(shown.color()), 2);
    EXPECT_NEAR(qGreen(printed.color()), qGreen(shown.color()), 2);
    EXPECT_NEAR(qBlue(printed.color()), qBlue(shown.color()), 2);
}

const Case kCases[] = {
    {"DejaVu", "DejaVuSans", "DRAFT AVATAR", 72, 45, false},
    {"Liberation", "LiberationSerif-BoldItalic", "Vertraulich: \u00e4\u00f6\u00fc", 60, -30, false},
    {"CJK", "DroidSansFallback", "\u673a\u5bc6\u6587\u4ef6 \u8349\u6848", 90, 10, false},
    {"CFF", "NimbusRoman-Regular", "Entwurf office AV", 72, 45, true},
    {"Variable", "Inter_800wght", "Confidential 12", 64, 60, true},
    {"Arabic", "DejaVuSans", "\u0645\u064f\u0633\u064e\u0648\u0651\u064e\u062f\u064e\u0629 \u0644\u0627", 90, 45,
     false},
    {"Mixed", "DejaVuSans", "Plan 7 \u0645\u0633\u0648\u062f\u0629 (2) x\u0323\u0302", 54, 0, false},
    {"Large", "LiberationSans", "II", 1000, 0, false},
};
std::string CaseName(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(All, WatermarkFonts, testing::ValuesIn(kCases), CaseName);

TEST_F(WatermarkPrinting, LongTextsHaveAllGlyphsAndCodesForTheFirst256)
{
    const Case what{"", "LiberationSans-Bold", "", 10, 50, false};
    _WatermarkData record = RecordOf(what);
    ASSERT_TRUE(record.text.set(QString(u'i').repeated(260) + QString(u'W').repeated(4)));
    const QString name = record.text.get();
    saveWatermarkData(kWatermarkFile, record);
    const Ink shown(preview(name));
    const ConvertedFont font = convertFont(kWatermarkFile, name);
    QByteArray program;
    loadFontData(kWatermarkFile, font.subsetName, program);
    EXPECT_TRUE(program.contains("/CharStrings 3 dict")); // .notdef, i and W
    EXPECT_TRUE(program.contains("dup 255 /g")) << program.left(200).constData();

    loadWatermarkData(kWatermarkFile, name, record);
    EXPECT_EQ(record.glyphs.size(), 264U);
    const Ink printed(print(name, font.subsetName));
    EXPECT_EQ(printed.countAstray(shown), 0);
    EXPECT_GT(shown.countAstray(printed), 100);
}

} // namespace
} // namespace kesta::booklet_watermark
