#pragma once

#include "panels/booklet_watermark/watermark/WatermarkDrawing.h"

#include <QImage>
#include <QSize>

namespace kesta::booklet_watermark {

struct WatermarkPicture {
    PictureProblem problem = PictureProblem::None;
    QSize size;   // in the picture's own pixels, which count as points
    QImage image; // premultiplied, with as many pixels as were worth while
};

// The picture of a file, in any type that Qt's image plug-ins read, when it is drawn at that scale in percent. The last
// one is kept as long as its file stays as it is.
WatermarkPicture LoadPicture(const QString& path, SInt32 scale);

} // namespace kesta::booklet_watermark
