#pragma once

class QPainter;
class QRectF;

namespace kesta {

struct Bundle;

// Beside a sentence that explains, in the colour of hints.
void DrawInfoMark(QPainter& painter, const QRectF& bounds, const Bundle& bundle);

} // namespace kesta
