#pragma once

#include <string>
#include <vector>

#include "diagram/curve_values.h"
#include "model/design_case.h"

namespace varno::tool {

/// Which way the moments are drawn, in Swedish.
inline constexpr const char* momentSign =
    "Positivt moment (drag i underkanten) är ritat nedåt, negativt moment (drag i överkanten) uppåt.";

/// The moments that a designer reads off: the largest of a span, the smallest over a support.
struct Peak {
    float moment = 0;  ///< kNm/m
    double x = 0;      ///< m from the left end of the slab
    double inSpan = 0; ///< m from the left support of its span
};

/// Over both curves: of span 1 to n at [0] on.
std::vector<Peak> spanPeaks(const DesignCase& designCase, const CurveValues& values);
/// Of support 0 to n: the smaller of what the curves have on its two sides.
std::vector<Peak> supportPeaks(const DesignCase& designCase, const CurveValues& values);

/// The curves along the slab with their peaks as an SVG element, by the same rules as the program's diagram. The curves
/// must have the spans of the case.
std::string momentChart(const DesignCase& designCase, const CurveValues& values);

} // namespace varno::tool
