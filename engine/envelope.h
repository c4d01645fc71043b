#pragma once

#include <array>
#include <vector>

#include "engine/beam.h"

// Extreme moments and reactions over every arrangement of the variable load.

namespace varno::engine {

inline constexpr int curvePoints = 21;
using Curve = std::array<double, curvePoints>;

/// Design loads of a strip 1 m wide, factors included: kN/m and kN.
struct DesignLoads {
    std::vector<double> permanent; ///< one for each span, always there
    std::vector<double> variable;  ///< one for each span, there or not
    std::vector<PointLoad> lines;  ///< always there; x from the slab's left end
};

struct Range {
    double max = 0;
    double min = 0;
};

struct Envelope {
    int patterns = 0;                 ///< 2^n
    std::vector<Range> supportMoment; ///< supports 0 to n
    std::vector<Range> reaction;      ///< supports 0 to n
    std::vector<FieldMoments> field;  ///< spans 1 to n at [0] on
    std::vector<double> dx;           ///< spacing of the curve points of each span, m
    std::vector<Curve> upper, lower;  ///< largest and smallest moment at the curve points of each span
};

/// Of all 2^n patterns of variable load on n spans, without going through them: the beam is linear, so a value is largest
/// under the loads that make it larger one by one, and smallest under the others. The value itself is put together from
/// those of the n + 1 load cases. A cantilever has the variable load when the span next to it has.
///
/// Curve point k = 0 to 20 of span i lies at upl(i-1) + k dx(i) from its left support, dx(i) = (spv(i) - upl(i-1)) /
/// 20, so the last one lies on its right support: the moment is meant to be drawn level over the width of the left
/// one. `upl` holds the widths of supports 0 to n.
Envelope envelope(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl);

} // namespace varno::engine
