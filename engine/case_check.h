#pragma once

#include "engine/case_reader.h"

namespace varnowb {

// A line load may stand this far outside the slab (m): its position is a sum of rounded lengths.
constexpr double kLengthTolerance = 1e-6;

// Total length of the slab with its cantilevers, m.
double totalLength(const DesignInput& c);

// Position of a line load from the slab's left end, m. Its span number must be 1 to `nfack`.
double lineLoadPosition(const DesignInput& c, const LineLoad& load);

// Throws CaseError when the case has no meaning as a continuous beam: a span that is not positive, a negative
// cantilever, support width or partial factor, a support as wide as the span to its right, a line load in no
// span or outside the slab. Negative loads are allowed.
void checkCase(const DesignInput& c);

} // namespace varnowb
