#pragma once

#include <QByteArray>
#include <QImage>

namespace kesta::pictures {

// The picture as a GIF without half-transparent pixels: opaque where at least half is covered, in the colour of what
// covers it, never mixed with a background. The outermost pixels take the picture's own edge colours, so that the steps
// look the same on light and dark. Empty when it can't be encoded.
QByteArray GifData(const QImage& premultiplied);

} // namespace kesta::pictures
