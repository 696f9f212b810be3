#pragma once

#include "Drawing.h"

#include <QImage>
#include <QString>

namespace kesta::pictures {

// The drawing at the given number of pixels a unit, on a transparent ground.
QImage Render(const Drawing& drawing, double scale);

// The content of the picture's file, a GIF, PNG or ICNS as its name says. Empty when it can't be encoded.
QByteArray RasterData(const Picture& picture);

// Writes NAME.svg into the folder and, made from it, the file itself.
// Nothing on success, otherwise what went wrong.
std::optional<QString> WritePicture(const Picture& picture, const QString& folder);

} // namespace kesta::pictures
