#include "engine/envelope.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace varno::engine {

namespace {

// Span j has its variable load when bit j is set.
using Pattern = unsigned;

bool loaded(Pattern pattern, std::size_t span) {
    return (pattern >> span & 1U) != 0;
}

enum class Extreme { largest, smallest };

// Where c + b x + a x^2 is zero. Without a zero, or with less than two, there are infinities or no numbers among them.
std::array<double, 2> zeros(double c, double b, double a) {
    const double t = -(b + std::copysign(std::sqrt(b * b - 4 * a * c), b)) / 2;
    return {t / a, c / t};
}

class Extremes {
  public:
    Extremes(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl)
        : beam_(beam), loads_(loads), upl_(upl), spans_(beam.spv.size()), points_(place(beam, loads.lines)),
          always_(supportMoments(beam, {loads.permanent, points_})) {
        for (std::size_t j = 0; j < spans_; ++j) {
            Loading alone{std::vector<double>(spans_), place(beam, {})};
            alone.q[j] = loads.variable[j];
            moments_.push_back(supportMoments(beam, alone));
            reactions_.push_back(reactions(beam, alone, moments_.back()));
        }
    }

    Envelope run() const {
        Envelope result;
        result.patterns = 1 << spans_;
        for (std::size_t i = 0; i <= spans_; ++i) {
            result.supportMoment.push_back(range([&](std::size_t j) { return moments_[j][i]; },
                                                 [&](Pattern pattern) { return momentOver(i, pattern); }));
            result.reaction.push_back(range([&](std::size_t j) { return reactions_[j][i]; },
                                            [&](Pattern pattern) { return reactionsTo(pattern)[i]; }));
        }
        for (std::size_t i = 0; i < spans_; ++i) {
            result.field.push_back(field(i));
            result.dx.push_back((beam_.spv[i] - upl_[i]) / (curvePoints - 1));
            addCurves(i, result);
        }
        return result;
    }

  private:
    // The pattern of the loads whose effect alone has the sign.
    template <typename Effect>
    Pattern patternFor(Extreme extreme, Effect effect) const {
        Pattern pattern = 0;
        for (std::size_t j = 0; j < spans_; ++j) {
            if (extreme == Extreme::largest ? effect(j) > 0 : effect(j) < 0) pattern |= 1U << j;
        }
        return pattern;
    }

    template <typename Effect, typename Value>
    Range range(Effect effect, Value value) const {
        return {value(patternFor(Extreme::largest, effect)), value(patternFor(Extreme::smallest, effect))};
    }

    double momentOver(std::size_t support, Pattern pattern) const {
        double moment = always_[support];
        for (std::size_t j = 0; j < spans_; ++j) {
            if (loaded(pattern, j)) moment += moments_[j][support];
        }
        return moment;
    }

    std::vector<double> reactionsTo(Pattern pattern) const {
        Loading loading{{}, points_};
        std::vector<double> moments;
        for (std::size_t i = 0; i < spans_; ++i)
            loading.q.push_back(loadOn(i, pattern));
        for (std::size_t i = 0; i <= spans_; ++i)
            moments.push_back(momentOver(i, pattern));
        return reactions(beam_, loading, moments);
    }

    double loadOn(std::size_t span, Pattern pattern) const {
        return loads_.permanent[span] + (loaded(pattern, span) ? loads_.variable[span] : 0);
    }

    // The moment in a span that the variable load of span j alone gives: c + b x + a x^2.
    struct Effect {
        double c, b, a;
        double at(double x) const { return c + (b + a * x) * x; }
    };
    Effect effectIn(std::size_t span, std::size_t j) const {
        const double q = j == span ? loads_.variable[j] : 0;
        const double length = beam_.spv[span];
        const double left = moments_[j][span];
        return {left, (moments_[j][span + 1] - left) / length + q * length / 2, -q / 2};
    }
    Pattern patternAt(std::size_t span, double x, Extreme extreme) const {
        return patternFor(extreme, [&](std::size_t j) { return effectIn(span, j).at(x); });
    }

    // Between two places where the effect of a load changes its sign one pattern gives the largest moment everywhere.
    FieldMoments field(std::size_t span) const {
        std::vector<double> borders{0, beam_.spv[span]};
        for (std::size_t j = 0; j < spans_; ++j) {
            const Effect effect = effectIn(span, j);
            for (const double x : zeros(effect.c, effect.b, effect.a)) {
                if (x > 0 && x < beam_.spv[span]) borders.push_back(x);
            }
        }
        std::ranges::sort(borders);
        // In the order of their numbers, from that without load on: of equal moments the first stays.
        std::set<Pattern> patterns;
        for (std::size_t b = 1; b < borders.size(); ++b) {
            for (const Extreme extreme : {Extreme::largest, Extreme::smallest})
                patterns.insert(patternAt(span, (borders[b - 1] + borders[b]) / 2, extreme));
        }
        FieldMoments found = fieldMoments(state(span, 0));
        for (const Pattern pattern : patterns)
            found.include(fieldMoments(state(span, pattern)));
        return found;
    }

    SpanState state(std::size_t span, Pattern pattern) const {
        return {beam_.spv[span], loadOn(span, pattern), momentOver(span, pattern),
                momentOver(span + 1, pattern), points_.span[span]};
    }

    void addCurves(std::size_t span, Envelope& result) const {
        Curve& upper = result.upper.emplace_back();
        Curve& lower = result.lower.emplace_back();
        for (std::size_t k = 0; k < curvePoints; ++k) {
            const double x = upl_[span] + static_cast<double>(k) * result.dx[span];
            const Range found = range([&](std::size_t j) { return effectIn(span, j).at(x); },
                                      [&](Pattern pattern) { return curveMoment(span, x, pattern); });
            upper[k] = found.max;
            lower[k] = found.min;
        }
    }

    // The span as a simple beam, and the moments at its ends.
    double curveMoment(std::size_t span, double x, Pattern pattern) const {
        SpanState simple = state(span, pattern);
        const double slope = (simple.right - simple.left) / simple.length;
        const double ends = std::exchange(simple.left, 0);
        simple.right = 0;
        return momentAt(simple, x) + ends + slope * x;
    }

    const Beam& beam_;
    const DesignLoads& loads_;
    const std::vector<double>& upl_;
    std::size_t spans_;
    PlacedLoads points_;
    std::vector<double> always_;                           // support moments of what is always there
    std::vector<std::vector<double>> moments_, reactions_; // of the variable load of each span alone
};

} // namespace

Envelope envelope(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl) {
    return Extremes(beam, loads, upl).run();
}

} // namespace varno::engine
