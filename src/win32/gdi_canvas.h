#pragma once

#include <windows.h>

#include "drawing/canvas.h"

namespace varno::win32 {

COLORREF colourRef(Rgb rgb);

/// Draws on a device context whose unit is the pixel: twips become pixels here, once. It does not clear; who
/// owns the surface fills it first. A light foreground tells that the ground is dark.
class GdiCanvas : public Canvas {
  public:
    /// `dpi` is the scale of places and sizes, `penDpi` that of the line widths.
    GdiCanvas(HDC dc, int dpi, int penDpi, COLORREF foreground)
        : dc_(dc), dpi_(dpi), penDpi_(penDpi), foreground_(foreground) {}

    void clear() override {}
    void line(Point from, Point to, Colour colour, int width = 1) override;
    void box(Point corner, Point opposite, Colour colour, Fill fill = Fill::none) override;
    void disc(Point centre, double radius, Colour rim, Colour inside) override;

  private:
    COLORREF ref(Colour colour) const;
    LONG px(double twips) const;
    POINT at(Point place) const { return {px(place.x), px(place.y)}; }
    int penWidth(int width) const;

    HDC dc_;
    int dpi_;
    int penDpi_;
    COLORREF foreground_;
};

} // namespace varno::win32
