#pragma once

#include "Drawing.h"

#include <QImage>

namespace kesta::pictures {

// All pictures in rows, on the light and on the dark pane side by side, at the given number of pixels a unit; as what
// the GIF files show instead of the drawings when asRaster is true.
QImage ContactSheet(const Pictures& pictures, double scale, bool asRaster);

} // namespace kesta::pictures
