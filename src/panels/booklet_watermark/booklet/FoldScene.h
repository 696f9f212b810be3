#pragma once

#include "model/Booklet.h"

class QPainter;
class QRect;

namespace kesta {

// The sheets of a booklet seen from above, 144 x 96 points: the gutter beside the fold in the action colour, and how
// far creep pushes the inner sheets past the outer one's edge, much enlarged.
void DrawFoldScene(QPainter& painter, const QRect& bounds, const Booklet& booklet, bool isEnabled);

} // namespace kesta
