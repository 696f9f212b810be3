#include "Output.h"

#include "GifFile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace kesta::pictures {
namespace {

std::optional<QString> WriteFile(const QString& name, const QByteArray& content)
{
    QFile file(name);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush())
        return {};
    return u"%1: %2"_s.arg(name, file.errorString());
}

QByteArray PngData(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

void AppendBigEndian(QByteArray& data, qsizetype number)
{
    const quint32 bytes = qToBigEndian(static_cast<quint32>(number));
    data.append(reinterpret_cast<const char*>(&bytes), sizeof bytes);
}

// An icon file: a header, then for each size its type, its length with these eight bytes, and a PNG.
QByteArray IcnsData(const Drawing& drawing)
{
    struct Entry {
        const char* type;
        int side;
    };
    constexpr Entry kSmall[] = {{"icp4", 16}, {"icp5", 32}};
    constexpr Entry kLarge[] = {{"icp5", 32}, {"ic07", 128}};
    QByteArray entries;
    for (const Entry& entry : drawing.width() == 16 ? kSmall : kLarge) {
        const QByteArray png = PngData(Render(drawing, double(entry.side) / drawing.width()));
        entries += entry.type;
        AppendBigEndian(entries, png.size() + 8);
        entries += png;
    }
    QByteArray data = "icns"_ba;
    AppendBigEndian(data, entries.size() + 8);
    return data + entries;
}

} // namespace

QImage Render(const Drawing& drawing, double scale)
{
    QSvgRenderer renderer(QByteArray::fromStdString(drawing.svg()));
    QImage image(qRound(drawing.width() * scale), qRound(drawing.height() * scale),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

QByteArray RasterData(const Picture& picture)
{
    const QByteArrayView name = picture.file;
    if (name.endsWith(".gif"))
        return GifData(Render(picture.drawing, 1), picture.isOverlay ? Border::kept : Border::settled);
    if (name.endsWith(".icns"))
        return IcnsData(picture.drawing);
    return PngData(Render(picture.drawing, 1));
}

std::optional<QString> WritePicture(const Picture& picture, const QString& folder)
{
    const QString file = folder + u'/' + QString::fromStdString(picture.file);
    const QString twin = folder + u'/' + QFileInfo(file).completeBaseName() + u".svg"_s;
    if (auto problem = WriteFile(twin, QByteArray::fromStdString(picture.drawing.svg())))
        return problem;
    const QByteArray raster = RasterData(picture);
    return raster.isEmpty() ? u"%1 can't be encoded"_s.arg(file) : WriteFile(file, raster);
}

} // namespace kesta::pictures
