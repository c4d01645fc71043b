#include "input/form_keys.h"

#include <gtest/gtest.h>

namespace varno::testing {
namespace {

TEST(FormKeys, ArrowsStayInTheColumnOfTheGrid) {
    EXPECT_EQ(gridNeighbour({Field::spv, 3}, 1), (Control{Field::ptjl, 3}));
    EXPECT_EQ(gridNeighbour({Field::ptjl, 3}, 1), (Control{Field::plast, 3}));
    EXPECT_EQ(gridNeighbour({Field::plast, 3}, 1), (Control{Field::flast, 3}));
    EXPECT_EQ(gridNeighbour({Field::flast, 3}, 1), (Control{Field::upl, 3}));
    EXPECT_EQ(gridNeighbour({Field::upl, 3}, -1), (Control{Field::flast, 3}));
    EXPECT_EQ(gridNeighbour({Field::upl, 0}, -1), (Control{Field::flast, 1}));
    EXPECT_EQ(gridNeighbour({Field::flast, 10}, -1), (Control{Field::plast, 10}));
}

TEST(FormKeys, TheGridHasAnEnd) {
    EXPECT_EQ(gridNeighbour({Field::spv, 1}, -1), std::nullopt);
    EXPECT_EQ(gridNeighbour({Field::upl, 1}, 1), std::nullopt);
    EXPECT_EQ(gridNeighbour({Field::konsv}, 1), std::nullopt);
    EXPECT_EQ(gridNeighbour({Field::rubrik}, 1), std::nullopt);
}

} // namespace
} // namespace varno::testing
