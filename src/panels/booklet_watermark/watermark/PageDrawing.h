#pragma once

#include <QByteArrayView>
#include <QRectF>

class QPainter;

namespace kesta::booklet_watermark {

// The largest place of a page's proportions within the bounds, at their upper edge.
QRectF PagePlace(QSizeF page, const QRectF& bounds);

// A page that was rendered as a PDF, with its edge; blank paper while there is none.
void DrawPage(QPainter& painter, const QRectF& place, QSizeF page, QByteArrayView pdf);

} // namespace kesta::booklet_watermark
