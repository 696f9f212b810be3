#include "Sheet.h"

#include <algorithm>
#include <cmath>

namespace kesta::pictures {
namespace {

constexpr double kFoldWidth = 3;
constexpr double kHeadingHeight = 3;
constexpr double kLineHeight = 2;
constexpr double kLineStep = 4;
constexpr double kShortLine = 0.6; // of a full one

// The other leg of a right triangle; 0 when the circle of that radius is not reached.
double Leg(double radius, double leg)
{
    return std::abs(leg) < radius ? std::sqrt(radius * radius - leg * leg) : 0;
}

Path BittenOutline(const Box& box)
{
    const double left = box.x + 0.5;
    const double top = box.y + 0.5;
    const double right = box.right() - 0.5;
    const double bottom = box.bottom() - 0.5;
    const Point biteStart = {right, kBadgeCenter.y - Leg(kBiteRadius, right - kBadgeCenter.x)};
    const Point biteEnd = {kBadgeCenter.x - Leg(kBiteRadius, bottom - kBadgeCenter.y), bottom};
    Path path;
    path.moveTo({left + 1, top}).lineTo({right - 1, top}).curveTo({right, top}, {right, top + 1}).lineTo(biteStart);
    path.arcTo(kBiteRadius, false, biteEnd).lineTo({left + 1, bottom}).curveTo({left, bottom}, {left, bottom - 1});
    path.lineTo({left, top + 1}).curveTo({left, top}, {left + 1, top}).close();
    return path;
}

void DrawOutlined(Drawing& drawing, const Box& box, const Style& style, Corner corner)
{
    if (corner == Corner::bitten)
        drawing.path(BittenOutline(box), style);
    else
        drawing.rect({box.x + 0.5, box.y + 0.5, box.width - 1, box.height - 1}, style, 1);
}

// How far to the right a line may go beside the badge.
double RightLimit(double top, double bottom, double right)
{
    constexpr double kClearRadius = kBiteRadius + 1;
    const double nearest = std::clamp(kBadgeCenter.y, top, bottom) - kBadgeCenter.y;
    if (std::abs(nearest) >= kClearRadius)
        return right;
    return std::min(right, std::floor(kBadgeCenter.x - Leg(kClearRadius, nearest)));
}

void DrawLine(Drawing& drawing, const Box& line, Color color, Corner corner)
{
    const double right = corner == Corner::bitten ? RightLimit(line.y, line.bottom(), line.right()) : line.right();
    if (right > line.x)
        drawing.rect({line.x, line.y, right - line.x, line.height}, Filled(color));
}

} // namespace

void DrawSheet(Drawing& drawing, const Box& box, const Paper& paper, Corner corner)
{
    DrawOutlined(drawing, box, Outlined(paper.fill, paper.edge), corner);
}

void DrawBack(Drawing& drawing, const Box& box, const Paper& paper, Corner corner)
{
    DrawOutlined(drawing, box, Outlined(paper.back(), paper.edge), corner);
}

void DrawPrint(Drawing& drawing, const Box& box, const Print& print, Corner corner)
{
    double y = box.y;
    if (print.hasHeading) {
        const double width = std::min(box.width, std::round(box.width * 0.3) + 4);
        DrawLine(drawing, {box.x, y, width, kHeadingHeight}, print.heading, corner);
        y += kHeadingHeight + 3;
    }
    for (; y + kLineHeight <= box.bottom(); y += kLineStep) {
        const bool last = y + kLineStep + kLineHeight > box.bottom();
        const double width = last ? std::round(box.width * kShortLine) : box.width;
        DrawLine(drawing, {box.x, y, width, kLineHeight}, print.line, corner);
    }
}

Box PrintBox(const Box& sheet)
{
    return {sheet.x + 5, sheet.y + 6, sheet.width - 10, sheet.height - 8};
}

void DrawPage(Drawing& drawing, const Box& box, const Paper& paper, Corner corner)
{
    DrawSheet(drawing, box, paper, corner);
    DrawPrint(drawing, PrintBox(box), PrintOn(paper), corner);
}

void DrawStackBehind(Drawing& drawing, const Box& front, int count, Point step, const Paper& paper, Corner corner)
{
    for (int i = count; i > 0; --i)
        DrawBack(drawing, {front.x + step.x * i, front.y + step.y * i, front.width, front.height}, paper, corner);
}

void DrawTurnedSheet(Drawing& drawing, const Box& box, const Paper& paper, double corner)
{
    const double left = box.x + 0.5;
    const double top = box.y + 0.5;
    const double right = box.right() - 0.5;
    const double bottom = box.bottom() - 0.5;
    const Point above = {right, bottom - corner};
    const Point beside = {right - corner, bottom};
    Path sheet;
    sheet.moveTo({left + 1, top}).lineTo({right - 1, top}).curveTo({right, top}, {right, top + 1}).lineTo(above);
    sheet.lineTo(beside).lineTo({left + 1, bottom}).curveTo({left, bottom}, {left, bottom - 1}).lineTo({left, top + 1});
    sheet.curveTo({left, top}, {left + 1, top}).close();
    drawing.path(sheet, Outlined(paper.fill, paper.edge));

    Path turned;
    turned.moveTo(above).lineTo({right - corner + 1.5, bottom - corner});
    turned.curveTo({right - corner, bottom - corner}, {right - corner, bottom - corner + 1.5}).lineTo(beside).close();
    drawing.path(turned, Outlined(paper.back(), paper.edge));
}

void DrawCover(Drawing& drawing, const Box& box, const Paper& paper, Corner corner)
{
    DrawSheet(drawing, box, paper, corner);
    DrawLine(drawing, {box.x + 4, box.y + 8, std::round(box.width * 0.6), kHeadingHeight}, paper.heading(), corner);
    DrawLine(drawing, {box.x + 4, box.y + 13, std::round(box.width * 0.35), kLineHeight}, paper.line(), corner);
}

Path DiagonalBand(const Box& box, double from, double to)
{
    const auto lowerEnd = [&box](double at) {
        const double down = std::min(at, box.height);
        return Point{box.x + at - down, box.y + down};
    };
    const auto upperEnd = [&box](double at) {
        const double across = std::min(at, box.width);
        return Point{box.x + across, box.y + at - across};
    };
    Path band;
    band.moveTo(lowerEnd(from)).lineTo(upperEnd(from));
    if (from < box.width && box.width < to)
        band.lineTo({box.right(), box.y});
    band.lineTo(upperEnd(to)).lineTo(lowerEnd(to));
    if (from < box.height && box.height < to)
        band.lineTo({box.x, box.bottom()});
    return band.close();
}

void DrawDashes(Drawing& drawing, Point from, Point to, Color color, double thickness, double dash, double gap)
{
    const bool upright = from.x == to.x;
    const double length = upright ? to.y - from.y : to.x - from.x;
    Path dashes;
    for (double start = 0; start < length; start += dash + gap) {
        const double end = std::min(start + dash, length);
        const Box box = upright ? Box{from.x - thickness / 2, from.y + start, thickness, end - start}
                                : Box{from.x + start, from.y - thickness / 2, end - start, thickness};
        dashes.moveTo({box.x, box.y}).lineTo({box.right(), box.y}).lineTo({box.right(), box.bottom()});
        dashes.lineTo({box.x, box.bottom()}).close();
    }
    drawing.path(dashes, Filled(color));
}

void DrawPanel(Drawing& drawing, const Panel& panel, const Paper& paper, Side side)
{
    drawing.path(Polygon({{panel.left, panel.leftTop},
                          {panel.right, panel.rightTop},
                          {panel.right, panel.rightTop + panel.height},
                          {panel.left, panel.leftTop + panel.height}}),
                 Outlined(side == Side::front ? paper.fill : paper.back(), paper.edge));
}

void DrawPanelPrint(Drawing& drawing, const Panel& panel, const Paper& paper, Side side, const PanelPrint& print)
{
    const double width = panel.right - panel.left;
    const double left = panel.left + width * print.leftInset;
    const double right = panel.right - width * print.rightInset;
    const Color line = side == Side::front ? paper.line() : Mix(paper.fill, paper.edge, 0.55);
    double down = print.topInset;
    const auto bar = [&](double part, double height, Color color) {
        const double end = left + (right - left) * part;
        drawing.path(Polygon({{left, panel.topAt(left) + down},
                              {end, panel.topAt(end) + down},
                              {end, panel.topAt(end) + down + height},
                              {left, panel.topAt(left) + down + height}}),
                     Filled(color));
    };
    if (print.hasHeading) {
        bar(kShortLine, kHeadingHeight, paper.heading());
        down += kHeadingHeight + 3;
    }
    for (int i = 0; i < print.lines; ++i, down += print.step)
        bar(i + 1 == print.lines ? kShortLine : 1, kLineHeight, line);
}

void DrawFold(Drawing& drawing, const Panel& panel)
{
    drawing.path(Polyline({{panel.right, panel.rightTop}, {panel.right, panel.rightTop + panel.height}}),
                 Stroked(kAction, kFoldWidth));
}

} // namespace kesta::pictures
