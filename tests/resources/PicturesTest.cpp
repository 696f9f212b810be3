#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

using namespace Qt::StringLiterals;

// What holds for every picture of the bundle, as the build made it.
namespace kesta {
namespace {

constexpr qint64 kLargestFile = 4096; // bytes
constexpr QRgb kLightPane = 0xFFFCFCFD;
constexpr QRgb kDarkPane = 0xFF272A2E;

struct PictureName {
    QString file;
    QSize size;

    QString path() const { return QStringLiteral(KESTA_PICTURES "/") + file; }
    QString drawing() const
    {
        return QFileInfo(path()).path() + u'/' + QFileInfo(path()).completeBaseName() + u".svg"_s;
    }
    bool isOverlay() const { return file.startsWith(u"Paper_Overlay-"); }
};

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<PictureName> PictureNames()
{
    std::vector<PictureName> names;
    for (const QString& line : QString::fromUtf8(ContentOf(QStringLiteral(TEST_DATA "/pictures.txt"))).split(u'\n')) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QString size = line.section(u' ', 1);
        names.push_back(
            {line.section(u' ', 0, 0), QSize(size.section(u'x', 0, 0).toInt(), size.section(u'x', 1).toInt())});
    }
    return names;
}

QImage Render(const QString& drawing, qreal scale)
{
    QSvgRenderer renderer(drawing);
    QImage image((QSizeF(renderer.defaultSize()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

double Luminance(QRgb color)
{
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

double Contrast(QRgb a, QRgb b)
{
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

class PictureTest : public testing::TestWithParam<PictureName> {};

TEST_P(PictureTest, IsThereInItsSizeAndSmall)
{
    const PictureName& picture = GetParam();
    ASSERT_TRUE(QFileInfo(picture.path()).isFile());
    EXPECT_EQ(QSvgRenderer(picture.drawing()).defaultSize(), picture.size);
    EXPECT_LE(QFileInfo(picture.drawing()).size(), kLargestFile);
    if (picture.file.endsWith(u".icns")) {
        const QByteArray content = ContentOf(picture.path());
        EXPECT_TRUE(content.startsWith("icns") && content.contains("\x89PNG"));
    } else {
        EXPECT_EQ(QImage(picture.path()).size(), picture.size);
        EXPECT_LE(QFileInfo(picture.path()).size(), kLargestFile);
    }
}

TEST_P(PictureTest, IsDrawnWithWhatEveryRendererDrawsAlike)
{
    const std::set<QString> elements = {u"svg"_s, u"g"_s, u"path"_s, u"rect"_s, u"circle"_s};
    const std::set<QString> attributes = {u"x"_s,
                                          u"y"_s,
                                          u"width"_s,
                                          u"height"_s,
                                          u"rx"_s,
                                          u"cx"_s,
                                          u"cy"_s,
                                          u"r"_s,
                                          u"d"_s,
                                          u"fill"_s,
                                          u"stroke"_s,
                                          u"stroke-width"_s,
                                          u"viewBox"_s,
                                          u"transform"_s,
                                          u"stroke-linecap"_s,
                                          u"stroke-linejoin"_s};
    QXmlStreamReader xml(ContentOf(GetParam().drawing()));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        EXPECT_TRUE(elements.contains(xml.name().toString())) << xml.name().toString().toStdString();
        for (const QXmlStreamAttribute& attribute : xml.attributes())
            EXPECT_TRUE(attributes.contains(attribute.name().toString())) << attribute.name().toString().toStdString();
        const QStringView moved = xml.attributes().value(u"transform"_s);
        EXPECT_TRUE(moved.isEmpty() || moved.startsWith(u"translate(")) << moved.toString().toStdString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

// Nothing is cut off at the edge of the picture.
TEST_P(PictureTest, StaysInsideItsFrame)
{
    QSvgRenderer renderer(GetParam().drawing());
    const QSize size = GetParam().size;
    QImage image(size + QSize(2, 2), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(1, 1), QSizeF(size)));
    painter.end();
    for (int x = 0; x < image.width(); ++x)
        EXPECT_EQ(qAlpha(image.pixel(x, 0)) + qAlpha(image.pixel(x, image.height() - 1)), 0) << "column " << x;
    for (int y = 0; y < image.height(); ++y)
        EXPECT_EQ(qAlpha(image.pixel(0, y)) + qAlpha(image.pixel(image.width() - 1, y)), 0) << "row " << y;
}

bool IsBorder(const QImage& image, int x, int y)
{
    const auto isClear = [&](int column, int row) {
        return !image.valid(column, row) || qAlpha(image.pixel(column, row)) == 0;
    };
    return isClear(x - 1, y) || isClear(x + 1, y) || isClear(x, y - 1) || isClear(x, y + 1);
}

// Every pixel counts, and the silhouette stands out from light and dark.
TEST_P(PictureTest, HasHardPixelsAndAnEdgeOnBothPanes)
{
    const PictureName& picture = GetParam();
    if (!picture.file.endsWith(u".gif"))
        return;
    const QImage image = QImage(picture.path()).convertToFormat(QImage::Format_ARGB32);
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            EXPECT_TRUE(qAlpha(pixel) == 0 || qAlpha(pixel) == 255) << x << ',' << y;
            opaque += qAlpha(pixel) == 255;
            if (qAlpha(pixel) == 0 || picture.isOverlay() || !IsBorder(image, x, y))
                continue;
            EXPECT_GE(Contrast(pixel, kLightPane), 3) << x << ',' << y << ' ' << std::hex << pixel;
            EXPECT_GE(Contrast(pixel, kDarkPane), 3) << x << ',' << y << ' ' << std::hex << pixel;
        }
    }
    EXPECT_GT(opaque, 40);
}

std::string TestName(const testing::TestParamInfo<PictureName>& info)
{
    std::string name = info.param.file.toStdString();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return !std::isalnum(letter); }, '_');
    return name + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(All, PictureTest, testing::ValuesIn(PictureNames()), TestName);

// A setting that looks like another says nothing. At 1x a difference of a few pixels is none.
TEST(Pictures, DifferFromEachOtherWhereTheirSettingsDo)
{
    const std::set<std::pair<QString, QString>> sameOnPurpose = {
        {u"Paper_Pre-CutTab-White.gif"_s, u"Paper_Pre-CutTab_White.gif"_s},
        {u"Paper_Overlay-Heavyweight.gif"_s, u"Paper_Overlay-HeavyweightReloaded.gif"_s},
        {u"Paper_Overlay-LightweightGloss.gif"_s, u"Paper_Overlay-LightweightGlossReloaded.gif"_s},
        {u"Paper_Overlay-HeavyweightGloss.gif"_s, u"Paper_Overlay-HeavyweightGlossReloaded.gif"_s},
    };
    constexpr int kVisible = 12; // pixels
    std::vector<std::pair<QString, QImage>> before;
    for (const PictureName& name : PictureNames()) {
        const QImage image = Render(name.drawing(), 1);
        for (const auto& [file, other] : before) {
            if (other.size() != image.size() || sameOnPurpose.contains({file, name.file}))
                continue;
            int different = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    different += image.pixel(x, y) != other.pixel(x, y);
            }
            EXPECT_GE(different, kVisible) << file.toStdString() << " and " << name.file.toStdString();
        }
        before.emplace_back(name.file, image);
    }
}

} // namespace
} // namespace kesta
