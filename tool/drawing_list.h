#pragma once

#include <iosfwd>
#include <string>

#include "input/sketch.h"

namespace varno::tool {

/// Prints what is drawn on a surface as it is drawn, one JSON object a line:
///
///     {"surface":S,"op":"clear"}
///     {"surface":S,"op":"line","x1":...,"y1":...,"x2":...,"y2":...,"colour":C,"width":1 or 2}
///     {"surface":S,"op":"box","x1":...,"y1":...,"x2":...,"y2":...,"colour":C,"filled":true or false}
///     {"surface":S,"op":"circle","x":...,"y":...,"r":...,"colour":C}
///
/// Places in twips. C is a number of the palette, or "fg" for the surface's own drawing colour; that of a
/// circle is its rim's.
class ListCanvas : public Canvas {
  public:
    ListCanvas(std::string surface, std::ostream& out) : surface_(std::move(surface)), out_(out) {}

    void clear() override;
    void line(Point from, Point to, Colour colour, int width = 1) override;
    void box(Point corner, Point opposite, Colour colour, Fill fill = Fill::none) override;
    void disc(Point centre, double radius, Colour rim, Colour inside) override;

  private:
    std::string surface_;
    std::ostream& out_;
};

/// Prints where the support buttons of the slab strip go, likewise:
///
///     {"surface":"strip","op":"button","index":I,"visible":true,"left":...,"top":...}
///     {"surface":"strip","op":"button","index":I,"visible":false}
class ListButtons : public SupportButtons {
  public:
    explicit ListButtons(std::ostream& out) : out_(out) {}
    void setButton(int index, bool visible, double left, double top) override;

  private:
    std::ostream& out_;
};

} // namespace varno::tool
