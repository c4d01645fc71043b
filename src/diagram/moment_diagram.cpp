#include "diagram/moment_diagram.h"

#include <cmath>

#include "diagram/moment_file.h"

namespace varno {

namespace {

constexpr double baseline = momentBaseline;
constexpr double slabEnd = slabStripStart + sketchLength;
constexpr double intervals = 20; // of a span: the spacing of the neighbouring cantilever's ordinates

constexpr const char* noMoments = "Alla moment i momk.dat är 0.\n"
                                  "Det finns ingen kurva att rita.\n"
                                  "Kontrollera lasterna och kör beräkningen igen.";

double scaleFor(float momentMax) {
    if (momentMax == 0) throw RunTimeError(errDivisionByZero, {.said = noMoments});
    return highestMoment / momentMax;
}

// The drawing pass over an open file.
class Drawing {
  public:
    struct Surfaces {
        Canvas& surface;
        Canvas& firstLeftOrdinates; ///< where those of the first curve's left cantilever go
    };

    Drawing(const DesignCase& designCase, double scale, MomentFile& file, double momentScale,
            Surfaces surfaces)
        : case_(designCase), scale_(scale), file_(file), momentScale_(momentScale), surfaces_(surfaces) {}

    void run() {
        drawCurve(Colour::foreground(), surfaces_.firstLeftOrdinates);
        drawCurve(red, surfaces_.surface);
        surfaces_.surface.line({slabEnd, baseline}, {slabStripStart, baseline}, Colour::foreground());
    }

  private:
    void drawCurve(Colour colour, Canvas& leftOrdinates) {
        last_ = {slabStripStart + scale_ * case_.konsv, baseline};
        for (int span = 1; inside(span); ++span)
            drawSpan(span, colour, leftOrdinates);
        if (file_.spans() < 1) return;
        last_.x += case_.upl(file_.spans()) * scale_;
        if (case_.konsh > shortestCantilever) drawRightCantilever(colour);
    }

    void drawSpan(int span, Colour colour, Canvas& leftOrdinates) {
        const double spacing = file_.number() * scale_;
        last_.y = heightOf(file_.number());
        if (span == 1 && case_.konsv > shortestCantilever) drawLeftCantilever(colour, leftOrdinates);

        // The moment is held level across the support.
        const double supportEnd = last_.x + case_.upl(span - 1) * scale_;
        surfaces_.surface.box(last_, {supportEnd, baseline}, Colour::foreground());
        last_.x = supportEnd;
        for (int k = 1; k <= lastMoment; ++k) {
            const Point point{last_.x + spacing, heightOf(file_.number())};
            surfaces_.surface.line(last_, point, colour);
            surfaces_.surface.line(point, {point.x, baseline}, colour);
            last_ = point;
        }
    }

    // In a cantilever the moment is taken to fall in a straight line to 0 at the free end.
    void drawLeftCantilever(Colour colour, Canvas& ordinates) {
        const Point freeEnd{slabStripStart, baseline};
        drawOrdinates(ordinates, colour, freeEnd, 1, case_.konsv * scale_, case_.spv(1) / intervals * scale_);
        surfaces_.surface.line(freeEnd, last_, colour);
    }

    void drawRightCantilever(Colour colour) {
        const Point freeEnd{slabEnd, baseline};
        drawOrdinates(surfaces_.surface, colour, freeEnd, -1, case_.konsh * scale_,
                      case_.spv(file_.spans()) / intervals * scale_);
        surfaces_.surface.line(last_, freeEnd, colour);
    }

    // From the free end towards the support, whose moment is that of `last_`. Lengths that make no sense must not
    // hold up the program: without a step there is but the first ordinate, what no paper is wide enough for is
    // left out, and of those that stand within a twip of each other one is drawn.
    void drawOrdinates(Canvas& canvas, Colour colour, Point freeEnd, double towardsSupport, double length,
                       double step) const {
        constexpr double widestPaper = 30000;
        const bool steps = step > 0 && std::isfinite(step);
        const double stride = steps && step < 1 ? std::ceil(1 / step) : 1;
        for (double k = 0; k * step <= length && k * step <= widestPaper; k += stride) {
            const double offset = k * step;
            const double share = offset == 0 ? 0 : offset / length;
            const double x = freeEnd.x + towardsSupport * offset;
            canvas.line({x, baseline}, {x, baseline + (last_.y - baseline) * share}, colour);
            if (!steps) break;
        }
    }

    double heightOf(float moment) const { return baseline + moment * momentScale_; }
    bool inside(int span) const { return span <= file_.spans(); }

    const DesignCase& case_;
    const double scale_; // twips per metre
    MomentFile& file_;
    const double momentScale_; // twips per kNm/m
    const Surfaces surfaces_;
    Point last_{0, baseline}; // of the curve, as far as it is drawn
};

} // namespace

void MomentDiagram::measure(File& file) {
    momentMax_ = 0;
    MomentFile items(file);
    const int spansOfBothCurves = 2 * items.spans();
    for (int span = 1; span <= spansOfBothCurves; ++span) {
        items.skip();
        for (int k = 0; k <= lastMoment; ++k) {
            const float moment = std::fabs(items.number());
            if (moment > momentMax_) momentMax_ = moment;
        }
    }
}

void MomentDiagram::draw(File& file, Canvas& picture) const {
    picture.clear();
    plot(
        file, [&]() -> Canvas& { return picture; }, picture);
}

void MomentDiagram::plot(File& file, const std::function<Canvas&()>& paper, Canvas& picture) const {
    MomentFile items(file);
    const double momentScale = scaleFor(momentMax_);
    Drawing(case_, sketch_.sketchScale(), items, momentScale, {paper(), picture}).run();
}

} // namespace varno
