#include "toolkit/style/Pictures.h"

#include "platform/plugins/Bundle.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <map>
#include <tuple>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr char kInkPlaceholder[] = "#010203";
constexpr QRgb kInk = qRgb(1, 2, 3);
constexpr qint64 kLargestFile = 8 << 20; // bytes
constexpr int kLargestSide = 4096;       // pixels

QByteArray Contents(const QString& name)
{
    QFile file(name);
    return file.size() <= kLargestFile && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage RenderSvg(const QString& name, qreal ratio, const QColor& ink)
{
    QByteArray drawing = Contents(name);
    if (ink.isValid())
        drawing.replace(kInkPlaceholder, ink.name().toLatin1());
    QSvgRenderer renderer;
    if (drawing.isEmpty() || !renderer.load(drawing) || renderer.defaultSize().isEmpty())
        return {};
    const QSizeF size = (QSizeF(renderer.defaultSize()) * ratio).boundedTo(QSizeF(kLargestSide, kLargestSide));
    QImage image(size.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    image.setDevicePixelRatio(ratio);
    return image;
}

void ReplaceInk(QImage& image, const QColor& ink)
{
    image.convertTo(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (QRgb* pixel = line; pixel < line + image.width(); ++pixel) {
            if ((*pixel & RGB_MASK) == (kInk & RGB_MASK))
                *pixel = (ink.rgb() & RGB_MASK) | (*pixel & ~RGB_MASK);
        }
    }
}

QImage ReadRaster(const QString& name, qreal ratio, const QColor& ink)
{
    QImage image = QImage::fromData(Contents(name));
    if (image.isNull() || image.width() > kLargestSide || image.height() > kLargestSide)
        return {};
    if (ink.isValid())
        ReplaceInk(image, ink);
    image.setDevicePixelRatio(ratio);
    return image;
}

QImage ReadPicture(const QString& file, qreal ratio, const QColor& ink)
{
    const QFileInfo info(file);
    const QString twin = info.path() + u'/' + info.completeBaseName();
    if (QImage image = RenderSvg(twin + u".svg"_s, ratio, ink); !image.isNull())
        return image;
    if (ratio > 1) {
        if (QImage image = ReadRaster(twin + u"@2x.png"_s, 2, ink); !image.isNull())
            return image;
    }
    return ReadRaster(file, 1, ink);
}

using Key = std::tuple<QString, qreal, QRgb, bool>;
std::map<Key, QPixmap>& Cache()
{
    static std::map<Key, QPixmap> cache;
    return cache;
}

// Draws at the resolution and in the colours of the moment, so that icons follow the screen and the palette.
class InkIconEngine : public QIconEngine {
public:
    explicit InkIconEngine(QString file) : file_(std::move(file)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPixmap picture = pictureFor(painter->device()->devicePixelRatioF(), mode);
        QRectF target(QPointF(), picture.deviceIndependentSize());
        target.moveCenter(QRectF(rect).center());
        painter->drawPixmap(target.topLeft(), picture);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal ratio) override
    {
        const QPixmap picture = pictureFor(ratio, mode);
        const bool tooLarge = picture.width() > size.width() || picture.height() > size.height();
        return tooLarge ? picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation) : picture;
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        return pictureFor(1, mode).size().boundedTo(size);
    }
    QIconEngine* clone() const override { return new InkIconEngine(file_); }
    bool isNull() override { return PictureNamed(file_, 1).isNull(); }

private:
    // A picture in colours of its own pales instead of taking the ink.
    QPixmap pictureFor(qreal ratio, QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        const QPixmap picture = PictureNamed(file_, ratio, palette.color(QPalette::Active, QPalette::ButtonText));
        if (mode != QIcon::Disabled || picture.isNull())
            return picture;
        QPixmap pale(picture.size());
        pale.setDevicePixelRatio(picture.devicePixelRatio());
        pale.fill(Qt::transparent);
        QPainter painter(&pale);
        painter.setOpacity(kDisabledPictureOpacity);
        painter.drawPixmap(0, 0, picture);
        return pale;
    }

    QString file_;
};

} // namespace

QString PictureFolder(const Bundle& bundle)
{
    const QString pictures = bundle.resourcesPath + u"/Pictures"_s;
    return QFileInfo(pictures).isDir() ? pictures : bundle.resourcesPath;
}

QPixmap PictureNamed(const QString& file, qreal devicePixelRatio, const QColor& ink)
{
    if (file.isEmpty())
        return {};
    const Key key{file, devicePixelRatio, ink.rgb(), ink.isValid()};
    const auto found = Cache().find(key);
    if (found != Cache().end())
        return found->second;
    const QPixmap picture = QPixmap::fromImage(ReadPicture(file, devicePixelRatio, ink));
    return Cache().emplace(key, picture).first->second;
}

QIcon ButtonIcon(const QString& file)
{
    return QIcon(new InkIconEngine(file));
}

void ForgetPictures()
{
    Cache().clear();
}

} // namespace kesta
