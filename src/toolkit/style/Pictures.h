#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace kesta {

struct Bundle;

inline constexpr double kDisabledPictureOpacity = 0.4;

// The folder of a bundle's pictures.
QString PictureFolder(const Bundle& bundle);

// The picture of that file for a screen of that many pixels a point: of its svg twin, else of NAME@2x.png when the
// screen has more than one pixel a point, else of the file itself. With an ink, it takes the place of the colour
// #010203. Null, and drawing nothing, when there is no such picture. Kept by file, ratio and ink from then on.
QPixmap PictureNamed(const QString& file, qreal devicePixelRatio, const QColor& ink = {});

// An icon in the text colour of the application's palette, greyed out while its button is disabled.
QIcon ButtonIcon(const QString& file);

// Forgets all pictures, for when their files have changed.
void ForgetPictures();

} // namespace kesta
