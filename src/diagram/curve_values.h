#pragma once

#include <array>
#include <vector>

#include "diagram/moment_file.h"

namespace varno {

/// A moment curve within a span.
struct SpanMoments {
    float dx = 0;                              ///< between its points, m
    std::array<float, lastMoment + 1> moments; ///< kNm/m
};

/// The numbers of a moment curve file: two curves over the same spans.
struct CurveValues {
    std::array<std::vector<SpanMoments>, 2> curves;
    int spans() const { return static_cast<int>(curves[0].size()); }
};

/// Reads them all. \throws RunTimeError as `MomentFile` does.
inline CurveValues readCurveValues(File& file) {
    MomentFile items(file);
    CurveValues values;
    for (auto& curve : values.curves) {
        for (int span = 1; span <= items.spans(); ++span) {
            SpanMoments& read = curve.emplace_back();
            read.dx = items.number();
            for (float& moment : read.moments)
                moment = items.number();
        }
    }
    return values;
}

/// Where point k of a curve lies, m from the left support of its span: the moment is level over the width of that
/// support, and the points begin behind it.
inline double pointPlace(const DesignCase& designCase, int span, const SpanMoments& moments, int k) {
    return static_cast<double>(designCase.upl(span - 1)) + static_cast<double>(k) * moments.dx;
}

/// Where the left support of a span stands, m from the left end of the slab.
inline double supportPlace(const DesignCase& designCase, int span) {
    double place = designCase.konsv;
    for (int i = 1; i < span; ++i)
        place += designCase.spv(i);
    return place;
}

} // namespace varno
