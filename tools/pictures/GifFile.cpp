#include "GifFile.h"

#include "Tokens.h"

#include <gif_lib.h>

#include <algorithm>
#include <map>
#include <vector>

namespace kesta::pictures {
namespace {

constexpr int kOpaqueFrom = 128;        // of 255
constexpr std::size_t kMaxColors = 255; // beside the transparent one
constexpr QRgb kTransparent = 0;

int Distance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

QRgb Nearest(QRgb color, const std::vector<QRgb>& colors)
{
    return *std::min_element(colors.begin(), colors.end(),
                             [color](QRgb a, QRgb b) { return Distance(color, a) < Distance(color, b); });
}

// Every pixel either opaque or kTransparent.
QImage WithoutHalfTones(const QImage& premultiplied)
{
    QImage image = premultiplied.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            image.setPixel(x, y, qAlpha(pixel) < kOpaqueFrom ? kTransparent : pixel | 0xFF000000U);
        }
    }
    return image;
}

bool IsBorder(const QImage& image, int x, int y)
{
    const auto isClear = [&](int column, int row) {
        return !image.valid(column, row) || image.pixel(column, row) == kTransparent;
    };
    return isClear(x - 1, y) || isClear(x + 1, y) || isClear(x, y - 1) || isClear(x, y + 1);
}

std::vector<QRgb> EdgeColors()
{
    std::vector<QRgb> colors = {0xFF000000U | kAction};
    for (const Paper& paper : kPapers)
        colors.push_back(0xFF000000U | paper.edge);
    return colors;
}

std::vector<QRgb> EdgeColorsIn(const QImage& image, const QRect& area)
{
    static const std::vector<QRgb> kEdges = EdgeColors();
    std::vector<QRgb> found;
    const QRect inside = area.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (std::find(kEdges.begin(), kEdges.end(), pixel) != kEdges.end())
                found.push_back(pixel);
        }
    }
    return found;
}

// A border pixel that is half edge and half fill becomes all edge: in the nearest of the edge colours beside it, or,
// where a slanting line leaves none pure, of the whole picture.
void SettleBorder(QImage& image)
{
    constexpr QRect kBeside(-2, -2, 5, 5);
    const QImage before = image;
    const std::vector<QRgb> anywhere = EdgeColorsIn(before, before.rect());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = before.pixel(x, y);
            if (pixel == kTransparent || !IsBorder(before, x, y))
                continue;
            const std::vector<QRgb> beside = EdgeColorsIn(before, kBeside.translated(x, y));
            const std::vector<QRgb>& edges = beside.empty() ? anywhere : beside;
            if (!edges.empty())
                image.setPixel(x, y, Nearest(pixel, edges));
        }
    }
}

// The most frequent colours, in a fixed order.
std::vector<QRgb> ColorsOf(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != kTransparent)
                ++counts[image.pixel(x, y)];
        }
    }
    std::vector<std::pair<QRgb, int>> byCount(counts.begin(), counts.end());
    std::stable_sort(byCount.begin(), byCount.end(), [](auto& a, auto& b) { return a.second > b.second; });
    byCount.resize(std::min(byCount.size(), kMaxColors));
    std::vector<QRgb> colors;
    for (const auto& [color, count] : byCount)
        colors.push_back(color);
    return colors;
}

// Index 0 is the transparent one, the colours follow.
std::vector<GifByteType> Indices(const QImage& image, const std::vector<QRgb>& colors)
{
    std::vector<GifByteType> indices;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const auto found =
                pixel == kTransparent ? colors.end() : std::find(colors.begin(), colors.end(), Nearest(pixel, colors));
            indices.push_back(found == colors.end() ? 0 : static_cast<GifByteType>(found - colors.begin() + 1));
        }
    }
    return indices;
}

int Append(GifFileType* gif, const GifByteType* bytes, int count)
{
    static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), count);
    return count;
}

std::vector<GifColorType> ColorTable(const std::vector<QRgb>& colors)
{
    std::size_t size = 2;
    while (size < colors.size() + 1)
        size *= 2;
    std::vector<GifColorType> table(size);
    for (std::size_t i = 0; i < colors.size(); ++i)
        table[i + 1] = {static_cast<GifByteType>(qRed(colors[i])), static_cast<GifByteType>(qGreen(colors[i])),
                        static_cast<GifByteType>(qBlue(colors[i]))};
    return table;
}

bool PutImage(GifFileType* gif, const QImage& image, const std::vector<QRgb>& colors)
{
    const std::vector<GifColorType> table = ColorTable(colors);
    ColorMapObject* map = GifMakeMapObject(static_cast<int>(table.size()), table.data());
    const GraphicsControlBlock control = {
        .DisposalMode = DISPOSAL_UNSPECIFIED, .UserInputFlag = false, .DelayTime = 0, .TransparentColor = 0};
    std::array<GifByteType, 4> extension;
    EGifGCBToExtension(&control, extension.data());
    EGifSetGifVersion(gif, true);
    bool good = map && EGifPutScreenDesc(gif, image.width(), image.height(), 8, 0, map) == GIF_OK &&
                EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, extension.size(), extension.data()) == GIF_OK &&
                EGifPutImageDesc(gif, 0, 0, image.width(), image.height(), false, nullptr) == GIF_OK;
    std::vector<GifByteType> indices = Indices(image, colors);
    for (int y = 0; good && y < image.height(); ++y)
        good = EGifPutLine(gif, indices.data() + y * image.width(), image.width()) == GIF_OK;
    GifFreeMapObject(map);
    return good;
}

} // namespace

QByteArray GifData(const QImage& premultiplied, Border border)
{
    QImage image = WithoutHalfTones(premultiplied);
    if (border == Border::settled)
        SettleBorder(image);
    QByteArray data;
    int error = 0;
    GifFileType* gif = EGifOpen(&data, Append, &error);
    if (!gif)
        return {};
    const bool put = PutImage(gif, image, ColorsOf(image));
    return EGifCloseFile(gif, &error) == GIF_OK && put ? data : QByteArray();
}

} // namespace kesta::pictures
