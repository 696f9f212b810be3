#pragma once

#include <QByteArrayView>
#include <QImage>

namespace kesta::booklet_watermark {

// The first page of a PDF on white, stretched to so many pixels; null for what is no PDF. The last few are kept.
QImage PictureOfPage(QByteArrayView pdf, QSize pixels);

} // namespace kesta::booklet_watermark
