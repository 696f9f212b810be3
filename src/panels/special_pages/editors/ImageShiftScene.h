#pragma once

#include "panels/special_pages/editors/ImageShiftRules.h"

class QPainter;

namespace kesta {

// Both sides of a sheet: where the print was, dashed, and where it is now, cut off at the edge of the paper. Side 1
// stands where a window of that direction begins.
void DrawImageShiftScene(QPainter& painter, const QRect& bounds, const ShiftSettings& settings,
                         Qt::LayoutDirection direction);

} // namespace kesta
