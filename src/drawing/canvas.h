#pragma once

#include "drawing/colour.h"

namespace varno {

inline constexpr double twipsPerInch = 1440;
/// A pixel of the screen that the drawings were laid out for (96 to the inch). Line widths count in it.
inline constexpr double twipsPerPixel = 15;

/// A place on a surface in twips: origin at its top left, y downwards.
struct Point {
    double x;
    double y;
    bool operator==(const Point&) const = default;
};

enum class Fill { none, solid };

/// A surface to draw on: a picture area, a page, a file or a list. Places and radii are in twips and finite;
/// what lies outside the surface is not seen. Widths are 1 or 2 pixels.
class Canvas {
  public:
    virtual ~Canvas() = default;

    virtual void clear() = 0;
    virtual void line(Point from, Point to, Colour colour, int width = 1) = 0;
    /// A box between two opposite corners, in whatever order: its outline, or filled in the same colour. A
    /// box without height or width still shows as a line.
    virtual void box(Point corner, Point opposite, Colour colour, Fill fill = Fill::none) = 0;
    /// A disc of the colour `inside` with a thin rim.
    virtual void disc(Point centre, double radius, Colour rim, Colour inside) = 0;
};

} // namespace varno
