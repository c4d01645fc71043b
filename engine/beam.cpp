#include "engine/beam.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace varno::engine {

namespace {

double cantileverMoment(double q, double length, const std::vector<PointLoad>& points) {
    double moment = -q * length * length / 2;
    for (const PointLoad& load : points)
        moment -= load.p * load.x;
    return moment;
}

double loadOn(double q, double length, const std::vector<PointLoad>& points) {
    double sum = q * length;
    for (const PointLoad& load : points)
        sum += load.p;
    return sum;
}

enum class End { left, right };

// The span's term in the equation of the support at one of its ends.
double termAt(End end, double length, double q, const std::vector<PointLoad>& points) {
    double term = q * length * length * length / 4;
    for (const PointLoad& load : points) {
        const double far = end == End::right ? load.x : length - load.x;
        term += load.p * far * (length * length - far * far) / length;
    }
    return term;
}

// Just right of the left support.
double startShear(const SpanState& span) {
    double shear = (span.right - span.left) / span.length + span.q * span.length / 2;
    for (const PointLoad& load : span.points)
        shear += load.p * (span.length - load.x) / span.length;
    return shear;
}

bool isLarger(double moment, double best) {
    return moment - best > 1e-12 * std::max(std::abs(moment), std::abs(best));
}

} // namespace

PlacedLoads place(const Beam& beam, std::span<const PointLoad> points) {
    PlacedLoads placed;
    placed.span.resize(beam.spv.size());
    for (const PointLoad& load : points) {
        double x = load.x - beam.konsv;
        if (x < 0) {
            placed.left.push_back({-x, load.p});
            continue;
        }
        std::size_t i = 0;
        while (i < beam.spv.size() && x > beam.spv[i])
            x -= beam.spv[i++];
        (i < beam.spv.size() ? placed.span[i] : placed.right).push_back({x, load.p});
    }
    for (auto& loads : placed.span)
        std::ranges::stable_sort(loads, {}, &PointLoad::x);
    return placed;
}

std::vector<double> supportMoments(const Beam& beam, const Loading& loading) {
    const std::size_t n = beam.spv.size();
    std::vector<double> moments(n + 1);
    moments[0] = cantileverMoment(loading.q.front(), beam.konsv, loading.points.left);
    moments[n] = cantileverMoment(loading.q.back(), beam.konsh, loading.points.right);

    // Forward elimination of the tridiagonal equations, one for each inner support, then back.
    std::vector<double> upper(n + 1), rest(n + 1);
    rest[0] = moments[0];
    for (std::size_t i = 1; i < n; ++i) {
        const double la = beam.spv[i - 1];
        const double lb = beam.spv[i];
        const double right = -termAt(End::right, la, loading.q[i - 1], loading.points.span[i - 1]) -
                             termAt(End::left, lb, loading.q[i], loading.points.span[i]) - la * rest[i - 1];
        const double diagonal = 2 * (la + lb) - la * upper[i - 1];
        upper[i] = lb / diagonal;
        rest[i] = right / diagonal;
    }
    for (std::size_t i = n; i-- > 1;)
        moments[i] = rest[i] - upper[i] * moments[i + 1];
    return moments;
}

std::vector<double> reactions(const Beam& beam, const Loading& loading, std::span<const double> moments) {
    const std::size_t n = beam.spv.size();
    std::vector<double> forces(n + 1);
    forces[0] = loadOn(loading.q.front(), beam.konsv, loading.points.left);
    forces[n] = loadOn(loading.q.back(), beam.konsh, loading.points.right);
    for (std::size_t i = 0; i < n; ++i) {
        const auto& points = loading.points.span[i];
        const double shear = startShear({beam.spv[i], loading.q[i], moments[i], moments[i + 1], points});
        forces[i] += shear;
        forces[i + 1] += loadOn(loading.q[i], beam.spv[i], points) - shear;
    }
    return forces;
}

double momentAt(const SpanState& span, double x) {
    double moment = span.left + startShear(span) * x - span.q * x * x / 2;
    for (const PointLoad& load : span.points) {
        if (load.x < x) moment -= load.p * (x - load.x);
    }
    return moment;
}

void FieldMoments::include(const FieldMoments& other) {
    if (isLarger(other.max.moment, max.moment)) max = other.max;
    if (isLarger(-other.min.moment, -min.moment)) min = other.min;
}

FieldMoments fieldMoments(const SpanState& span) {
    const FieldMoment start{span.left, 0, Place::support};
    FieldMoments found{start, start};
    const auto consider = [&](double moment, double x, Place place) {
        const FieldMoment field{moment, x, place};
        found.include({field, field});
    };
    consider(span.right, span.length, Place::support);

    double x = 0;
    double moment = span.left;
    double shear = startShear(span);
    const auto goTo = [&](double end) {
        const double length = end - x;
        if (const double zero = span.q != 0 ? shear / span.q : 0; zero > 0 && zero < length)
            consider(moment + shear * zero / 2, x + zero, Place::zeroShear);
        moment += (shear - span.q * length / 2) * length;
        shear -= span.q * length;
        x = end;
    };
    for (const PointLoad& load : span.points) {
        goTo(load.x);
        if (load.x > 0 && load.x < span.length) consider(moment, x, Place::underLoad);
        shear -= load.p;
    }
    goTo(span.length);
    return found;
}

} // namespace varno::engine
