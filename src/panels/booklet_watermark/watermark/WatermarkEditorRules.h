#pragma once

#include "panels/booklet_watermark/watermark/WatermarkData.h"

#include <QPolygonF>
#include <QRectF>

// What the watermark editor shows and takes: the record's offsets are inches, its fields whole numbers of units.
namespace kesta::booklet_watermark {

inline constexpr SInt32 kInches = 0;
inline constexpr SInt32 kMillimetres = 1;

inline constexpr SInt32 kGreatestAngle = 360; // degrees, to either side
inline constexpr SInt32 kGreatestDensity = 100;
inline constexpr SInt32 kGreatestScale = 1000;
inline constexpr SInt32 kGreatestFontSize = 1000; // points

// One with neither text nor picture gets the values of a new one; numbers out of their limits come to them.
void PrepareForEditor(_WatermarkData& watermark);

// Tenths of an inch or whole millimetres.
int DecimalsOf(SInt32 units);
SInt32 ShownOffset(Float32 inches, SInt32 units);
Float32 OffsetFromShown(SInt32 shown, SInt32 units);
// From the middle to either edge of a page that is so many points wide or high.
SInt32 GreatestOffset(double side, SInt32 units);

// A text on its page, in points from the lower left corner.
struct PlacedText {
    QPointF origin;
    QRectF frame; // from the origin, before the text is turned about it
    double angle = 0;

    QPolygonF outline() const;
    QPointF middle() const;
    QPointF handle(double distance) const; // of which it is turned: above the middle of its upper edge
};

// The text's middle is moved by so many points from where it was, in whole numbers of the record's units, within the
// limits; near the middle of the page it snaps to it.
void MoveText(_WatermarkData& watermark, const _WatermarkData& before, QPointF by);
// The same by whole numbers of units.
void NudgeText(_WatermarkData& watermark, SInt32 right, SInt32 up);
// To the whole degree, or in steps of 15.
enum class Turning { Free, InSteps };
void TurnText(_WatermarkData& watermark, SInt32 angleBefore, double by, Turning turning);

} // namespace kesta::booklet_watermark
