#include "panels/booklet_watermark/watermark/WatermarkPicture.h"

#include "panels/booklet_watermark/watermark/SVGPicture.h"

#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace kesta::booklet_watermark {
namespace {

constexpr qint64 kMostPixels = 32'000'000; // fits Qt's own limit of memory even with 16 bits a channel
constexpr int kLongestSide = 32'767;       // that a picture in a drawing can have
constexpr qint64 kLargestFile = 512 << 20; // bytes
constexpr double kWorthWhile = 300.0 / 72; // pixels in a point of the page

bool IsTooLarge(QSize size)
{
    return size.width() > kLongestSide || size.height() > kLongestSide ||
           qint64{size.width()} * size.height() > kMostPixels;
}

// As many pixels as are seen on paper: of a drawing, which has none of its own, more than its size, of a photograph
// never more than it has.
QSize PixelsWorthWhile(QSize size, SInt32 scale, bool isDrawing)
{
    const double pixels = std::clamp<double>(scale, 1, 1000) / 100 * kWorthWhile;
    const double most = std::sqrt(static_cast<double>(kMostPixels) / 4 / (double{1} * size.width() * size.height()));
    const double longest = double{kLongestSide} / std::max(size.width(), size.height());
    const double factor = std::min({pixels, isDrawing ? std::min(most, longest) : 1.0, longest});
    return {std::max(1, static_cast<int>(std::lround(size.width() * factor))),
            std::max(1, static_cast<int>(std::lround(size.height() * factor)))};
}

WatermarkPicture Failed(PictureProblem problem)
{
    return {problem, {}, {}};
}

WatermarkPicture Decode(QImageReader& reader, SInt32 scale, bool isDrawing)
{
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    if (!stored.isEmpty()) {
        if (IsTooLarge(stored))
            return Failed(PictureProblem::TooLarge);
        if (const QSize wanted = PixelsWorthWhile(stored, scale, isDrawing); wanted != stored)
            reader.setScaledSize(wanted);
    }
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QImage image = reader.read();
    if (image.isNull())
        return Failed(PictureProblem::NotPicture);
    const QSize size = stored.isEmpty() ? image.size() : isTurned ? stored.transposed() : stored;
    if (IsTooLarge(image.size()))
        return Failed(PictureProblem::TooLarge);
    return {PictureProblem::None, size, image.convertToFormat(QImage::Format_ARGB32_Premultiplied)};
}

WatermarkPicture Read(const QString& path, SInt32 scale)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return Failed(PictureProblem::CantOpen);
    if (file.size() > kLargestFile)
        return Failed(PictureProblem::TooLarge);
    if (LooksLikeSVG(file)) {
        QByteArray svg = ReadSVG(file);
        if (svg.isEmpty())
            return Failed(PictureProblem::TooLarge);
        QBuffer buffer(&svg);
        QImageReader reader(&buffer, "svg");
        return Decode(reader, scale, true);
    }
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    return reader.canRead() ? Decode(reader, scale, false) : Failed(PictureProblem::NotPicture);
}

} // namespace

WatermarkPicture LoadPicture(const QString& path, SInt32 scale)
{
    static QString lastPath;
    static QDateTime lastModified;
    static qint64 lastSize = 0;
    static SInt32 lastScale = 0;
    static WatermarkPicture last{PictureProblem::CantOpen, {}, {}};
    const QFileInfo info(path);
    if (last.problem == PictureProblem::None && path == lastPath && scale == lastScale && info.size() == lastSize &&
        info.lastModified() == lastModified)
        return last;
    lastPath = path;
    lastModified = info.lastModified();
    lastSize = info.size();
    lastScale = scale;
    last = Read(path, scale);
    return last;
}

} // namespace kesta::booklet_watermark
