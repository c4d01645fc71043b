// Closed forms: Clapeyron's three-moment equation worked by hand for the cases named, and the tables of
// simple and continuous beams with equal spans found in the handbooks: "Byggformler och tabeller" (P.
// Johannesson, B. Vretblad), "Roark's Formulas for Stress and Strain" (W. C. Young) and the AISC "Manual of
// Steel Construction", beam diagrams.
#include "engine/beam.h"

#include "tests/engine/stiffness.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace varno::engine {
namespace {

SpanState spanOf(const Beam& beam, const Loading& loading, const std::vector<double>& m, std::size_t i) {
    return {beam.spv[i], loading.q[i], m[i], m[i + 1], loading.points.span[i]};
}

struct Solved {
    explicit Solved(Beam b, Loading l)
        : beam(std::move(b)), loading(std::move(l)), moments(supportMoments(beam, loading)),
          forces(reactions(beam, loading, moments)) {}
    FieldMoments field(std::size_t span) const { return fieldMoments(spanOf(beam, loading, moments, span)); }

    Beam beam;
    Loading loading;
    std::vector<double> moments, forces;
};

Solved solved(const Beam& beam, std::vector<double> q, const std::vector<PointLoad>& points = {}) {
    return Solved{beam, {std::move(q), place(beam, points)}};
}

constexpr double small = 1e-10;

TEST(EngineBeam, SimpleSpanWithUniformLoad) {
    const double q = 7, l = 5.4;
    const auto s = solved({0, 0, {l}}, {q});
    const auto field = s.field(0);
    EXPECT_NEAR(field.max.moment, q * l * l / 8, small);
    EXPECT_NEAR(field.max.x, l / 2, small);
    EXPECT_EQ(field.max.place, Place::zeroShear);
    EXPECT_NEAR(field.min.moment, 0, small);
    EXPECT_EQ(field.min.place, Place::support);
    EXPECT_NEAR(s.forces[0], q * l / 2, small);
    EXPECT_NEAR(s.forces[1], q * l / 2, small);
    EXPECT_NEAR(momentAt(spanOf(s.beam, s.loading, s.moments, 0), l / 4), 3 * q * l * l / 32, small);
}

TEST(EngineBeam, SimpleSpanWithPointLoadInTheMiddle) {
    const double p = 12, l = 6;
    const auto s = solved({0, 0, {l}}, {0}, {{l / 2, p}});
    EXPECT_NEAR(s.field(0).max.moment, p * l / 4, small);
    EXPECT_NEAR(s.field(0).max.x, l / 2, small);
    EXPECT_EQ(s.field(0).max.place, Place::underLoad);
}

TEST(EngineBeam, SimpleSpanWithPointLoadOffCentre) {
    const double p = 12, l = 6, a = 1.7, b = l - a;
    const auto s = solved({0, 0, {l}}, {0}, {{a, p}});
    EXPECT_NEAR(s.field(0).max.moment, p * a * b / l, small);
    EXPECT_NEAR(s.field(0).max.x, a, small);
    EXPECT_NEAR(s.forces[0], p * b / l, small);
    EXPECT_NEAR(s.forces[1], p * a / l, small);
}

TEST(EngineBeam, SimpleSpanWithBothLoads) {
    // Shear to the left of the load: R - q x with R = q l / 2 + P b / l. With a small load off centre it is
    // zero beside the load: x = (R - P) / q, moment M = R x - P (x - a) - q x^2 / 2.
    const double q = 10, l = 6, p = 3, a = 1;
    const double r = q * l / 2 + p * (l - a) / l;
    const double x = (r - p) / q;
    const auto s = solved({0, 0, {l}}, {q}, {{a, p}});
    EXPECT_EQ(s.field(0).max.place, Place::zeroShear);
    EXPECT_NEAR(s.field(0).max.x, x, small);
    EXPECT_NEAR(s.field(0).max.moment, r * x - p * (x - a) - q * x * x / 2, small);
}

TEST(EngineBeam, TwoEqualSpans) {
    const double q = 4, l = 5;
    const auto s = solved({0, 0, {l, l}}, {q, q});
    EXPECT_NEAR(s.moments[1], -q * l * l / 8, small);
    EXPECT_NEAR(s.field(0).max.moment, 9 * q * l * l / 128, small);
    EXPECT_NEAR(s.field(0).max.x, 3 * l / 8, small);
    EXPECT_NEAR(s.field(1).max.x, 5 * l / 8, small);
    EXPECT_NEAR(s.forces[0], 3 * q * l / 8, small);
    EXPECT_NEAR(s.forces[1], 10 * q * l / 8, small);
}

TEST(EngineBeam, TwoEqualSpansOneLoaded) {
    const double q = 4, l = 5;
    const auto s = solved({0, 0, {l, l}}, {q, 0});
    EXPECT_NEAR(s.moments[1], -q * l * l / 16, small);
    EXPECT_NEAR(s.field(0).max.moment, 49 * q * l * l / 512, small);
    EXPECT_NEAR(s.field(0).max.x, 7 * l / 16, small);
    EXPECT_NEAR(s.forces[2], -q * l / 16, small);
    EXPECT_EQ(s.field(1).max.place, Place::support);
}

TEST(EngineBeam, TwoEqualSpansWithPointLoads) {
    const double p = 16, l = 4;
    const auto one = solved({0, 0, {l, l}}, {0, 0}, {{l / 2, p}});
    EXPECT_NEAR(one.moments[1], -3 * p * l / 32, small);
    EXPECT_NEAR(one.field(0).max.moment, 13 * p * l / 64, small);
    EXPECT_NEAR(one.forces[0], 13 * p / 32, small);
    EXPECT_NEAR(one.forces[1], 22 * p / 32, small);
    EXPECT_NEAR(one.forces[2], -3 * p / 32, small);
    const auto both = solved({0, 0, {l, l}}, {0, 0}, {{l / 2, p}, {l + l / 2, p}});
    EXPECT_NEAR(both.moments[1], -3 * p * l / 16, small);
    EXPECT_NEAR(both.field(1).max.moment, 5 * p * l / 32, small);
}

TEST(EngineBeam, PointLoadAnywhereInTheFirstOfTwoSpans) {
    // M1 = -P a b (l + a) / (4 l^2) with a from the outer support.
    const double p = 9, l = 5, a = 1.3, b = l - a;
    EXPECT_NEAR(solved({0, 0, {l, l}}, {0, 0}, {{a, p}}).moments[1], -p * a * b * (l + a) / (4 * l * l),
                small);
    EXPECT_NEAR(solved({0, 0, {l, l}}, {0, 0}, {{2 * l - a, p}}).moments[1],
                -p * a * b * (l + a) / (4 * l * l), small);
}

TEST(EngineBeam, TwoUnequalSpans) {
    // M1 = -q (l1^3 + l2^3) / (8 (l1 + l2)).
    const double q = 3, l1 = 4, l2 = 6.5;
    EXPECT_NEAR(solved({0, 0, {l1, l2}}, {q, q}).moments[1],
                -q * (l1 * l1 * l1 + l2 * l2 * l2) / (8 * (l1 + l2)), small);
}

TEST(EngineBeam, ThreeEqualSpans) {
    const double q = 1, l = 1;
    const Beam beam{0, 0, {l, l, l}};
    const auto all = solved(beam, {q, q, q});
    EXPECT_NEAR(all.moments[1], -0.1, small);
    EXPECT_NEAR(all.moments[2], -0.1, small);
    EXPECT_NEAR(all.field(0).max.moment, 0.08, small);
    EXPECT_NEAR(all.field(0).max.x, 0.4, small);
    EXPECT_NEAR(all.field(1).max.moment, 0.025, small);
    EXPECT_NEAR(all.forces[0], 0.4, small);
    EXPECT_NEAR(all.forces[1], 1.1, small);

    const auto outer = solved(beam, {q, 0, q});
    EXPECT_NEAR(outer.moments[1], -0.05, small);
    EXPECT_NEAR(outer.field(0).max.moment, 0.45 * 0.45 / 2, small); // 0.101
    EXPECT_NEAR(outer.field(0).max.x, 0.45, small);

    const auto middle = solved(beam, {0, q, 0});
    EXPECT_NEAR(middle.field(1).max.moment, 0.075, small);

    const auto pair = solved(beam, {q, q, 0});
    EXPECT_NEAR(pair.moments[1], -7.0 / 60, small); // 0.117
    EXPECT_NEAR(pair.moments[2], -1.0 / 30, small); // 0.033
}

TEST(EngineBeam, FourEqualSpans) {
    const auto s = solved({0, 0, {1, 1, 1, 1}}, {1, 1, 1, 1});
    EXPECT_NEAR(s.moments[1], -3.0 / 28, small);
    EXPECT_NEAR(s.moments[2], -1.0 / 14, small);
    EXPECT_NEAR(s.forces[0], 11.0 / 28, small);
    EXPECT_NEAR(s.forces[1], 32.0 / 28, small);
    EXPECT_NEAR(s.forces[2], 26.0 / 28, small);
}

TEST(EngineBeam, CantileversAndOneSpan) {
    // Statics: the end moments are the cantilevers' own, the field moment q l^2 / 8 less their mean, for c =
    // c'.
    const double q = 5, l = 4, c = 1.2;
    const auto s = solved({c, c, {l}}, {q});
    EXPECT_NEAR(s.moments[0], -q * c * c / 2, small);
    EXPECT_NEAR(s.moments[1], -q * c * c / 2, small);
    EXPECT_NEAR(s.field(0).max.moment, q * l * l / 8 - q * c * c / 2, small);
    EXPECT_NEAR(s.forces[0], q * (c + l / 2), small);
}

TEST(EngineBeam, PointLoadsOnTheCantilevers) {
    const double p = 8, c = 1.5, l = 4;
    const auto s = solved({c, 1, {l}}, {0}, {{0, p}, {c + l + 1, 2 * p}});
    EXPECT_NEAR(s.moments[0], -p * c, small);
    EXPECT_NEAR(s.moments[1], -2 * p, small);
    EXPECT_NEAR(s.forces[0] + s.forces[1], 3 * p, small);
    EXPECT_NEAR(s.forces[0] * l, p * (c + l) - 2 * p, small); // moments about the right support
}

TEST(EngineBeam, CantileverOfTwoSpans) {
    // Three-moment equation for l, l with M0 = -q c^2 / 2: 4 M1 = -M0 - q l^2 / 2.
    const double q = 2, l = 3, c = 1;
    const auto s = solved({c, 0, {l, l}}, {q, q});
    EXPECT_NEAR(s.moments[1], (q * c * c / 2 - q * l * l / 2) / 4, small);
}

TEST(EngineBeam, AShortSpanBetweenLongOnesLiftsThroughout) {
    const auto s = solved({0, 0, {8, 1, 8}}, {10, 0, 10});
    const auto field = s.field(1);
    EXPECT_EQ(field.max.place, Place::support);
    EXPECT_LT(field.max.moment, 0);
    // Nothing on the middle span: by symmetry the moment is the same all along it.
    EXPECT_NEAR(field.max.moment, field.min.moment, 1e-9);
}

TEST(EngineBeam, AnUpwardLoadTurnsEverythingRound) {
    const double q = 4, l = 5;
    const auto s = solved({0, 0, {l, l}}, {-q, -q});
    EXPECT_NEAR(s.field(0).min.moment, -9 * q * l * l / 128, small);
    EXPECT_NEAR(s.field(0).min.x, 3 * l / 8, small);
    EXPECT_EQ(s.field(0).min.place, Place::zeroShear);
    EXPECT_NEAR(s.field(0).max.moment, q * l * l / 8, small);
    EXPECT_EQ(s.field(0).max.place, Place::support);
}

TEST(EngineBeam, APointLoadOverASupportGoesStraightIntoIt) {
    for (const double x : {0.0, 4.0, 9.0}) {
        const auto s = solved({0, 0, {4, 5}}, {0, 0}, {{x, 10}});
        for (const double moment : s.moments)
            EXPECT_NEAR(moment, 0, small);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(s.forces[i], (x == 0 && i == 0) || (x == 4 && i == 1) || (x == 9 && i == 2) ? 10 : 0,
                        small);
    }
}

TEST(EngineBeam, RoundingMakesNoMomentLarger) {
    const auto beats = [](double moment, double best) {
        FieldMoments found{{best, 1}, {-best, 1}};
        found.include({{moment, 2}, {-moment, 2}});
        EXPECT_EQ(found.max.x, found.min.x);
        return found.max.x == 2;
    };
    EXPECT_FALSE(beats(1 + 1e-15, 1));
    EXPECT_FALSE(beats(-1 + 1e-15, -1));
    EXPECT_FALSE(beats(0, 0));
    EXPECT_TRUE(beats(1 + 1e-9, 1));
    EXPECT_TRUE(beats(1e-9, 0));
    EXPECT_TRUE(beats(-1e-9, -1));
}

TEST(EngineBeam, PointLoadsArePlacedByPosition) {
    const Beam beam{1, 2, {3, 4}};
    const std::vector<PointLoad> points{{0.25, 1}, {3.5, 2}, {2, 3}, {4.5, 4}, {9, 5}};
    const auto placed = place(beam, points);
    ASSERT_EQ(placed.left.size(), 1U);
    EXPECT_DOUBLE_EQ(placed.left[0].x, 0.75);
    ASSERT_EQ(placed.span[0].size(), 2U);
    EXPECT_DOUBLE_EQ(placed.span[0][0].x, 1);
    EXPECT_DOUBLE_EQ(placed.span[0][1].x, 2.5);
    ASSERT_EQ(placed.span[1].size(), 1U);
    EXPECT_DOUBLE_EQ(placed.span[1][0].x, 0.5);
    ASSERT_EQ(placed.right.size(), 1U);
    EXPECT_DOUBLE_EQ(placed.right[0].x, 1);
}

struct RandomBeam {
    Beam beam;
    std::vector<double> q;
    std::vector<PointLoad> points;
    double total = 0, length = 0;
};

RandomBeam randomBeam(std::mt19937& random) {
    std::uniform_real_distribution<double> size(0.5, 9), load(-3, 12), part(0, 1);
    RandomBeam r;
    r.beam.spv.resize(1 + random() % 10);
    for (auto& length : r.beam.spv) {
        length = size(random);
        r.q.push_back(load(random));
    }
    if (part(random) < 0.5) r.beam.konsv = part(random) * 2;
    if (part(random) < 0.5) r.beam.konsh = part(random) * 2;
    r.length = std::accumulate(r.beam.spv.begin(), r.beam.spv.end(), r.beam.konsv + r.beam.konsh);
    r.total = r.q.front() * r.beam.konsv + r.q.back() * r.beam.konsh;
    for (std::size_t i = 0; i < r.q.size(); ++i)
        r.total += r.q[i] * r.beam.spv[i];
    r.points.resize(random() % 6);
    for (auto& point : r.points) {
        point = {part(random) * r.length, load(random)};
        r.total += point.p;
    }
    return r;
}

TEST(EngineBeam, ReactionsBalanceTheLoad) {
    std::mt19937 random{1};
    for (int i = 0; i < 500; ++i) {
        const auto r = randomBeam(random);
        const auto s = solved(r.beam, r.q, r.points);
        EXPECT_NEAR(std::accumulate(s.forces.begin(), s.forces.end(), 0.0), r.total, 1e-9);
        // And about the left end of the slab.
        double moment = r.q.front() * r.beam.konsv * r.beam.konsv / 2;
        double x = r.beam.konsv, held = 0;
        for (std::size_t k = 0; k <= r.q.size(); ++k) {
            held += s.forces[k] * x;
            if (k == r.q.size()) break;
            moment += r.q[k] * r.beam.spv[k] * (x + r.beam.spv[k] / 2);
            x += r.beam.spv[k];
        }
        moment += r.q.back() * r.beam.konsh * (x + r.beam.konsh / 2);
        for (const auto& point : r.points)
            moment += point.p * point.x;
        EXPECT_NEAR(held, moment, 1e-7);
    }
}

TEST(EngineBeam, AgreesWithTheDisplacementMethod) {
    std::mt19937 random{2};
    for (int i = 0; i < 60; ++i) {
        const auto r = randomBeam(random);
        const auto s = solved(r.beam, r.q, r.points);
        std::vector<double> nodes;
        for (const auto& point : r.points)
            nodes.push_back(point.x);
        const test::StiffnessBeam other{r.beam, nodes};
        const auto answer = other.solve(r.q, r.q.front(), r.q.back(), r.points);
        for (std::size_t k = 0; k < s.forces.size(); ++k)
            EXPECT_NEAR(answer.reaction[k], s.forces[k], 1e-6);
        double x = r.beam.konsv;
        for (std::size_t k = 0; k < r.q.size(); x += r.beam.spv[k++]) {
            const auto span = spanOf(r.beam, s.loading, s.moments, k);
            for (std::size_t node = 0; node < answer.x.size(); ++node) {
                if (answer.x[node] < x || answer.x[node] > x + r.beam.spv[k]) continue;
                EXPECT_NEAR(momentAt(span, answer.x[node] - x), answer.moment[node], 1e-6);
            }
        }
    }
}

TEST(EngineBeam, NoSampledMomentBeatsTheExtremes) {
    std::mt19937 random{3};
    for (int i = 0; i < 200; ++i) {
        const auto r = randomBeam(random);
        const auto s = solved(r.beam, r.q, r.points);
        for (std::size_t k = 0; k < r.q.size(); ++k) {
            const auto span = spanOf(r.beam, s.loading, s.moments, k);
            const auto field = fieldMoments(span);
            EXPECT_NEAR(momentAt(span, field.max.x), field.max.moment, 1e-9);
            EXPECT_NEAR(momentAt(span, field.min.x), field.min.moment, 1e-9);
            for (int part = 0; part <= 100; ++part) {
                const double moment = momentAt(span, r.beam.spv[k] * part / 100);
                EXPECT_LE(moment, field.max.moment + 1e-9);
                EXPECT_GE(moment, field.min.moment - 1e-9);
            }
        }
    }
}

} // namespace
} // namespace varno::engine
