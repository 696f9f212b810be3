#pragma once

#include "panels/color_options/ColorSwatches.h"

class QPainter;
class QRect;

namespace kesta::color_options {

// Fills the bounds with the swatches side by side, as they are after the adjustments.
void DrawSwatches(QPainter& painter, const QRect& bounds, const Adjustments& adjustments);

} // namespace kesta::color_options
