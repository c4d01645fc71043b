#include "input/sketch.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"

namespace varno {

namespace {

constexpr double baseline = 800;     // of all loads; the heaviest span reaches the top of the picture
constexpr double hatchSpacing = 420; // about
constexpr double arrowLength = 700;  // of the largest line load
constexpr double arrowHead = 150;    // each half of it, across and along
constexpr int highestSpan = 15;

constexpr const char* noLength = "Plattan har ingen längd: spännvidder och konsoler är tillsammans 0 m.\n"
                                 "Skissen kan inte ritas.\n"
                                 "Ange en spännvidd som är större än 0.";
constexpr const char* noSpanLength =
    "Ett fack har ingen längd eller är mycket kort i förhållande till plattan.\n"
    "Lasterna över det kan inte ritas.\n"
    "Kontrollera spännvidderna.";

double divided(double dividend, double divisor) {
    if (divisor == 0) throw RunTimeError(dividend == 0 ? errOverflow : errDivisionByZero);
    const double quotient = dividend / divisor;
    if (!std::isfinite(quotient)) throw RunTimeError(errOverflow);
    return quotient;
}

// Calls the listener at the end of a refresh, however it ends.
class AtEnd {
  public:
    explicit AtEnd(const std::function<void()>& action) : action_(action) {}
    ~AtEnd() {
        if (action_) action_();
    }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;

  private:
    const std::function<void()>& action_;
};

} // namespace

SlabSketch::SlabSketch(const DesignCase& designCase, Canvas& loadPicture, Canvas& slabStrip,
                       SupportButtons& buttons, std::function<void()> shown)
    : case_(designCase), loadPicture_(loadPicture), slabStrip_(slabStrip), buttons_(buttons),
      shown_(std::move(shown)) {}

void SlabSketch::fullRefresh() {
    const AtEnd shown(shown_);
    computeGeometry();
    drawSlabStrip();
    drawLoads();
}

void SlabSketch::geometryRefresh() {
    const AtEnd shown(shown_);
    computeGeometry();
    drawSlabStrip();
}

void SlabSketch::lineLoadRefresh() {
    const AtEnd shown(shown_);
    drawLoads();
}

void SlabSketch::drawLoads() {
    drawSpanLoads();
    float largest = 0;
    maxLineLoad(largest);
    drawLineLoads(largest);
    drawFreeLineLoads(largest);
}

void SlabSketch::computeGeometry() {
    totalLength_ = 0;
    for (int span = 1; span <= case_.nfack; ++span) {
        totalLength_ = toSingle(static_cast<double>(case_.spv(span)) + totalLength_);
    }
    totalLength_ = toSingle(static_cast<double>(case_.konsv) + totalLength_ + case_.konsh);
    if (totalLength_ == 0) throw RunTimeError(errDivisionByZero, {.said = noLength});
    sketchScale_ = toSingle(divided(sketchLength, totalLength_));
    const double scale = sketchScale_;
    supportX_(0) = toSingle(scale * case_.konsv);
    for (int span = 1; span <= case_.nfack; ++span) {
        supportX_(span) = toSingle(scale * case_.spv(span) + supportX_(span - 1));
    }
}

void SlabSketch::drawSlabStrip() {
    slabStrip_.clear();
    slabStrip_.box({slabStripStart, 75}, {slabStripStart + sketchLength, 50}, red, Fill::solid);
    for (int support = 0; support <= case_.nfack; ++support) {
        const double x = supportX_(support);
        stripX_(support) = toInteger(x + 100 + 240);
        buttons_.setButton(support, true, x + 100 + 200, 50 + 40);
    }
    for (int support = case_.nfack + 1; support <= SupportPlaces::last; ++support) {
        if (support < SupportPlaces::first) throw RunTimeError(errSubscriptOutOfRange);
        buttons_.setButton(support, false, 0, 0);
    }
    for (int support = 1; support <= case_.nfack - 1; ++support)
        drawMark(support);
}

void SlabSketch::drawMark(int support) {
    const double x = stripX_(support);
    const double scale = sketchScale_;
    const double toRight = scale * case_.spv(support + 1) * markRight(support) / 100;
    const double toLeft = scale * case_.spv(support) * markLeft(support) / 100;
    constexpr double radius = 30;
    switch (supportMark(support)) {
    case 1:
        slabStrip_.disc({x, 65}, radius, Colour::foreground(), brightWhite);
        break;
    case 2:
    case 3:
        slabStrip_.box({x, 105}, {x + toRight, 80}, red, Fill::solid);
        break;
    case 4:
        slabStrip_.disc({x + toRight, 65}, radius, Colour::foreground(), brightWhite);
        break;
    case 5:
        slabStrip_.box({x, 105}, {x + toRight, 80}, red, Fill::solid);
        slabStrip_.box({x, 45}, {x - toLeft, 20}, red, Fill::solid);
        break;
    default:
        break;
    }
}

// From the free end of the left cantilever to the left end of a span, m. Only the stored lengths count, so a
// line load beyond the last span has a place too.
double SlabSketch::lengthBefore(int span) const {
    double length = case_.konsv;
    for (int i = 1; i < span; ++i)
        length += case_.spv(i);
    return length;
}

// A cantilever carries the load of the span beside it: the first block starts at the free end of the left
// one, the last block runs to the free end of the right one.
SlabSketch::Block SlabSketch::blockOf(int span) const {
    const double scale = sketchScale_;
    const bool first = span == 1;
    const bool last = span == case_.nfack;
    const double start = first ? 0 : lengthBefore(span);
    double end = start + case_.spv(span);
    if (first) end += case_.konsv;
    if (last) end += case_.konsh;

    Block block{start * scale, end * scale, 0};
    block.width = first || last ? block.right - block.left : case_.spv(span) * scale;
    return block;
}

void SlabSketch::drawSpanLoads() {
    loadPicture_.clear();
    const auto load = [this](int span) { return static_cast<double>(case_.plast(span)) + case_.flast(span); };
    double largest = load(1);
    for (int span = 2; span <= case_.nfack; ++span)
        largest = std::max(largest, load(span));

    for (int span = 1; span <= case_.nfack; ++span) {
        const double height = largest == 0 ? 0 : divided(baseline * load(span), largest);
        const Block block = blockOf(span);
        loadPicture_.box({block.left, baseline}, {block.right, baseline - height}, Colour::foreground());
        hatch(block, height);
    }
}

// Divides the block into equal parts of about 420 twips. A block that is much narrower has no part at all,
// and dividing it is a division by zero; one of negative width has a negative number of parts and no line.
void SlabSketch::hatch(const Block& block, double height) {
    const double parts = std::floor(block.width / hatchSpacing + 0.9);
    if (parts == 0)
        throw RunTimeError(block.width == 0 ? errOverflow : errDivisionByZero, {.said = noSpanLength});
    const double step = divided(block.width, parts);
    if (block.width < 0) return;

    // Lengths of opposite signs can add up to a short slab with spans of any width. Only the lines on the
    // picture are drawn, so that billions beside it do not hold up the program.
    const double leftEdge = -twipsPerPixel - block.left;
    const double rightEdge = loadPictureWidth + twipsPerPixel - block.left;
    const double firstSeen = std::max(0.0, std::ceil(leftEdge / step));
    const double lastSeen = std::min(parts, std::floor(rightEdge / step));
    constexpr double most = loadPictureWidth; // far more than fit: a step is 42 twips at least
    for (double seen = 0; seen <= std::min(lastSeen - firstSeen, most); ++seen) {
        const double x = block.left + (firstSeen + seen) * step;
        loadPicture_.line({x, baseline}, {x, baseline - height}, Colour::foreground());
    }
}

void SlabSketch::maxLineLoad(float& largest) const {
    largest = case_.lllastf(1);
    for (int i = 2; i <= case_.nllastf; ++i)
        largest = std::max(largest, case_.lllastf(i));
    for (int i = 1; i <= case_.nllast; ++i)
        largest = std::max(largest, case_.lllast(i));
}

void SlabSketch::drawLineLoads(float largest) {
    drawArrows({case_.nllast, case_.llfnr, case_.avst, case_.lllast, red}, largest);
}

void SlabSketch::drawFreeLineLoads(float largest) {
    drawArrows({case_.nllastf, case_.llfnrf, case_.avstf, case_.lllastf, green}, largest);
}

void SlabSketch::drawArrows(const LineLoads& set, float largest) {
    if (largest == 0) return;
    for (int i = 1; i <= set.count; ++i) {
        const int span = set.span(i);
        if (span > highestSpan) throw RunTimeError(errSubscriptOutOfRange);
        const double x = (lengthBefore(span) + set.distance(i)) * sketchScale_;
        const double share = divided(set.load(i), largest);
        const double head = arrowHead * share;
        const Point tip{x, baseline};
        loadPicture_.line(tip, {x, baseline - arrowLength * share}, set.colour, 2);
        loadPicture_.line(tip, {x - head, baseline - head}, set.colour, 2);
        loadPicture_.line(tip, {x + head, baseline - head}, set.colour, 2);
    }
}

} // namespace varno
