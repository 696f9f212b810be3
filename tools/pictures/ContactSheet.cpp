#include "ContactSheet.h"

#include "Output.h"

#include <QPainter>

#include <algorithm>

namespace kesta::pictures {
namespace {

constexpr QRgb kLightPane = 0xFFFCFCFD;
constexpr QRgb kDarkPane = 0xFF272A2E;
constexpr QRgb kLightText = 0xFF1F242B;
constexpr QRgb kDarkText = 0xFFE9EBEE;
constexpr int kPaneWidth = 640; // units
constexpr int kGap = 10;

struct Placed {
    const Picture* picture;
    QPoint at; // units
};

// Rows from left to right; pictures of another size begin a row.
std::vector<Placed> Place(const Pictures& pictures, int& height)
{
    std::vector<Placed> placed;
    QPoint at(kGap, kGap);
    int rowHeight = 0;
    for (const Picture& picture : pictures) {
        const bool otherSize = rowHeight != 0 && picture.drawing.height() != rowHeight;
        if (otherSize || at.x() + picture.drawing.width() + kGap > kPaneWidth) {
            at = {kGap, at.y() + rowHeight + kGap};
        }
        rowHeight = picture.drawing.height();
        placed.push_back({&picture, at});
        at.rx() += picture.drawing.width() + kGap;
    }
    height = at.y() + rowHeight + kGap;
    return placed;
}

QImage InColor(QImage image, QRgb ink)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgb(ink));
    return image;
}

QImage Shown(const Picture& picture, double scale, QRgb ink, bool asRaster)
{
    if (asRaster && picture.file.ends_with(".gif"))
        return QImage::fromData(RasterData(picture));
    const bool isIcon = picture.drawing.width() == 16;
    const QImage image = Render(picture.drawing, asRaster ? 1 : scale);
    return isIcon ? InColor(image, ink) : image;
}

} // namespace

QImage ContactSheet(const Pictures& pictures, double scale, bool asRaster)
{
    int height = 0;
    const std::vector<Placed> placed = Place(pictures, height);
    const int width = qRound(kPaneWidth * scale);
    QImage sheet(2 * width, qRound(height * scale), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&sheet);
    painter.fillRect(0, 0, width, sheet.height(), QColor::fromRgb(kLightPane));
    painter.fillRect(width, 0, width, sheet.height(), QColor::fromRgb(kDarkPane));
    for (const Placed& place : placed) {
        const QPoint at = (QPointF(place.at) * scale).toPoint();
        const QSize size = QSize(place.picture->drawing.width(), place.picture->drawing.height()) * scale;
        painter.drawImage(QRect(at, size), Shown(*place.picture, scale, kLightText, asRaster));
        painter.drawImage(QRect(at + QPoint(width, 0), size), Shown(*place.picture, scale, kDarkText, asRaster));
    }
    return sheet;
}

} // namespace kesta::pictures
