#pragma once

#include <QColor>
#include <QRect>

class QIcon;
class QPainter;
class QStyleOption;

namespace kesta {

// Strokes of the look, in points at 1x.
inline constexpr double kOutlineRadius = 5;
inline constexpr double kFocusRingWidth = 2;

// The colour under the mouse, and pressed.
QColor Touched(const QColor& color, const QStyleOption& option, const QColor& toward);

enum class Direction { Up, Down, Leading };

void DrawOutlined(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& outline,
                  double radius = kOutlineRadius);
void DrawRing(QPainter& painter, const QRect& rect, const QColor& color, double radius = kOutlineRadius);
void DrawChevron(QPainter& painter, const QRect& within, Direction direction, const QColor& color, bool rightToLeft);
void DrawCheckMark(QPainter& painter, const QRect& within, const QColor& color);
void DrawCautionMark(QPainter& painter, const QRect& rect, const QColor& color);
QIcon CautionIcon(double devicePixelRatio); // the same, for menus

} // namespace kesta
