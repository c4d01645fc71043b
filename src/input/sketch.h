#pragma once

#include <cstdint>
#include <functional>

#include "drawing/canvas.h"
#include "input/sketch_refresh.h"
#include "model/design_case.h"

namespace varno {

// The surfaces and what they share, in twips.
inline constexpr double loadPictureWidth = 8410;
inline constexpr double loadPictureHeight = 900;
inline constexpr double slabStripWidth = 13290;
inline constexpr double slabStripHeight = 300;
inline constexpr double sketchLength = 8400;  ///< the slab with its cantilevers, whatever its length
inline constexpr double slabStripStart = 340; ///< x of the slab's left end in the slab strip
inline constexpr double supportButtonWidth = 90;
inline constexpr double supportButtonHeight = 195;

/// The push-buttons `stod` (0..15) that stand under the supports in the slab strip.
class SupportButtons {
  public:
    virtual ~SupportButtons() = default;
    /// Places of hidden buttons are 0.
    virtual void setButton(int index, bool visible, double left, double top) = 0;
};

using SupportMarks = BoundedArray<std::int16_t, 0, 15>;
using SupportPlaces = BoundedArray<float, 0, 15>;

/// The quantities derived from the geometry, and the sketch of the slab with its loads.
///
/// No step guards its inputs. What cannot be computed raises a run-time error and stops the sequence where it
/// is; the next sequence that runs through makes the picture whole again:
///   - 11 for a total length of 0, and for a block that is too narrow to be hatched;
///   - 6 for a block without width, and for places beyond the number ranges;
///   - 9 for more than 15 spans, a line load in a span above 15 or more than 5 line loads.
/// Negative lengths and loads are drawn with their sign.
class SlabSketch : public SketchRefresh {
  public:
    /// `shown` runs when a refresh has ended, also when an error ended it: what was drawn is to be painted.
    /// It must not throw.
    SlabSketch(const DesignCase& designCase, Canvas& loadPicture, Canvas& slabStrip, SupportButtons& buttons,
               std::function<void()> shown = {});

    void fullRefresh() override;
    void geometryRefresh() override;
    void lineLoadRefresh() override;

    void computeGeometry();
    void drawSlabStrip();
    void drawSpanLoads();
    /// The largest line load of both sets. The first free line load takes part even when there is none: one
    /// that was counted away still sets the scale of the arrows.
    void maxLineLoad(float& largest) const;
    void drawLineLoads(float largest);
    void drawFreeLineLoads(float largest);

    float totalLength() const { return totalLength_; }             ///< m, with the cantilevers
    float sketchScale() const { return sketchScale_; }             ///< twips per metre
    float supportX(int i) const { return supportX_(i); }           ///< in the load picture, twips
    std::int16_t supportStripX(int i) const { return stripX_(i); } ///< in the slab strip, twips

    // An optional mark per inner support, with the share of the right and the left span that it covers, in
    // per cent. No editor sets them.
    SupportMarks supportMark;
    SupportMarks markRight;
    SupportMarks markLeft;

  private:
    struct LineLoads {
        std::int16_t count;
        const LineLoadIntegers& span;
        const LineLoadReals& distance;
        const LineLoadReals& load;
        Colour colour;
    };
    struct Block {
        double left;
        double right;
        double width; ///< what the hatching divides
    };

    void drawLoads();
    void drawMark(int support);
    Block blockOf(int span) const;
    void hatch(const Block& block, double height);
    void drawArrows(const LineLoads& set, float largest);
    double lengthBefore(int span) const;

    const DesignCase& case_;
    Canvas& loadPicture_;
    Canvas& slabStrip_;
    SupportButtons& buttons_;
    std::function<void()> shown_;

    float totalLength_ = 0;
    float sketchScale_ = 0;
    SupportPlaces supportX_;
    SupportMarks stripX_;
};

} // namespace varno
