#include <gtest/gtest.h>

#include <cmath>

#include "input/sketch_picture.h"
#include "input/sketch_tips.h"

namespace varno {
namespace {

// A slab of 12 m, so 700 twips are a metre.
class SketchTipTexts : public ::testing::Test {
  protected:
    SketchTipTexts() {
        designCase.nfack = 2;
        designCase.konsv = 1;
        designCase.spv(1) = 5;
        designCase.spv(2) = 6;
        for (int span = 1; span <= 2; ++span) {
            designCase.ptjl(span) = 0.17f;
            designCase.plast(span) = 0.5f;
            designCase.flast(span) = 2;
        }
        designCase.upl(1) = 0.125f;
    }
    SketchTips tips() {
        sketch.fullRefresh();
        return sketchTips(designCase, sketch, {.decimal = ",", .thousands = " "});
    }

    DesignCase designCase;
    SketchPicture picture;
    SlabSketch sketch{designCase, picture.loadPicture, picture.slabStrip, picture};
};

TEST_F(SketchTipTexts, NameSpansCantileversAndSupports) {
    const SketchTips all = tips();
    ASSERT_EQ(all.parts.size(), 3u);
    EXPECT_EQ(all.parts[0], (SketchTip{0, 700, "Konsol vänster: 1,00 m"}));
    EXPECT_EQ(all.parts[1], (SketchTip{700, 4200,
                                       "Fack 1: spännvidd 5,00 m, plattjocklek 0,170 m\n"
                                       "Permanent last 0,50 kN/m2, variabel last 2,00 kN/m2\n"
                                       "Hela plattan 12,00 m"}));
    EXPECT_EQ(all.parts[2].right, 8400);
    EXPECT_EQ(all.supports,
              (std::vector<std::string>{"Stöd 0: upplagsbredd 0,000 m", "Stöd 1: upplagsbredd 0,125 m",
                                        "Stöd 2: upplagsbredd 0,000 m"}));
}

TEST_F(SketchTipTexts, NameTheLineLoadsOfASpan) {
    designCase.nllast = 2;
    designCase.llfnr(1) = designCase.llfnr(2) = 2;
    designCase.avst(1) = 2.5f;
    designCase.lllast(1) = 8.5f;
    designCase.nllastf = 1;
    designCase.llfnrf(1) = 2;
    designCase.lllastf(1) = -3;
    const std::string text = tips().parts[2].text;
    EXPECT_NE(text.find("\nLinjelast: 8,50 kN/m, 2,50 m från vänster stöd\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nLinjelast: 0,00 kN/m, 0,00 m"), std::string::npos) << text;
    EXPECT_NE(text.find("\nFri linjelast: -3,00 kN/m"), std::string::npos) << text;
    EXPECT_EQ(tips().parts[1].text.find("injelast"), std::string::npos);
}

TEST_F(SketchTipTexts, PartsWithoutAWidthHaveNone) {
    designCase.konsv = 0;
    designCase.spv(1) = 0.0001f;
    try {
        sketch.fullRefresh();
    } catch (const RunTimeError&) {
        // Such a span cannot be hatched; the rest is where it is.
    }
    const SketchTips all = sketchTips(designCase, sketch, {});
    ASSERT_EQ(all.parts.size(), 1u);
    EXPECT_EQ(all.parts[0].text.substr(0, 6), "Fack 2");
}

TEST_F(SketchTipTexts, ADamagedCaseHasWhatCanBeNamed) {
    designCase.spv(1) = std::nanf("");
    for (const int spans : {-3, 0, 15, 99}) {
        designCase.nfack = static_cast<std::int16_t>(spans);
        designCase.nllast = 9;
        EXPECT_NO_THROW(sketchTips(designCase, sketch, {})) << spans;
    }
}

} // namespace
} // namespace varno
