#include "engine/envelope.h"

#include <algorithm>
#include <limits>

namespace varnowb {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

void include(Range& range, double value) {
    range.max = std::max(range.max, value);
    range.min = std::min(range.min, value);
}

class Sweep {
  public:
    Sweep(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl);
    Envelope run();

  private:
    Loading caseOf(std::vector<double> q, PlacedLoads points) const;
    void evaluate(unsigned pattern);
    void evaluateCurve(std::size_t i, bool loaded);

    const Beam& beam_;
    const DesignLoads& loads_;
    std::size_t spans_;
    std::vector<double> always_;                // support moments of what is always there
    std::vector<std::vector<double>> variable_; // support moments of the variable load of each span
    // Moments at the curve points of the span as a simple beam: without and with its variable load.
    std::vector<std::array<Curve, 2>> simple_;
    std::vector<double> upl_;
    Loading current_;
    std::vector<double> moments_;
    Envelope result_;
};

Sweep::Sweep(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl)
    : beam_(beam), loads_(loads), spans_(beam.spv.size()), upl_(upl) {
    current_ = caseOf(loads.permanent, place(beam, loads.lines));
    always_ = supportMoments(beam, current_);
    for (std::size_t j = 0; j < spans_; ++j) {
        std::vector<double> q(spans_);
        q[j] = loads.variable[j];
        variable_.push_back(supportMoments(beam, caseOf(q, place(beam, {}))));
    }
    result_.supportMoment.assign(spans_ + 1, {-kInfinity, kInfinity});
    result_.reaction.assign(spans_ + 1, {-kInfinity, kInfinity});
    result_.upper.resize(spans_);
    result_.lower.resize(spans_);
    simple_.resize(spans_);
    for (std::size_t i = 0; i < spans_; ++i) {
        result_.upper[i].fill(-kInfinity);
        result_.lower[i].fill(kInfinity);
        result_.dx.push_back((beam.spv[i] - upl[i]) / (kCurvePoints - 1));
        for (const bool loaded : {false, true}) {
            const double q = loads.permanent[i] + (loaded ? loads.variable[i] : 0);
            const SpanState span{beam.spv[i], q, 0, 0, current_.points.span[i]};
            for (std::size_t k = 0; k < kCurvePoints; ++k)
                simple_[i][loaded][k] = momentAt(span, upl[i] + static_cast<double>(k) * result_.dx[i]);
        }
    }
}

Loading Sweep::caseOf(std::vector<double> q, PlacedLoads points) const {
    const double qv = q.front();
    const double qh = q.back();
    return {std::move(q), qv, qh, std::move(points)};
}

void Sweep::evaluateCurve(std::size_t i, bool loaded) {
    const auto& simple = simple_[i][loaded];
    const double slope = (moments_[i + 1] - moments_[i]) / beam_.spv[i];
    for (std::size_t k = 0; k < kCurvePoints; ++k) {
        const double x = upl_[i] + static_cast<double>(k) * result_.dx[i];
        const double moment = simple[k] + moments_[i] + slope * x;
        result_.upper[i][k] = std::max(result_.upper[i][k], moment);
        result_.lower[i][k] = std::min(result_.lower[i][k], moment);
    }
}

void Sweep::evaluate(unsigned pattern) {
    moments_ = always_;
    for (std::size_t j = 0; j < spans_; ++j) {
        const bool loaded = (pattern >> j & 1U) != 0;
        current_.q[j] = loads_.permanent[j] + (loaded ? loads_.variable[j] : 0);
        if (loaded)
            for (std::size_t i = 0; i <= spans_; ++i)
                moments_[i] += variable_[j][i];
    }
    current_.qv = current_.q.front();
    current_.qh = current_.q.back();

    const auto forces = reactions(beam_, current_, moments_);
    for (std::size_t i = 0; i <= spans_; ++i) {
        include(result_.supportMoment[i], moments_[i]);
        include(result_.reaction[i], forces[i]);
    }
    for (std::size_t i = 0; i < spans_; ++i) {
        evaluateCurve(i, (pattern >> i & 1U) != 0);
        const auto found = fieldMoments(
            {beam_.spv[i], current_.q[i], moments_[i], moments_[i + 1], current_.points.span[i]});
        if (pattern == 0) {
            result_.field.push_back(found);
        } else {
            auto& best = result_.field[i];
            if (isLarger(found.max.moment, best.max.moment)) best.max = found.max;
            if (isLarger(-found.min.moment, -best.min.moment)) best.min = found.min;
        }
    }
}

Envelope Sweep::run() {
    const unsigned patterns = 1U << spans_;
    for (unsigned pattern = 0; pattern < patterns; ++pattern)
        evaluate(pattern);
    result_.patterns = static_cast<int>(patterns);
    return std::move(result_);
}

} // namespace

Envelope envelope(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl) {
    return Sweep{beam, loads, upl}.run();
}

} // namespace varnowb
