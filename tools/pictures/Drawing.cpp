#include "Drawing.h"

#include <cmath>
#include <cstdio>

namespace kesta::pictures {
namespace {

// At most two decimals, none that say nothing.
std::string Text(double number)
{
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), "%.2f", std::abs(number) < 0.005 ? 0.0 : number);
    std::string trimmed = text.data();
    trimmed.erase(trimmed.find_last_not_of('0') + 1);
    if (trimmed.back() == '.')
        trimmed.pop_back();
    return trimmed;
}

std::string Attribute(const char* name, double number)
{
    return std::string(" ") + name + "=\"" + Text(number) + '"';
}

} // namespace

Path& Path::add(const char* command, std::initializer_list<double> numbers)
{
    commands_ += command;
    bool first = true;
    for (const double number : numbers) {
        if (!first)
            commands_ += ' ';
        commands_ += Text(number);
        first = false;
    }
    return *this;
}

Path& Path::arcTo(double radius, bool clockwise, Point to)
{
    return add("A", {radius, radius, 0, 0, clockwise ? 1.0 : 0.0, to.x, to.y});
}

Path& Path::longArcTo(double radius, bool clockwise, Point to)
{
    return add("A", {radius, radius, 0, 1, clockwise ? 1.0 : 0.0, to.x, to.y});
}

Path& Path::close()
{
    return add("Z", {});
}

Path Polyline(std::initializer_list<Point> points)
{
    Path path;
    for (const Point& point : points)
        path.commands().empty() ? path.moveTo(point) : path.lineTo(point);
    return path;
}

Path Polygon(std::initializer_list<Point> corners)
{
    return Polyline(corners).close();
}

void Drawing::path(const Path& path, const Style& style)
{
    add("path", " d=\"" + path.commands() + '"', style);
}

void Drawing::rect(const Box& box, const Style& style, double radius)
{
    std::string attributes =
        Attribute("x", box.x) + Attribute("y", box.y) + Attribute("width", box.width) + Attribute("height", box.height);
    if (radius > 0)
        attributes += Attribute("rx", radius);
    add("rect", attributes, style);
}

void Drawing::circle(Point center, double radius, const Style& style)
{
    add("circle", Attribute("cx", center.x) + Attribute("cy", center.y) + Attribute("r", radius), style);
}

void Drawing::beginMoved(Point by)
{
    elements_ += "<g transform=\"translate(" + Text(by.x) + ' ' + Text(by.y) + ")\">\n";
}

void Drawing::endMoved()
{
    elements_ += "</g>\n";
}

void Drawing::add(const char* element, const std::string& attributes, const Style& style)
{
    elements_ += std::string("<") + element + attributes;
    if (style.fill)
        elements_ += " fill=\"" + Hex(*style.fill) + '"';
    if (style.stroke)
        elements_ += " stroke=\"" + Hex(*style.stroke) + '"';
    if (style.stroke && style.width != 1)
        elements_ += Attribute("stroke-width", style.width);
    elements_ += "/>\n";
}

std::string Drawing::svg() const
{
    const std::string width = std::to_string(width_);
    const std::string height = std::to_string(height_);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
           "\" viewBox=\"0 0 " + width + ' ' + height +
           "\" fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n" + elements_ + "</svg>\n";
}

} // namespace kesta::pictures
