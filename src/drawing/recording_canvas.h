#pragma once

#include <variant>
#include <vector>

#include "drawing/canvas.h"

namespace varno {

struct LineDrawn {
    Point from;
    Point to;
    Colour colour;
    int width;
    void drawOn(Canvas& canvas) const { canvas.line(from, to, colour, width); }
    bool operator==(const LineDrawn&) const = default;
};

struct BoxDrawn {
    Point corner;
    Point opposite;
    Colour colour;
    Fill fill;
    void drawOn(Canvas& canvas) const { canvas.box(corner, opposite, colour, fill); }
    bool operator==(const BoxDrawn&) const = default;
};

struct DiscDrawn {
    Point centre;
    double radius;
    Colour rim;
    Colour inside;
    void drawOn(Canvas& canvas) const { canvas.disc(centre, radius, rim, inside); }
    bool operator==(const DiscDrawn&) const = default;
};

using Drawn = std::variant<LineDrawn, BoxDrawn, DiscDrawn>;

/// Keeps what is drawn, in order, so that a window can be painted again at any time and at any resolution.
class RecordingCanvas : public Canvas {
  public:
    void clear() override { drawn_.clear(); }
    void line(Point from, Point to, Colour colour, int width = 1) override {
        drawn_.emplace_back(LineDrawn{from, to, colour, width});
    }
    void box(Point corner, Point opposite, Colour colour, Fill fill = Fill::none) override {
        drawn_.emplace_back(BoxDrawn{corner, opposite, colour, fill});
    }
    void disc(Point centre, double radius, Colour rim, Colour inside) override {
        drawn_.emplace_back(DiscDrawn{centre, radius, rim, inside});
    }

    const std::vector<Drawn>& drawn() const { return drawn_; }
    bool operator==(const RecordingCanvas& other) const { return drawn_ == other.drawn_; }

  private:
    std::vector<Drawn> drawn_;
};

/// Draws a recorded picture on another surface, over what is there.
inline void replay(const RecordingCanvas& picture, Canvas& canvas) {
    for (const Drawn& drawn : picture.drawn())
        std::visit([&](const auto& one) { one.drawOn(canvas); }, drawn);
}

} // namespace varno
