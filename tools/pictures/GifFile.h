#pragma once

#include <QByteArray>
#include <QImage>

namespace kesta::pictures {

// The picture as a GIF without half-transparent pixels: opaque where at least half is covered, in the colour of what
// covers it, never mixed with a background. The outermost pixels take the picture's own edge colours, so that the steps
// look the same on light and dark; not those of an overlay, which ends on another picture. Empty when it can't be
// encoded.
enum class Border { settled, kept };
QByteArray GifData(const QImage& premultiplied, Border border);

} // namespace kesta::pictures
