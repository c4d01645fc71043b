#include "tests/engine/enumeration.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace varno::engine::test {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

void include(Range& range, double value) {
    range.max = std::max(range.max, value);
    range.min = std::min(range.min, value);
}

class Sweep {
  public:
    Sweep(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl)
        : beam_(beam), loads_(loads), upl_(upl),
          spans_(beam.spv.size()), current_{loads.permanent, place(beam, loads.lines)},
          always_(supportMoments(beam, current_)), simple_(spans_) {
        result_.supportMoment.assign(spans_ + 1, {-infinity, infinity});
        result_.reaction.assign(spans_ + 1, {-infinity, infinity});
        result_.upper.resize(spans_);
        result_.lower.resize(spans_);
        for (std::size_t i = 0; i < spans_; ++i) {
            std::vector<double> alone(spans_);
            alone[i] = loads.variable[i];
            variable_.push_back(supportMoments(beam, {alone, place(beam, {})}));
            result_.upper[i].fill(-infinity);
            result_.lower[i].fill(infinity);
            result_.dx.push_back((beam.spv[i] - upl[i]) / (curvePoints - 1));
            for (const bool loaded : {false, true}) {
                const double q = loads.permanent[i] + (loaded ? loads.variable[i] : 0);
                const SpanState span{beam.spv[i], q, 0, 0, current_.points.span[i]};
                for (std::size_t k = 0; k < curvePoints; ++k)
                    simple_[i][loaded][k] = momentAt(span, curveX(i, k));
            }
        }
    }

    Envelope run() {
        const unsigned patterns = 1U << spans_;
        for (unsigned pattern = 0; pattern < patterns; ++pattern)
            evaluate(pattern);
        result_.patterns = static_cast<int>(patterns);
        return std::move(result_);
    }

  private:
    void evaluate(unsigned pattern) {
        const auto loaded = [pattern](std::size_t span) { return (pattern >> span & 1U) != 0; };
        moments_ = always_;
        for (std::size_t j = 0; j < spans_; ++j) {
            current_.q[j] = loads_.permanent[j] + (loaded(j) ? loads_.variable[j] : 0);
            for (std::size_t i = 0; loaded(j) && i <= spans_; ++i)
                moments_[i] += variable_[j][i];
        }
        const auto forces = reactions(beam_, current_, moments_);
        for (std::size_t i = 0; i <= spans_; ++i) {
            include(result_.supportMoment[i], moments_[i]);
            include(result_.reaction[i], forces[i]);
        }
        for (std::size_t i = 0; i < spans_; ++i) {
            evaluateCurve(i, loaded(i));
            const FieldMoments found = fieldMoments(
                {beam_.spv[i], current_.q[i], moments_[i], moments_[i + 1], current_.points.span[i]});
            if (pattern == 0) result_.field.push_back(found);
            result_.field[i].include(found);
        }
    }

    void evaluateCurve(std::size_t i, bool loaded) {
        const double slope = (moments_[i + 1] - moments_[i]) / beam_.spv[i];
        for (std::size_t k = 0; k < curvePoints; ++k) {
            const double moment = simple_[i][loaded][k] + moments_[i] + slope * curveX(i, k);
            result_.upper[i][k] = std::max(result_.upper[i][k], moment);
            result_.lower[i][k] = std::min(result_.lower[i][k], moment);
        }
    }

    double curveX(std::size_t i, std::size_t k) const {
        return upl_[i] + static_cast<double>(k) * result_.dx[i];
    }

    const Beam& beam_;
    const DesignLoads& loads_;
    const std::vector<double>& upl_;
    std::size_t spans_;
    Loading current_;
    std::vector<double> always_;                // support moments of what is always there
    std::vector<std::vector<double>> variable_; // support moments of the variable load of each span
    // Moments at the curve points of the span as a simple beam: without and with its variable load.
    std::vector<std::array<Curve, 2>> simple_;
    std::vector<double> moments_;
    Envelope result_;
};

} // namespace

Envelope enumerated(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl) {
    return Sweep(beam, loads, upl).run();
}

} // namespace varno::engine::test
