#pragma once

#include <string>

#include "drawing/canvas.h"

namespace varno {

/// Draws into an SVG picture, for reports: its size in millimetres, its coordinates in twips, black on
/// transparent, pixels sharp.
class SvgCanvas : public Canvas {
  public:
    /// The size of the picture in twips.
    SvgCanvas(double width, double height) : width_(width), height_(height) {}

    void clear() override { body_.clear(); }
    void line(Point from, Point to, Colour colour, int width = 1) override;
    void box(Point corner, Point opposite, Colour colour, Fill fill = Fill::none) override;
    void disc(Point centre, double radius, Colour rim, Colour inside) override;

    /// A word, its middle over the place, on a ground of its own colour so that lines do not run through it.
    void text(Point baseline, const std::string& words);
    static constexpr double textHeight = 180;

    /// What is drawn from here to `closeSurface` belongs to a surface of its own within the picture: of its
    /// drawing only what lies in the given area is seen, and the area's corner stands at `place`.
    void openSurface(Point place, Point corner, double width, double height);
    void closeSurface() { body_ += "</svg>\n"; }

    /// The whole document, UTF-8, lines ended by LF.
    std::string svg() const;

  private:
    double width_;
    double height_;
    std::string body_;
};

} // namespace varno
