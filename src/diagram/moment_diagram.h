#pragma once

#include <functional>

#include "base/file.h"
#include "diagram/diagram_scale.h"
#include "diagram/moment_reading.h"
#include "drawing/canvas.h"
#include "input/sketch.h"
#include "model/design_case.h"

namespace varno {

/// The moment curves of the whole slab, at the horizontal scale of the sketch: the slab runs from x = 340 to
/// x = 8740 on the base line y = 2000, the largest moment stands 1900 twips from it. Positive moments are
/// drawn below the base line.
///
/// The spans of the file are laid out along the case's supports and cantilevers as they are now. A file with
/// another number of spans is drawn as it is; it does not end at the slab's end then.
///
/// \throws RunTimeError in every pass: 52, 62, 6 and 9 as the file's reader does, and 11 when there is no
/// moment to scale by. What was drawn before an error stays.
class MomentDiagram {
  public:
    MomentDiagram(const DesignCase& designCase, const SlabSketch& sketch)
        : case_(designCase), sketch_(sketch) {}

    /// The largest absolute moment of the file that was last measured, kNm/m.
    float momentMax() const { return momentMax_; }

    /// The maximum pass, over both curves.
    void measure(File& file);
    /// The numbers of the file, laid out as it is drawn. Scaled by the file last measured.
    MomentReading read(File& file) const {
        return {case_, readCurveValues(file), sketch_.sketchScale(), momentMax_};
    }
    /// The drawing pass on the screen, which is cleared first. Scaled by the file last measured.
    void draw(File& file, Canvas& picture) const;
    /// The drawing pass on paper. `paper` is asked for when the first line is about to be drawn. The
    /// ordinates of the first curve's left cantilever go to the picture on the screen and are missing on the
    /// paper: a slip of old that is kept.
    void plot(File& file, const std::function<Canvas&()>& paper, Canvas& picture) const;

  private:
    const DesignCase& case_;
    const SlabSketch& sketch_;
    float momentMax_ = 0;
};

} // namespace varno
