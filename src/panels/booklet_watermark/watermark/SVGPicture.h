#pragma once

#include <QByteArray>
#include <QFile>

namespace kesta::booklet_watermark {

// Whether the file, whose position is kept, begins as an SVG drawing does, compressed or not.
bool LooksLikeSVG(QFile& file);

// The drawing, uncompressed; empty when it has or grows to more than is worth drawing: some megabytes, or parts that
// use other parts over and over.
QByteArray ReadSVG(QFile& file);

} // namespace kesta::booklet_watermark
