#include "panels/booklet_watermark/watermark/PageDrawing.h"

#include "panels/booklet_watermark/watermark/DrawingLibrary.h"

#include <QPainter>

namespace kesta::booklet_watermark {
namespace {

constexpr double kEdge = 5; // points of the page

} // namespace

QRectF PagePlace(QSizeF page, const QRectF& bounds)
{
    QRectF place({}, page.scaled(bounds.size(), Qt::KeepAspectRatio));
    place.moveCenter(bounds.center());
    place.moveTop(bounds.top());
    return place;
}

void DrawPage(QPainter& painter, const QRectF& place, QSizeF page, QByteArrayView pdf)
{
    const double ratio = painter.device()->devicePixelRatioF();
    const QImage picture =
        pdf.isEmpty() ? QImage() : GetDrawingLibrary().PictureOfPage(pdf, (place.size() * ratio).toSize());
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(place, Qt::white);
    if (!picture.isNull())
        painter.drawImage(place, picture);
    const double width = kEdge * place.width() / page.width();
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(place.adjusted(width / 2, width / 2, -width / 2, -width / 2));
    painter.restore();
}

} // namespace kesta::booklet_watermark
