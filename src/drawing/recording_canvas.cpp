#include "drawing/recording_canvas.h"

namespace varno {

namespace {

struct Replay {
    Canvas& canvas;
    void operator()(const LineDrawn& d) const { canvas.line(d.from, d.to, d.colour, d.width); }
    void operator()(const BoxDrawn& d) const { canvas.box(d.corner, d.opposite, d.colour, d.fill); }
    void operator()(const DiscDrawn& d) const { canvas.disc(d.centre, d.radius, d.rim, d.inside); }
};

} // namespace

void RecordingCanvas::line(Point from, Point to, Colour colour, int width) {
    drawn_.emplace_back(LineDrawn{from, to, colour, width});
}

void RecordingCanvas::box(Point corner, Point opposite, Colour colour, Fill fill) {
    drawn_.emplace_back(BoxDrawn{corner, opposite, colour, fill});
}

void RecordingCanvas::disc(Point centre, double radius, Colour rim, Colour inside) {
    drawn_.emplace_back(DiscDrawn{centre, radius, rim, inside});
}

void replay(const RecordingCanvas& picture, Canvas& canvas) {
    for (const Drawn& drawn : picture.drawn())
        std::visit(Replay{canvas}, drawn);
}

} // namespace varno
