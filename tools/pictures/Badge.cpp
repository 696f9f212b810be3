#include "Badge.h"

#include "Sheet.h"

#include <cmath>
#include <numbers>

namespace kesta::pictures {
namespace {

constexpr double kRing = 10.5;
constexpr Style kWhiteLine = {.stroke = kWhite, .width = 1.75};
constexpr Style kWhiteFill = {.fill = kWhite};

// All glyphs are drawn around the origin, within a circle of radius 6.

void DrawPause(Drawing& drawing)
{
    drawing.rect({-4, -4, 3, 8}, kWhiteFill, 0.5);
    drawing.rect({1, -4, 3, 8}, kWhiteFill, 0.5);
}

void DrawDownload(Drawing& drawing)
{
    drawing.path(Polyline({{0, -5}, {0, 1.5}}), kWhiteLine);
    drawing.path(Polyline({{-2.75, -1.25}, {0, 1.5}, {2.75, -1.25}}), kWhiteLine);
    drawing.path(Polyline({{-4.5, 1.5}, {-4.5, 4.5}, {4.5, 4.5}, {4.5, 1.5}}), kWhiteLine);
}

void DrawPhone(Drawing& drawing)
{
    Path handset;
    handset.moveTo({-3.4, -5}).lineTo({-1.3, -2.1}).lineTo({-2.5, -0.7}).curveTo({-1.4, 1.5}, {0.7, 2.5});
    handset.lineTo({2.1, 1.3}).lineTo({5, 3.4}).curveTo({4.6, 5.6}, {2.3, 5.1}).curveTo({-4.4, 3.4}, {-5.1, -2.3});
    handset.curveTo({-5.2, -4.6}, {-3.4, -5}).close();
    drawing.path(handset, kWhiteFill);
}

void DrawLock(Drawing& drawing)
{
    Path shackle;
    shackle.moveTo({-2.5, -0.5}).lineTo({-2.5, -2.5}).arcTo(2.5, true, {2.5, -2.5}).lineTo({2.5, -0.5});
    drawing.path(shackle, kWhiteLine);
    drawing.rect({-4, -1, 8, 6}, kWhiteFill, 1);
}

void DrawClock(Drawing& drawing)
{
    drawing.circle({}, 5, kWhiteLine);
    drawing.path(Polyline({{0, -2.5}, {0, 0.25}, {2, 1.5}}), {.stroke = kWhite, .width = 1.5});
}

void DrawCheck(Drawing& drawing)
{
    drawing.path(Polyline({{-4, 0.5}, {-1.25, 3.25}, {4.25, -3}}), {.stroke = kWhite, .width = 2.25});
}

void DrawPrinter(Drawing& drawing)
{
    drawing.rect({-3, -5, 6, 3}, kWhiteFill);
    drawing.rect({-5, -1.5, 10, 5}, kWhiteFill, 1);
    drawing.rect({-3, 1, 6, 4.5}, {.fill = kWhite, .stroke = kAction});
}

void DrawWeight(Drawing& drawing)
{
    drawing.circle({0, -3}, 1.75, {.stroke = kWhite, .width = 1.5});
    drawing.path(Polygon({{-2.25, -1}, {2.25, -1}, {4.25, 4.5}, {-4.25, 4.5}}), kWhiteFill);
}

Point OnCircle(double radius, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

// Three arrows that chase each other clockwise.
void DrawRecycle(Drawing& drawing)
{
    constexpr double kRadius = 4.5;
    for (const double start : {-80.0, 40.0, 160.0}) {
        Path arc;
        arc.moveTo(OnCircle(kRadius, start)).arcTo(kRadius, true, OnCircle(kRadius, start + 62));
        drawing.path(arc, {.stroke = kWhite, .width = 1.75});
        drawing.path(Polygon({OnCircle(kRadius - 2.4, start + 62), OnCircle(kRadius + 2.4, start + 62),
                              OnCircle(kRadius, start + 98)}),
                     kWhiteFill);
    }
}

void DrawArchive(Drawing& drawing)
{
    drawing.rect({-5, -4.5, 10, 3}, kWhiteFill, 0.5);
    drawing.rect({-4, -0.5, 8, 5}, kWhiteFill, 0.5);
    drawing.rect({-1.5, 1, 3, 1}, Filled(kAction));
}

// Items of a list in order.
void DrawSequence(Drawing& drawing)
{
    for (int i = 0; i < 3; ++i) {
        const double y = -4.0 + i * 3;
        drawing.rect({-4.5, y, 2, 2}, kWhiteFill);
        drawing.rect({-1.5, y, 6, 2}, kWhiteFill);
    }
}

void DrawDots(Drawing& drawing)
{
    for (const double x : {-4.0, 0.0, 4.0})
        drawing.circle({x, 0}, 1.4, kWhiteFill);
}

void DrawPlus(Drawing& drawing)
{
    drawing.rect({-1, -5, 2, 10}, kWhiteFill);
    drawing.rect({-5, -1, 10, 2}, kWhiteFill);
}

// A speech bubble.
void DrawNote(Drawing& drawing)
{
    drawing.path(Polygon({{-5, -4}, {5, -4}, {5, 2.5}, {0, 2.5}, {-3, 5.25}, {-3, 2.5}, {-5, 2.5}}), kWhiteFill);
    drawing.rect({-3, -2, 6, 1}, Filled(kAction));
    drawing.rect({-3, 0, 4, 1}, Filled(kAction));
}

void DrawGlyph(Drawing& drawing, Glyph glyph)
{
    switch (glyph) {
    case Glyph::pause:
        return DrawPause(drawing);
    case Glyph::download:
        return DrawDownload(drawing);
    case Glyph::phone:
        return DrawPhone(drawing);
    case Glyph::lock:
        return DrawLock(drawing);
    case Glyph::clock:
        return DrawClock(drawing);
    case Glyph::check:
        return DrawCheck(drawing);
    case Glyph::printer:
        return DrawPrinter(drawing);
    case Glyph::weight:
        return DrawWeight(drawing);
    case Glyph::recycle:
        return DrawRecycle(drawing);
    case Glyph::archive:
        return DrawArchive(drawing);
    case Glyph::sequence:
        return DrawSequence(drawing);
    case Glyph::dots:
        return DrawDots(drawing);
    case Glyph::plus:
        return DrawPlus(drawing);
    case Glyph::note:
        return DrawNote(drawing);
    }
}

// The digits in a box 6 wide and 9 high around the origin.
Path Digit(int number)
{
    switch (number) {
    case 1:
        return Polyline({{-1.75, -2.75}, {0.5, -4.25}, {0.5, 4.25}});
    case 2:
        return Path()
            .moveTo({-2.5, -2.25})
            .curveTo({-2, -4.5}, {0, -4.25})
            .curveTo({2.75, -4.25}, {2.5, -1.75})
            .curveTo({2.25, -0.5}, {-2.75, 4.25})
            .lineTo({2.75, 4.25});
    case 3:
        return Path()
            .moveTo({-2.5, -4.25})
            .lineTo({2.25, -4.25})
            .lineTo({-0.25, -1})
            .curveTo({2.75, -0.75}, {2.5, 1.75})
            .curveTo({2.25, 4.25}, {-0.25, 4.25})
            .curveTo({-2, 4.25}, {-2.75, 2.75});
    case 4:
        return Polyline({{1.25, 4.25}, {1.25, -4.25}, {-3, 2}, {3, 2}});
    case 5:
        return Path()
            .moveTo({2.25, -4.25})
            .lineTo({-2, -4.25})
            .lineTo({-2.25, -0.75})
            .curveTo({2.5, -2}, {2.5, 1.5})
            .curveTo({2.25, 4.5}, {-0.5, 4.25})
            .curveTo({-2, 4.25}, {-2.75, 3});
    case 6:
        return Path()
            .moveTo({1.25, -4.25})
            .curveTo({-2.5, -2}, {-2.5, 1.75})
            .arcTo(2.5, false, {2.5, 1.75})
            .arcTo(2.5, false, {-2.5, 1.75});
    default:
        return Polyline({{-2.5, -4.25}, {2.5, -4.25}, {-0.75, 4.25}});
    }
}

} // namespace

void DrawBadge(Drawing& drawing, Glyph glyph)
{
    drawing.circle(kBadgeCenter, kBadgeRadius, Filled(kAction));
    const Moved atBadge(drawing, kBadgeCenter);
    DrawGlyph(drawing, glyph);
}

void DrawRingedBadge(Drawing& drawing, Glyph glyph, Point center)
{
    const Moved atBadge(drawing, center);
    drawing.circle({}, kRing, kWhiteFill);
    drawing.circle({}, kBadgeRadius, Filled(kAction));
    DrawGlyph(drawing, glyph);
}

void DrawRingedNumber(Drawing& drawing, int number, Point center)
{
    const Moved atBadge(drawing, center);
    drawing.circle({}, kRing, kWhiteFill);
    drawing.circle({}, kBadgeRadius, Filled(kAction));
    drawing.path(Digit(number), {.stroke = kWhite, .width = 2});
}

} // namespace kesta::pictures
