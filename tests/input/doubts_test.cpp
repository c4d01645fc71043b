#include "input/doubts.h"

#include <gtest/gtest.h>

namespace varno {
namespace {

DesignCase twoSpans() {
    DesignCase designCase;
    designCase.nfack = 2;
    designCase.lokt = 0;
    designCase.upl(1) = 0.12f;
    for (int span = 1; span <= 2; ++span) {
        designCase.spv(span) = 5;
        designCase.plast(span) = 1;
    }
    return designCase;
}

TEST(Doubts, AGoodCaseHasNone) {
    EXPECT_TRUE(doubtsOf(twoSpans()).empty());
    EXPECT_EQ(doubtsInOneLine({}), "");
}

TEST(Doubts, StandAtTheirBoxesOfTheForm) {
    DesignCase designCase = twoSpans();
    designCase.spv(2) = 0;
    designCase.upl(1) = 0;
    designCase.konsv = 6;
    const std::vector<Doubt> doubts = doubtsOf(designCase);
    ASSERT_EQ(doubts.size(), 3u);
    EXPECT_EQ(doubts[0].box, (Control{Field::upl, 1}));
    EXPECT_EQ(doubts[1].box, (Control{Field::spv, 2}));
    EXPECT_EQ(doubts[2].box, (Control{Field::konsv, 0}));
    EXPECT_EQ(doubtsInOneLine(doubts),
              "Se över: Upplagsbredden vid stöd 1 är 0 m. Spännvidden i fack 2 är 0 m. "
              "Vänster konsol, 6 m, är längre än fack 1, 5 m.");
}

TEST(Doubts, ALineLoadHasNoBoxOnTheForm) {
    DesignCase designCase = twoSpans();
    designCase.nllast = 1;
    designCase.llfnr(1) = 3;
    const std::vector<Doubt> doubts = doubtsOf(designCase);
    ASSERT_EQ(doubts.size(), 1u);
    EXPECT_EQ(doubts[0].box, std::nullopt);
    EXPECT_EQ(doubts[0].text, "Linjelast 1 står i fack 3, men plattan har 2 fack.");
}

} // namespace
} // namespace varno
