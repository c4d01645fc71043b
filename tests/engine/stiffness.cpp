// Element stiffness and fixed-end forces: any textbook of matrix structural analysis, for instance
// J. S. Przemieniecki, Theory of Matrix Structural Analysis (1968), chapter 5.
#include "tests/engine/stiffness.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace varno::engine::test {
namespace {

constexpr double same = 1e-7;

using Element = std::array<std::array<double, 4>, 4>;

// EI = 1; deflections downwards, rotations with the slope of the deflection.
Element elementStiffness(double l) {
    const double a = 12 / (l * l * l);
    const double b = 6 / (l * l);
    const double c = 4 / l;
    const double d = 2 / l;
    return {{{a, b, -a, b}, {b, c, -b, d}, {-a, -b, a, -b}, {b, d, -b, c}}};
}

std::array<double, 4> elementLoad(double q, double l) {
    return {q * l / 2, q * l * l / 12, q * l / 2, -q * l * l / 12};
}

std::vector<double> gauss(std::vector<std::vector<double>> a, std::vector<double> b) {
    const std::size_t n = b.size();
    for (std::size_t p = 0; p < n; ++p) {
        std::size_t best = p;
        for (std::size_t r = p + 1; r < n; ++r)
            if (std::abs(a[r][p]) > std::abs(a[best][p])) best = r;
        std::swap(a[p], a[best]);
        std::swap(b[p], b[best]);
        for (std::size_t r = p + 1; r < n; ++r) {
            const double f = a[r][p] / a[p][p];
            if (f == 0) continue;
            for (std::size_t c = p; c < n; ++c)
                a[r][c] -= f * a[p][c];
            b[r] -= f * b[p];
        }
    }
    for (std::size_t p = n; p-- > 0;) {
        for (std::size_t c = p + 1; c < n; ++c)
            b[p] -= a[p][c] * b[c];
        b[p] /= a[p][p];
    }
    return b;
}

} // namespace

StiffnessBeam::StiffnessBeam(const Beam& beam, std::vector<double> nodes) : x_(std::move(nodes)) {
    double x = beam.konsv;
    supportX_.push_back(x);
    for (const double length : beam.spv)
        supportX_.push_back(x += length);
    x_.insert(x_.end(), supportX_.begin(), supportX_.end());
    x_.push_back(0);
    x_.push_back(x + beam.konsh);
    std::sort(x_.begin(), x_.end());
    x_.erase(std::unique(x_.begin(), x_.end(), [](double a, double b) { return b - a < same; }), x_.end());
    for (const double support : supportX_)
        supports_.push_back(nodeAt(support));

    k_.assign(2 * x_.size(), std::vector<double>(2 * x_.size()));
    for (std::size_t e = 0; e + 1 < x_.size(); ++e) {
        const auto element = elementStiffness(x_[e + 1] - x_[e]);
        for (std::size_t r = 0; r < 4; ++r)
            for (std::size_t c = 0; c < 4; ++c)
                k_[2 * e + r][2 * e + c] += element[r][c];
    }
}

std::size_t StiffnessBeam::nodeAt(double x) const {
    for (std::size_t i = 0; i < x_.size(); ++i)
        if (std::abs(x_[i] - x) < same) return i;
    throw std::runtime_error("no node there");
}

StiffnessBeam::Answer StiffnessBeam::solve(const std::vector<double>& q, double qv, double qh,
                                           const std::vector<PointLoad>& points) const {
    std::vector<double> load(2 * x_.size());
    std::vector<double> onElement(x_.size() - 1);
    for (std::size_t e = 0; e + 1 < x_.size(); ++e) {
        const double middle = (x_[e] + x_[e + 1]) / 2;
        const auto at = std::upper_bound(supportX_.begin(), supportX_.end(), middle) - supportX_.begin();
        onElement[e] = at == 0 ? qv : middle > supportX_.back() ? qh : q[static_cast<std::size_t>(at - 1)];
        const auto forces = elementLoad(onElement[e], x_[e + 1] - x_[e]);
        for (std::size_t r = 0; r < 4; ++r)
            load[2 * e + r] += forces[r];
    }
    for (const auto& point : points)
        load[2 * nodeAt(point.x)] += point.p;

    auto held = k_;
    auto right = load;
    for (const auto node : supports_) {
        held[2 * node].assign(right.size(), 0);
        held[2 * node][2 * node] = 1;
        right[2 * node] = 0;
    }
    const auto u = gauss(held, right);

    Answer answer;
    answer.x = x_;
    answer.moment.assign(x_.size(), 0);
    for (std::size_t e = 0; e + 1 < x_.size(); ++e) {
        const double l = x_[e + 1] - x_[e];
        const auto element = elementStiffness(l);
        const auto fixed = elementLoad(onElement[e], l);
        double end = -fixed[1];
        for (std::size_t c = 0; c < 4; ++c)
            end += element[1][c] * u[2 * e + c];
        answer.moment[e] = end; // the couple along the slope of a downward deflection sags the left end
        double far = -fixed[3];
        for (std::size_t c = 0; c < 4; ++c)
            far += element[3][c] * u[2 * e + c];
        answer.moment[e + 1] = -far;
    }
    for (const auto node : supports_) {
        double force = -load[2 * node];
        for (std::size_t c = 0; c < u.size(); ++c)
            force += k_[2 * node][c] * u[c];
        answer.reaction.push_back(-force);
    }
    return answer;
}

} // namespace varno::engine::test
