#pragma once

#include "Drawing.h"

namespace kesta::pictures {

// Sheets seen from the front. A box is the sheet's outer box; its outline of one unit lies inside it, on half units, so
// that it is crisp.

inline constexpr double kSheetWidth = 26;
inline constexpr double kSheetHeight = 36;
inline constexpr Point kBadgeCenter = {36, 36};
inline constexpr double kBadgeRadius = 9;
inline constexpr double kBiteRadius = 11; // what a badge leaves free around itself

inline constexpr Box SheetAt(double x, double y)
{
    return {x, y, kSheetWidth, kSheetHeight};
}

// How a page's print looks: the colours of its heading bar and of its lines.
struct Print {
    Color heading;
    Color line;
    bool hasHeading = true;
};
inline Print PrintOn(const Paper& paper)
{
    return {paper.heading(), paper.line()};
}

enum class Corner { square, bitten }; // bitten: the lower right corner makes room for the badge

void DrawSheet(Drawing& drawing, const Box& box, const Paper& paper, Corner corner = Corner::square);
void DrawBack(Drawing& drawing, const Box& box, const Paper& paper, Corner corner = Corner::square);

// A heading bar and lines from top to bottom of the box; the last line is shorter.
void DrawPrint(Drawing& drawing, const Box& box, const Print& print, Corner corner = Corner::square);

// Where the print of a sheet stands.
Box PrintBox(const Box& sheet);

// A sheet with its print.
void DrawPage(Drawing& drawing, const Box& box, const Paper& paper, Corner corner = Corner::square);

// A heap of count sheets that goes up and to the right behind the front sheet.
void DrawStackBehind(Drawing& drawing, const Box& front, int count, Point step, const Paper& paper,
                     Corner corner = Corner::square);

// A sheet whose lower right corner, of the given size, is turned up and shows the back.
void DrawTurnedSheet(Drawing& drawing, const Box& box, const Paper& paper, double corner);

// A cover: a sheet with a title block.
void DrawCover(Drawing& drawing, const Box& box, const Paper& paper, Corner corner = Corner::square);

// The part of the box between two lines that rise to the right; from and to are where they meet the box's left edge or
// its continuation, from the top.
Path DiagonalBand(const Box& box, double from, double to);

// Dashes along a horizontal or vertical line, as small rectangles of the given thickness.
void DrawDashes(Drawing& drawing, Point from, Point to, Color color, double thickness, double dash, double gap);

// One panel of a folded sheet: upright edges, the tops at different heights.
struct Panel {
    double left;
    double leftTop;
    double right;
    double rightTop;
    double height;

    double topAt(double x) const { return leftTop + (rightTop - leftTop) * (x - left) / (right - left); }
};

enum class Side { front, back };
struct PanelPrint {
    bool hasHeading = true;
    double leftInset = 0.18; // parts of the panel's width
    double rightInset = 0.18;
    double topInset = 6;
    int lines = 3;
    double step = 4;
};
void DrawPanel(Drawing& drawing, const Panel& panel, const Paper& paper, Side side);
void DrawPanelPrint(Drawing& drawing, const Panel& panel, const Paper& paper, Side side, const PanelPrint& print = {});
// The fold at the panel's right edge.
void DrawFold(Drawing& drawing, const Panel& panel);

} // namespace kesta::pictures
