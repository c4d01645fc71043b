// Coefficients of continuous beams with equal spans and load in the worst spans: the handbooks' tables named
// in beam_test.cpp.
#include "engine/envelope.h"

#include "tests/engine/enumeration.h"
#include "tests/engine/stiffness.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace varno::engine {
namespace {

constexpr double small = 1e-10;

Envelope equalSpans(int n, double length, double permanent, double variable) {
    const auto count = static_cast<std::size_t>(n);
    return envelope({0, 0, std::vector<double>(count, length)},
                    {std::vector<double>(count, permanent), std::vector<double>(count, variable), {}},
                    std::vector<double>(count + 1));
}

TEST(EngineEnvelope, OneSpanHasTwoPatterns) {
    const auto e = equalSpans(1, 4, 1, 2);
    EXPECT_EQ(e.patterns, 2);
    EXPECT_NEAR(e.field[0].max.moment, 3 * 16 / 8.0, small);
    EXPECT_NEAR(e.reaction[0].max, 6, small);
    EXPECT_NEAR(e.reaction[0].min, 2, small);
    EXPECT_NEAR(e.upper[0][10], 6, small);
    EXPECT_NEAR(e.lower[0][10], 2, small);
}

TEST(EngineEnvelope, TwoSpans) {
    const double g = 3, q = 5, l = 6;
    const auto e = equalSpans(2, l, g, q);
    EXPECT_EQ(e.patterns, 4);
    EXPECT_NEAR(e.supportMoment[1].min, -(g + q) * l * l / 8, small);
    EXPECT_NEAR(e.supportMoment[1].max, -g * l * l / 8, small);
    // One span loaded: R0 = 3/8 g l + 7/16 q l, and the moment is largest where the shear is zero.
    const double r = (3 * g / 8 + 7 * q / 16) * l;
    EXPECT_NEAR(e.reaction[0].max, r, small);
    EXPECT_NEAR(e.reaction[0].min, (3 * g / 8 - q / 16) * l, small);
    EXPECT_NEAR(e.field[0].max.moment, r * r / (2 * (g + q)), small);
    EXPECT_NEAR(e.field[0].max.x, r / (g + q), small);
    EXPECT_NEAR(e.field[1].max.x, l - r / (g + q), small);
    EXPECT_EQ(e.field[0].max.place, Place::zeroShear);
    EXPECT_NEAR(e.reaction[1].max, 10 * (g + q) * l / 8, small);
}

TEST(EngineEnvelope, ThreeSpansOfVariableLoad) {
    const auto e = equalSpans(3, 1, 0, 1);
    EXPECT_NEAR(e.field[0].max.moment, 0.10125, small);
    EXPECT_NEAR(e.field[1].max.moment, 0.075, small);
    EXPECT_NEAR(e.supportMoment[1].min, -7.0 / 60, small); // 0.117
    EXPECT_NEAR(e.supportMoment[1].max, 1.0 / 60, small);  // 0.017
    EXPECT_NEAR(e.reaction[0].max, 0.45, small);
    EXPECT_NEAR(e.reaction[1].max, 1.2, small);
    EXPECT_NEAR(e.reaction[0].min, -0.05, small);
}

TEST(EngineEnvelope, FourAndFiveSpansOfVariableLoad) {
    const auto four = equalSpans(4, 1, 0, 1);
    EXPECT_NEAR(four.supportMoment[1].min, -0.1205, 1e-4);
    EXPECT_NEAR(four.supportMoment[2].min, -0.1071, 1e-4);
    EXPECT_NEAR(four.field[0].max.moment, 0.0996, 1e-4);
    EXPECT_NEAR(four.field[1].max.moment, 0.0805, 1e-4);
    const auto five = equalSpans(5, 1, 0, 1);
    EXPECT_NEAR(five.supportMoment[1].min, -0.1196, 1e-4);
    EXPECT_NEAR(five.supportMoment[2].min, -0.1112, 2e-4);
    EXPECT_NEAR(five.field[0].max.moment, 0.1001, 1e-4);
    EXPECT_NEAR(five.field[2].max.moment, 0.0855, 1e-4);
}

TEST(EngineEnvelope, CantileversGoWithTheirSpan) {
    // The left cantilever is loaded with span 1, so M0 = -(g + q) c^2 / 2 at least, -g c^2 / 2 at most; with
    // span 1 loaded the field moment is that of both loads: (g + q) (l^2 / 8 - c^2 / 4).
    const double g = 1, q = 2, l = 6, c = 1;
    const auto e = envelope({c, 0, {l}}, {{g}, {q}, {}}, {0, 0});
    EXPECT_NEAR(e.supportMoment[0].min, -(g + q) * c * c / 2, small);
    EXPECT_NEAR(e.supportMoment[0].max, -g * c * c / 2, small);
    EXPECT_NEAR(e.upper[0][10], (g + q) * (l * l / 8 - c * c / 4), small);
    EXPECT_NEAR(e.lower[0][10], g * (l * l / 8 - c * c / 4), small);
}

TEST(EngineEnvelope, ALineLoadIsAlwaysThere) {
    const double p = 10, l = 4;
    const auto e = envelope({0, 0, {l}}, {{0}, {3}, {{l / 2, p}}}, {0, 0});
    EXPECT_NEAR(e.field[0].max.moment, p * l / 4 + 3 * l * l / 8, small);
    EXPECT_EQ(e.field[0].max.place, Place::underLoad);
    EXPECT_NEAR(e.lower[0][10], p * l / 4, small);
}

TEST(EngineEnvelope, CurvePointsStartAtTheSupportsFarSide) {
    const double l = 5;
    const auto e = envelope({0, 0, {l, l}}, {{2, 2}, {0, 0}, {}}, {0, 0.3, 0});
    EXPECT_NEAR(e.dx[0], l / 20, small);
    EXPECT_NEAR(e.dx[1], (l - 0.3) / 20, small);
    EXPECT_NEAR(e.upper[0][20], -2 * l * l / 8, small);
    // Span 2 at x = 0.3 with M = -q l^2 / 8 at its left end and a reaction of 3 q l / 8 at its right one.
    const double x = l - 0.3;
    EXPECT_NEAR(e.upper[1][0], 3 * 2 * l / 8 * x - 2 * x * x / 2, small);
    EXPECT_NEAR(e.upper[1][20], 0, small);
}

TEST(EngineEnvelope, VariableLoadThatLiftsCounts) {
    const double l = 4;
    const auto e = envelope({0, 0, {l}}, {{1}, {-3}, {}}, {0, 0});
    EXPECT_NEAR(e.field[0].max.moment, l * l / 8, small);
    EXPECT_NEAR(e.field[0].min.moment, -2 * l * l / 8, small);
    EXPECT_EQ(e.field[0].min.place, Place::zeroShear);
    EXPECT_NEAR(e.field[0].min.x, l / 2, small);
}

TEST(EngineEnvelope, OfEqualMomentsTheFirstPatternAndTheFirstPlaceStay) {
    const auto e = equalSpans(4, 5, 2, 0);
    const auto alone = equalSpans(4, 5, 2, 1e-13);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(e.field[i].max.place, alone.field[i].max.place);
    const auto unloaded = equalSpans(2, 5, 0, 0);
    EXPECT_EQ(unloaded.field[1].max.x, 0);
    EXPECT_EQ(unloaded.field[1].max.moment, 0);
}

// The extremes at fixed points by the other way round: solve each load case by the displacement method and
// add up, over the variable loads, what is positive for the largest and what is negative for the smallest
// value.
struct Summed {
    std::vector<double> max, min;

    void add(const std::vector<double>& values, bool always) {
        max.resize(values.size());
        min.resize(values.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            max[i] += always ? values[i] : std::max(values[i], 0.0);
            min[i] += always ? values[i] : std::min(values[i], 0.0);
        }
    }
};

struct TenSpans {
    Beam beam{1.1, 0.7, {}};
    DesignLoads loads;
    std::vector<double> upl{0};

    TenSpans() {
        std::mt19937 random{4};
        std::uniform_real_distribution<double> length(2, 8), load(0, 6), width(0, 0.4);
        for (int i = 0; i < 10; ++i) {
            beam.spv.push_back(length(random));
            loads.permanent.push_back(load(random));
            loads.variable.push_back(load(random));
            upl.push_back(i < 9 ? width(random) : 0);
        }
        loads.lines = {{0.4, 5}, {beam.konsv + 1, 8}, {20, -6}, {33.3, 11}};
    }
};

TEST(EngineEnvelope, TenSpansAgreeWithTheDisplacementMethod) {
    const TenSpans ten;
    const auto& [beam, loads, upl] = ten;
    const auto e = envelope(beam, loads, upl);
    EXPECT_EQ(e.patterns, 1024);

    std::vector<double> nodes, curveX;
    for (const auto& line : loads.lines)
        nodes.push_back(line.x);
    double start = beam.konsv;
    for (std::size_t i = 0; i < 10; start += beam.spv[i++])
        for (int k = 0; k <= 20; k += 4) {
            curveX.push_back(start + upl[i] + k * (beam.spv[i] - upl[i]) / 20);
            nodes.push_back(curveX.back());
        }
    const test::StiffnessBeam other{beam, nodes};
    Summed moments, forces;
    std::vector<double> x;
    for (std::size_t j = 0; j <= 10; ++j) {
        std::vector<double> q(10);
        if (j < 10)
            q[j] = loads.variable[j];
        else
            q = loads.permanent;
        const auto answer =
            other.solve(q, q.front(), q.back(), j == 10 ? loads.lines : std::vector<PointLoad>{});
        moments.add(answer.moment, j == 10);
        forces.add(answer.reaction, j == 10);
        x = answer.x;
    }

    for (std::size_t i = 0; i <= 10; ++i) {
        EXPECT_NEAR(e.reaction[i].max, forces.max[i], 1e-6);
        EXPECT_NEAR(e.reaction[i].min, forces.min[i], 1e-6);
    }
    const auto nodeAt = [&](double at) {
        return static_cast<std::size_t>(std::lower_bound(x.begin(), x.end(), at - 1e-6) - x.begin());
    };
    std::size_t at = 0;
    for (std::size_t i = 0; i < 10; ++i)
        for (std::size_t k = 0; k <= 20; k += 4, ++at) {
            EXPECT_NEAR(e.upper[i][k], moments.max[nodeAt(curveX[at])], 1e-6) << i << " " << k;
            EXPECT_NEAR(e.lower[i][k], moments.min[nodeAt(curveX[at])], 1e-6) << i << " " << k;
        }
    double support = beam.konsv;
    for (std::size_t i = 0; i <= 10; ++i) {
        EXPECT_NEAR(e.supportMoment[i].max, moments.max[nodeAt(support)], 1e-6);
        EXPECT_NEAR(e.supportMoment[i].min, moments.min[nodeAt(support)], 1e-6);
        if (i < 10) support += beam.spv[i];
    }
}

void expectSame(const Range& a, const Range& b, double size) {
    EXPECT_NEAR(a.max, b.max, 1e-12 * size);
    EXPECT_NEAR(a.min, b.min, 1e-12 * size);
}

// A moment, its place and what stands there; of two places with one moment either may be told.
void expectSame(const FieldMoment& a, const FieldMoment& b, double size) {
    EXPECT_NEAR(a.moment, b.moment, 1e-11 * size);
    EXPECT_EQ(a.place, b.place);
    EXPECT_NEAR(a.x, b.x, 1e-6);
}

TEST(EngineEnvelope, TheSignsGiveWhatAllPatternsGive) {
    std::mt19937 random{12};
    const auto within = [&](double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(random);
    };
    constexpr int cases = 400;
    for (int number = 0; number < cases && !::testing::Test::HasFailure(); ++number) {
        SCOPED_TRACE(number);
        const auto spans = std::uniform_int_distribution<std::size_t>(1, number % 20 == 0 ? 10 : 6)(random);
        // Cantilevers that are missing, loads that lift, and spans without any variable load among them.
        Beam beam{number % 3 == 0 ? 0 : within(0, 2), number % 5 == 0 ? 0 : within(0, 2), {}};
        DesignLoads loads;
        std::vector<double> upl{0};
        for (std::size_t i = 0; i < spans; ++i) {
            beam.spv.push_back(within(1, 9));
            loads.permanent.push_back(within(0, 6));
            loads.variable.push_back(number % 7 == 0 ? within(-4, 4) : std::max(0.0, within(-1, 6)));
            upl.push_back(i + 1 < spans ? within(0, 0.4) : 0);
        }
        for (int line = 0; line < number % 6; ++line)
            loads.lines.push_back({within(0, 1 + 5 * static_cast<double>(spans)), within(-10, 20)});

        const Envelope a = envelope(beam, loads, upl);
        const Envelope b = test::enumerated(beam, loads, upl);
        EXPECT_EQ(a.patterns, b.patterns);
        EXPECT_EQ(a.dx, b.dx);
        constexpr double size = 1000;
        for (std::size_t i = 0; i <= spans; ++i) {
            expectSame(a.supportMoment[i], b.supportMoment[i], size);
            expectSame(a.reaction[i], b.reaction[i], size);
        }
        for (std::size_t i = 0; i < spans; ++i) {
            expectSame(a.field[i].max, b.field[i].max, size);
            expectSame(a.field[i].min, b.field[i].min, size);
            for (std::size_t k = 0; k < curvePoints; ++k)
                expectSame(Range{a.upper[i][k], a.lower[i][k]}, Range{b.upper[i][k], b.lower[i][k]}, size);
        }
    }
}

// Where spans are equal, moments are equal too, and of those the same one must be told.
TEST(EngineEnvelope, OfEqualSpansTheSignsTellTheSamePlaceAsAllPatterns) {
    for (int n = 1; n <= 10; ++n) {
        const auto count = static_cast<std::size_t>(n);
        for (const double cantilever : {0.0, 1.5}) {
            const Beam beam{cantilever, cantilever, std::vector<double>(count, 5)};
            const DesignLoads loads{std::vector<double>(count, 3), std::vector<double>(count, 2.5), {}};
            const std::vector<double> upl(count + 1);
            const Envelope a = envelope(beam, loads, upl);
            const Envelope b = test::enumerated(beam, loads, upl);
            for (std::size_t i = 0; i < count; ++i) {
                SCOPED_TRACE(std::to_string(n) + " spans, cantilevers " + std::to_string(cantilever) +
                             ", span " + std::to_string(i + 1));
                expectSame(a.field[i].max, b.field[i].max, 100);
                expectSame(a.field[i].min, b.field[i].min, 100);
            }
        }
    }
}

TEST(EngineEnvelope, TheFieldMomentsBoundTheCurves) {
    const auto e = equalSpans(7, 5.5, 3, 4);
    for (std::size_t i = 0; i < 7; ++i)
        for (std::size_t k = 0; k < curvePoints; ++k) {
            EXPECT_LE(e.upper[i][k], e.field[i].max.moment + 1e-9);
            EXPECT_GE(e.lower[i][k], e.field[i].min.moment - 1e-9);
            EXPECT_LE(e.lower[i][k], e.upper[i][k]);
        }
}

} // namespace
} // namespace varno::engine
