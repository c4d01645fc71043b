#include "controls/number_fit.h"

#include <gtest/gtest.h>

namespace varno {
namespace {

constexpr std::array widths{50, 45, 40, 35, 32, 30};

TEST(NumberFit, TheLargestFaceThatFitsIsTaken) {
    EXPECT_EQ(fitNumber(widths, 60), (NumberFit{0, true}));
    EXPECT_EQ(fitNumber(widths, 50), (NumberFit{0, true}));
    EXPECT_EQ(fitNumber(widths, 49), (NumberFit{1, true}));
    EXPECT_EQ(fitNumber(widths, 30), (NumberFit{5, true}));
}

TEST(NumberFit, WhatFitsInNoneIsNotWhole) {
    EXPECT_EQ(fitNumber(widths, 29), (NumberFit{5, false}));
    EXPECT_EQ(fitNumber(widths, -3), (NumberFit{5, false}));
}

} // namespace
} // namespace varno
