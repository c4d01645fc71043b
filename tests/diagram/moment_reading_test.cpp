#include "diagram/moment_reading.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "diagram/moment_curves.h"

namespace varno::testing {
namespace {

// A slab of two spans of 6 m, 600 twips per metre, a cantilever of 1 m at either end; the inner support is 0.2 m wide.
class MomentReadingTest : public ::testing::Test {
  protected:
    MomentReadingTest() {
        rig.designCase.upl(1) = 0.2f;
        rig.sketch.computeGeometry();
        const double behindSupport = (6 - 0.2) / 20;
        rig.onFile(momentFileOf({CurveSpan(0.3, 10).at(0, "-4").at(20, "-40").at(8, "30.25"),
                                 CurveSpan(behindSupport, 12).at(0, "-41.5").at(20, "-6")},
                                {CurveSpan(0.3, -5).at(0, "-8"), CurveSpan(behindSupport, -7).at(20, "-2")}),
                   [&](File& file) { rig.diagram.measure(file); });
        rig.onFile(rig.files.content[rig.name], [&](File& file) { reading = rig.diagram.read(file); });
    }
    std::string at(double metres) const { return reading.at(340 + 600 * metres, swedish); }

    const NumberLocale swedish{",", " "};
    DiagramRig rig{2};
    MomentReading reading;
};

TEST_F(MomentReadingTest, TellsSpanPlaceAndBothMoments) {
    EXPECT_EQ(at(1 + 2.4), "Fack 1, x = 2,40 m: största moment 30,25 kNm/m, minsta moment -5,00 kNm/m");
    // Between two points.
    EXPECT_EQ(at(1 + 2.28), "Fack 1, x = 2,28 m: största moment 22,15 kNm/m, minsta moment -5,00 kNm/m");
    EXPECT_EQ(at(1 + 6 + 0.1), "Fack 2, x = 0,10 m: största moment -7,00 kNm/m, minsta moment -41,50 kNm/m")
        << "the moment is level over the support";
    EXPECT_EQ(at(1 + 6 + 0.2 + 0.29),
              "Fack 2, x = 0,49 m: största moment 12,00 kNm/m, minsta moment -7,00 kNm/m");
}

TEST_F(MomentReadingTest, InACantileverTheMomentFallsToItsEnd) {
    EXPECT_EQ(at(0.5),
              "Konsol vänster, 0,50 m från stödet: största moment -2,00 kNm/m, minsta moment -4,00 kNm/m");
    EXPECT_EQ(at(13.25),
              "Konsol höger, 0,25 m från stödet: största moment -1,50 kNm/m, minsta moment -4,50 kNm/m");
    EXPECT_EQ(at(-0.01), "");
    EXPECT_EQ(at(14.01), "");
    EXPECT_EQ(MomentReading().at(1000, swedish), "");
}

TEST_F(MomentReadingTest, PeaksStandAtTheCurve) {
    const auto peaks = reading.peaks(swedish);
    ASSERT_EQ(peaks.size(), 6u);
    EXPECT_EQ(peaks[0].text, "-8,00");
    EXPECT_NEAR(peaks[0].place.x, 940, 1);
    EXPECT_TRUE(peaks[0].above);
    EXPECT_EQ(peaks[1].text, "-41,50") << "of the two sides of the support";
    EXPECT_NEAR(peaks[1].place.x, 340 + 600 * 7, 1);
    EXPECT_NEAR(peaks[1].place.y, 100, 1) << "the largest fills the height";
    EXPECT_EQ(peaks[2].text, "-6,00");
    EXPECT_EQ(peaks[3].text, "30,25");
    EXPECT_NEAR(peaks[3].place.x, 340 + 600 * 3.4, 1);
    EXPECT_NEAR(peaks[3].place.y, 2000 + 1900 * 30.25 / 41.5, 1);
    EXPECT_FALSE(peaks[3].above);
    EXPECT_EQ(peaks[4].text, "12,00");
    EXPECT_EQ(peaks[5].text, "kNm/m");
    EXPECT_TRUE(MomentReading().peaks(swedish).empty());
}

TEST_F(MomentReadingTest, TheTableHasEveryPointOfTheFile) {
    const std::string table = reading.table(swedish);
    EXPECT_TRUE(table.starts_with("Fack\tx (m)\tStörsta moment (kNm/m)\tMinsta moment (kNm/m)\r\n"
                                  "1\t0,000\t-4,00\t-8,00\r\n1\t0,300\t10,00\t-5,00\r\n"))
        << table;
    EXPECT_NE(table.find("\r\n2\t0,200\t-7,00\t-41,50\r\n"), std::string::npos);
    EXPECT_TRUE(table.ends_with("\r\n2\t6,000\t-2,00\t-6,00\r\n")) << table;
    EXPECT_EQ(std::ranges::count(table, '\n'), 1 + 2 * 21);
}

TEST_F(MomentReadingTest, WhatMakesNoSenseStopsNothing) {
    for (const char* moment : {"0", "3.4e38", "-3.4e38"}) {
        for (const float cantilever : {0.0f, -3.0f, 1e30f}) {
            rig.setCantilevers(cantilever, cantilever);
            const Curve curve{CurveSpan(-1e30).at(0, moment), CurveSpan(1e30).at(7, moment)};
            rig.onFile(momentFileOf(curve, curve), [&](File& file) { rig.diagram.measure(file); });
            rig.onFile(rig.files.content[rig.name], [&](File& file) { reading = rig.diagram.read(file); });
            for (const double x : {-1e9, 0.0, 340.0, 5000.0, 1e300})
                reading.at(x, swedish);
            reading.peaks(swedish);
            EXPECT_EQ(std::ranges::count(reading.table(swedish), '\n'), 1 + 2 * 21);
        }
    }
}

} // namespace
} // namespace varno::testing
