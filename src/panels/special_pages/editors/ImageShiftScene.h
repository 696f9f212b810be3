#pragma once

#include "panels/special_pages/editors/ImageShiftRules.h"

class QPainter;

namespace kesta {

// Both sides of a sheet: where the print was, dashed, and where it is now, cut off at the edge of the paper.
void DrawImageShiftScene(QPainter& painter, const QRect& bounds, const ShiftSettings& settings);

} // namespace kesta
