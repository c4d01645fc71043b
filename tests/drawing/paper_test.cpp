#include "drawing/paper.h"

#include <gtest/gtest.h>

namespace varno {
namespace {

// 254 pixels to the inch: ten to the millimetre.
TEST(TextRange, CountsFromTheEdgeOfThePaper) {
    const PaperAxis acrossA4{2100, 50, 2000, 254};
    EXPECT_EQ(textRange(acrossA4, filingMargin, textMargin), (TextRange{150, 1900}));
}

TEST(TextRange, AWiderEdgeThatCannotBePrintedOnIsMarginEnough) {
    EXPECT_EQ(textRange({2100, 250, 1600, 254}, 20, 15), (TextRange{0, 1600}));
    EXPECT_EQ(textRange({2100, 0, 2100, 254}, 20, 15), (TextRange{200, 1950}));
    EXPECT_EQ(textRange({2100, 100, 1850, 254}, 20, 15), (TextRange{100, 1850}));
}

TEST(TextRange, APrinterThatDoesNotTellItsPaperHasNoEdge) {
    EXPECT_EQ(textRange({0, 0, 2000, 254}, 20, 15), (TextRange{200, 1850}));
}

} // namespace
} // namespace varno
