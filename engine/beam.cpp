#include "engine/beam.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace varnowb {
namespace {

double cantileverMoment(double q, double length, const std::vector<PointLoad>& points) {
    double moment = -q * length * length / 2;
    for (const auto& load : points)
        moment -= load.p * load.x;
    return moment;
}

double cantileverLoad(double q, double length, const std::vector<PointLoad>& points) {
    double sum = q * length;
    for (const auto& load : points)
        sum += load.p;
    return sum;
}

// The span's term in the equation of the support at its right end, or at its left end.
double termAtRight(double length, double q, const std::vector<PointLoad>& points) {
    double term = q * length * length * length / 4;
    for (const auto& load : points)
        term += load.p * load.x * (length * length - load.x * load.x) / length;
    return term;
}

double termAtLeft(double length, double q, const std::vector<PointLoad>& points) {
    double term = q * length * length * length / 4;
    for (const auto& load : points) {
        const double z = length - load.x;
        term += load.p * z * (length * length - z * z) / length;
    }
    return term;
}

class Extremes {
  public:
    void consider(double moment, double x, Place at) {
        if (first_ || isLarger(moment, found_.max.moment)) found_.max = {moment, x, at};
        if (first_ || isLarger(-moment, -found_.min.moment)) found_.min = {moment, x, at};
        first_ = false;
    }
    const FieldMoments& found() const { return found_; }

  private:
    FieldMoments found_;
    bool first_ = true;
};

} // namespace

PlacedLoads place(const Beam& beam, std::span<const PointLoad> points) {
    PlacedLoads placed;
    placed.span.resize(beam.spv.size());
    for (const auto& load : points) {
        double x = load.x - beam.konsv;
        if (x < 0) {
            placed.left.push_back({-x, load.p});
            continue;
        }
        std::size_t i = 0;
        while (i < beam.spv.size() && x > beam.spv[i])
            x -= beam.spv[i++];
        if (i < beam.spv.size())
            placed.span[i].push_back({x, load.p});
        else
            placed.right.push_back({x, load.p});
    }
    for (auto& loads : placed.span)
        std::stable_sort(loads.begin(), loads.end(),
                         [](const PointLoad& a, const PointLoad& b) { return a.x < b.x; });
    return placed;
}

std::vector<double> supportMoments(const Beam& beam, const Loading& loading) {
    const std::size_t n = beam.spv.size();
    std::vector<double> moments(n + 1);
    moments[0] = cantileverMoment(loading.qv, beam.konsv, loading.points.left);
    moments[n] = cantileverMoment(loading.qh, beam.konsh, loading.points.right);

    // Forward elimination of the tridiagonal equations, one for each inner support, then back.
    std::vector<double> upper(n + 1), rest(n + 1);
    for (std::size_t i = 1; i < n; ++i) {
        const double la = beam.spv[i - 1];
        const double lb = beam.spv[i];
        double right = -termAtRight(la, loading.q[i - 1], loading.points.span[i - 1]) -
                       termAtLeft(lb, loading.q[i], loading.points.span[i]);
        double diagonal = 2 * (la + lb);
        if (i == 1) {
            right -= la * moments[0];
        } else {
            diagonal -= la * upper[i - 1];
            right -= la * rest[i - 1];
        }
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
    forces[0] = cantileverLoad(loading.qv, beam.konsv, loading.points.left);
    forces[n] = cantileverLoad(loading.qh, beam.konsh, loading.points.right);
    for (std::size_t i = 0; i < n; ++i) {
        const auto& points = loading.points.span[i];
        const double shear = startShear({beam.spv[i], loading.q[i], moments[i], moments[i + 1], points});
        forces[i] += shear;
        forces[i + 1] += cantileverLoad(loading.q[i], beam.spv[i], points) - shear;
    }
    return forces;
}

double startShear(const SpanState& span) {
    double shear = (span.right - span.left) / span.length + span.q * span.length / 2;
    for (const auto& load : span.points)
        shear += load.p * (span.length - load.x) / span.length;
    return shear;
}

double momentAt(const SpanState& span, double x) {
    double moment = span.left + startShear(span) * x - span.q * x * x / 2;
    for (const auto& load : span.points)
        if (load.x < x) moment -= load.p * (x - load.x);
    return moment;
}

bool isLarger(double moment, double best) {
    return moment - best > 1e-12 * std::max(std::abs(moment), std::abs(best));
}

FieldMoments fieldMoments(const SpanState& span) {
    Extremes extremes;
    extremes.consider(span.left, 0, Place::Support);
    extremes.consider(span.right, span.length, Place::Support);

    double x = 0;
    double moment = span.left;
    double shear = startShear(span);
    const auto goTo = [&](double end) {
        const double length = end - x;
        if (const double zero = span.q != 0 ? shear / span.q : 0; zero > 0 && zero < length)
            extremes.consider(moment + shear * zero / 2, x + zero, Place::ZeroShear);
        moment += (shear - span.q * length / 2) * length;
        shear -= span.q * length;
        x = end;
    };
    for (const auto& load : span.points) {
        goTo(load.x);
        if (load.x > 0 && load.x < span.length) extremes.consider(moment, x, Place::UnderLoad);
        shear -= load.p;
    }
    goTo(span.length);
    return extremes.found();
}

} // namespace varnowb
