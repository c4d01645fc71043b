#include "engine/columns.h"

#include <gtest/gtest.h>

namespace varno::engine {
namespace {

TEST(EngineColumns, AWideNumberIsFittedWithAnExponent) {
    EXPECT_EQ(cell(12.5, 8, 2), "   12.50");
    EXPECT_EQ(cell(-0.0004, 6, 3), " 0.000");
    EXPECT_EQ(cell(12345678, 8, 2), "1.23e+07");
    EXPECT_EQ(cell(12345678, 6, 2), " 1e+07");
    EXPECT_EQ(fitted(12345678, 20, 2), "12345678.00");
    EXPECT_LE(cell(-1e300, 12, 3).size(), 12U);
}

TEST(EngineColumns, LettersCountOnce) {
    EXPECT_EQ(right("Överhöjning", 13), "  Överhöjning");
    EXPECT_EQ(left("stöd", 6), "stöd  ");
    EXPECT_EQ(left("stöd", 3), "stöd");
    EXPECT_EQ(cell(-12, 5), "  -12");
    EXPECT_EQ(indexed("spv", 3), "spv(3)");
}

} // namespace
} // namespace varno::engine
