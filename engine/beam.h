#pragma once

#include <span>
#include <vector>

// A continuous beam of constant stiffness on point supports, with a cantilever at either end that carries the
// distributed load of the span next to it.
//
// Lengths in m, distributed loads in kN/m and point loads in kN, both positive downwards; bending moments in kNm,
// positive when they sag; shear positive when the part to the left is pushed up; reactions positive upwards.

namespace varno::engine {

struct PointLoad {
    double x = 0;
    double p = 0;
};

struct Beam {
    double konsv = 0;        ///< left cantilever
    double konsh = 0;        ///< right cantilever
    std::vector<double> spv; ///< one or more, all > 0
};

/// Point loads by the part that carries them.
struct PlacedLoads {
    std::vector<std::vector<PointLoad>> span; ///< x from the span's left support, ascending
    std::vector<PointLoad> left, right;       ///< on the cantilevers: x from their support outwards
};

/// `points` with x from the beam's left end. A load outside the beam counts as standing on the cantilever.
PlacedLoads place(const Beam& beam, std::span<const PointLoad> points);

struct Loading {
    std::vector<double> q; ///< one for each span
    PlacedLoads points;
};

/// Moments over supports 0 to n, from the three-moment equation (B. P. E. Clapeyron, 1857): for two spans a and b
/// that meet in support i,
///   M(i-1) La + 2 M(i) (La + Lb) + M(i+1) Lb = - qa La^3/4 - qb Lb^3/4
///                                              - sum Pa x (La^2 - x^2) / La - sum Pb z (Lb^2 - z^2) / Lb
/// with x from the left end of span a and z from the right end of span b. Those over the end supports are the
/// cantilevers' own, -(q c^2/2 + sum P x).
std::vector<double> supportMoments(const Beam& beam, const Loading& loading);

/// Reactions of supports 0 to n to a loading whose support moments are `moments`.
std::vector<double> reactions(const Beam& beam, const Loading& loading, std::span<const double> moments);

/// One span cut free: its loads and the moments at its ends determine it.
struct SpanState {
    double length = 0;
    double q = 0;
    double left = 0, right = 0; ///< end moments
    std::span<const PointLoad> points;
};

double momentAt(const SpanState& span, double x);

enum class Place { support, zeroShear, underLoad };

struct FieldMoment {
    double moment = 0;
    double x = 0; ///< m from the span's left support
    Place place = Place::support;
};

struct FieldMoments {
    FieldMoment max, min;

    /// Takes a larger maximum and a smaller minimum over; of moments that are equal but for rounding the first stays.
    void include(const FieldMoments& other);
};

/// The largest and the smallest moment of the span, ends included. Between its ends a moment is extreme where the
/// shear is zero or, under a point load, jumps past zero: both are found from the loads, nothing is sampled.
FieldMoments fieldMoments(const SpanState& span);

} // namespace varno::engine
