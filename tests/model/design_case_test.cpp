#include "model/design_case.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;

template <typename Array>
void expectIndexRange(Array& array, int first, int last) {
    EXPECT_EQ(errorOf([&] { array(first) = {}; }), 0);
    EXPECT_EQ(errorOf([&] { array(last) = {}; }), 0);
    EXPECT_EQ(errorOf([&] { array(first - 1) = {}; }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { array(last + 1) = {}; }), errSubscriptOutOfRange);
    const Array& fixed = array;
    EXPECT_EQ(errorOf([&] { static_cast<void>(fixed(last + 1)); }), errSubscriptOutOfRange);
}

TEST(DesignCase, HasItsFullIndexRanges) {
    DesignCase c;
    for (SpanArray DesignCase::*array :
         {&DesignCase::spv, &DesignCase::ptjl, &DesignCase::upl, &DesignCase::plast, &DesignCase::flast})
        expectIndexRange(c.*array, 0, 15);
    expectIndexRange(c.safetyClass, 0, 6);
    for (FactorPerRuleSet DesignCase::*table : {&DesignCase::lambdaG, &DesignCase::ksi, &DesignCase::lambdaQ})
        expectIndexRange(c.*table, 0, 6);
    expectIndexRange(c.llfnr, 0, 5);
    expectIndexRange(c.avst, 0, 5);
    expectIndexRange(c.lllast, 0, 5);
}

TEST(DesignCase, HasAFactorPerRuleSetAndCategory) {
    DesignCase c;
    for (FactorPerCategory DesignCase::*table : {&DesignCase::psi0, &DesignCase::psi1, &DesignCase::psi2}) {
        (c.*table)(6, 9) = 0.25;
        EXPECT_EQ((c.*table)(6, 9), 0.25);
        EXPECT_FALSE((c.*table)(6, 8));
        for (const auto& [ruleSet, category] : {std::pair{7, 0}, {-1, 0}, {0, 10}, {0, -1}})
            EXPECT_EQ(errorOf([&] { (c.*table)(ruleSet, category) = 1; }), errSubscriptOutOfRange);
    }
}

TEST(DesignCase, IsCreatedEmpty) {
    const DesignCase c;
    EXPECT_EQ(c.nfack, 0);
    EXPECT_EQ(c.loadCode, 0);
    for (const float length : c.spv)
        EXPECT_EQ(length, 0);
    for (const std::int16_t option : c.safetyClass)
        EXPECT_EQ(option, 0);
    EXPECT_FALSE(c.lambdaG(1));
}

} // namespace

} // namespace varno
