#include "drawing/svg_canvas.h"

#include <cmath>
#include <initializer_list>

#include "base/numbers.h"

namespace varno {

namespace {

constexpr double millimetresPerInch = 25.4;

// Hundredths of a twip are far below what any printer shows. A value too large for that keeps its own form.
std::string number(double value) {
    const double rounded = std::round(value * 100) / 100;
    return generalForm(std::fabs(value) < 1e9 ? rounded : value);
}

std::string millimetres(double twips) {
    return number(twips / twipsPerInch * millimetresPerInch) + "mm";
}

std::string rgbText(Colour colour) {
    constexpr char digits[] = "0123456789abcdef";
    const Rgb rgb = colour.rgb({0, 0, 0});
    std::string text = "#";
    for (const int part : {rgb.red, rgb.green, rgb.blue}) {
        text += digits[part / 16];
        text += digits[part % 16];
    }
    return text;
}

std::string attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string stroke(Colour colour, int width) {
    return attribute("stroke", rgbText(colour)) + attribute("stroke-width", number(width * twipsPerPixel));
}

std::string path(std::initializer_list<Point> corners, bool closed) {
    std::string data;
    for (const Point& corner : corners) {
        data += data.empty() ? "M" : " L";
        data += number(corner.x) + " " + number(corner.y);
    }
    return "<path" + attribute("d", data + (closed ? " Z" : ""));
}

std::string viewBox(Point corner, double width, double height) {
    return attribute("viewBox",
                     number(corner.x) + " " + number(corner.y) + " " + number(width) + " " + number(height));
}

std::string escaped(const std::string& words) {
    std::string text;
    for (const char letter : words) {
        if (letter == '&') {
            text += "&amp;";
        } else if (letter == '<') {
            text += "&lt;";
        } else {
            text += letter;
        }
    }
    return text;
}

} // namespace

void SvgCanvas::line(Point from, Point to, Colour colour, int width) {
    body_ += path({from, to}, false) + stroke(colour, width) + "/>\n";
}

void SvgCanvas::box(Point corner, Point opposite, Colour colour, Fill fill) {
    // A path and not a rect: a rect without height is not drawn at all, not even its rim.
    body_ += path({corner, {opposite.x, corner.y}, opposite, {corner.x, opposite.y}}, true);
    const bool flat = corner.x == opposite.x || corner.y == opposite.y;
    if (fill == Fill::solid) body_ += attribute("fill", rgbText(colour));
    if (fill == Fill::none || flat) body_ += stroke(colour, 1);
    body_ += "/>\n";
}

void SvgCanvas::disc(Point centre, double radius, Colour rim, Colour inside) {
    body_ += "<circle" + attribute("cx", number(centre.x)) + attribute("cy", number(centre.y)) +
             attribute("r", number(radius)) + attribute("fill", rgbText(inside)) + stroke(rim, 1) + "/>\n";
}

void SvgCanvas::text(Point baseline, const std::string& words) {
    body_ += "<text" + attribute("x", number(baseline.x)) + attribute("y", number(baseline.y)) +
             attribute("font-family", "Segoe UI, Arial, sans-serif") + attribute("font-size", number(textHeight)) +
             attribute("text-anchor", "middle") + attribute("fill", "#000000") + attribute("stroke", "#ffffff") +
             attribute("stroke-width", "40") + attribute("paint-order", "stroke") + ">" + escaped(words) + "</text>\n";
}

void SvgCanvas::openSurface(Point place, Point corner, double width, double height) {
    body_ += "<svg" + attribute("x", number(place.x)) + attribute("y", number(place.y)) +
             attribute("width", number(width)) + attribute("height", number(height)) +
             viewBox(corner, width, height) + ">\n";
}

std::string SvgCanvas::svg() const {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribute("width", millimetres(width_)) +
           attribute("height", millimetres(height_)) + viewBox({0, 0}, width_, height_) +
           " fill=\"none\" shape-rendering=\"crispEdges\">\n" + body_ + "</svg>\n";
}

} // namespace varno
