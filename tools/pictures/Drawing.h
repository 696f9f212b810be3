#pragma once

#include "Tokens.h"

#include <optional>
#include <vector>

namespace kesta::pictures {

// Points are units of the picture, y downwards; one unit is one pixel at 1x.
struct Point {
    double x = 0;
    double y = 0;
};

struct Box {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    double right() const { return x + width; }
    double bottom() const { return y + height; }
    Point center() const { return {x + width / 2, y + height / 2}; }
};

// The commands of a path, absolute.
class Path {
public:
    Path& moveTo(Point to) { return add("M", {to.x, to.y}); }
    Path& lineTo(Point to) { return add("L", {to.x, to.y}); }
    Path& curveTo(Point control, Point to) { return add("Q", {control.x, control.y, to.x, to.y}); }
    // Along a circle, the shorter way round.
    Path& arcTo(double radius, bool clockwise, Point to);
    // Along a circle, the longer way round.
    Path& longArcTo(double radius, bool clockwise, Point to);
    Path& close();

    const std::string& commands() const { return commands_; }

private:
    Path& add(const char* command, std::initializer_list<double> numbers);

    std::string commands_;
};

Path Polygon(std::initializer_list<Point> corners);
Path Polyline(std::initializer_list<Point> points);

struct Style {
    std::optional<Color> fill = {};
    std::optional<Color> stroke = {};
    double width = 1; // of the stroke
};

inline Style Filled(Color fill)
{
    return {.fill = fill};
}
inline Style Outlined(Color fill, Color edge)
{
    return {.fill = fill, .stroke = edge};
}
inline Style Stroked(Color stroke, double width)
{
    return {.stroke = stroke, .width = width};
}

// A picture as SVG of path, rect and circle only, moved by g: what every renderer draws alike. Line ends are round.
class Drawing {
public:
    Drawing(int width, int height) : width_(width), height_(height) {}

    void path(const Path& path, const Style& style);
    void rect(const Box& box, const Style& style, double radius = 0);
    void circle(Point center, double radius, const Style& style);
    void beginMoved(Point by);
    void endMoved();

    int width() const { return width_; }
    int height() const { return height_; }
    std::string svg() const;

private:
    void add(const char* element, const std::string& attributes, const Style& style);

    int width_;
    int height_;
    std::string elements_;
};

// Moves everything that is drawn while it lives.
class Moved {
public:
    Moved(Drawing& drawing, Point by) : drawing_(drawing) { drawing_.beginMoved(by); }
    ~Moved() { drawing_.endMoved(); }
    Moved(const Moved&) = delete;

private:
    Drawing& drawing_;
};

// A file of the family: NAME.gif, .png or .icns, drawn at its natural size.
struct Picture {
    std::string file;
    Drawing drawing;
    bool isOverlay = false; // drawn over another picture
};
using Pictures = std::vector<Picture>;

} // namespace kesta::pictures
