#pragma once

#include <string>
#include <vector>

#include "base/numbers.h"
#include "input/sketch.h"

namespace varno {

/// What is said of a part of the sketch when the pointer rests on it. UTF-8, lines ended by "\n".
struct SketchTip {
    double left; ///< in the load picture, twips
    double right;
    std::string text;
    bool operator==(const SketchTip&) const = default;
};

struct SketchTips {
    /// Cantilevers and spans from left to right; the same places in the slab strip.
    std::vector<SketchTip> parts;
    /// Of the button under support 0, 1 ...
    std::vector<std::string> supports;
};

/// Of a case as it is drawn, and never an error. Parts without a width have nothing to rest on.
SketchTips sketchTips(const DesignCase& designCase, const SlabSketch& sketch, const NumberLocale& locale);

} // namespace varno
