#include "model/reference_tables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;

template <typename Rows>
std::vector<std::string> texts(const Rows& rows) {
    return {rows.begin(), rows.end()};
}

// Characters, not bytes: "ø" and "ä" are two bytes of UTF-8.
std::size_t lengthOf(std::string_view text) {
    return encodeWindows1252(text).size();
}

TEST(ReferenceTables, HoldTheRowsOfTheLists) {
    EXPECT_EQ(texts(concreteClasses),
              (std::vector<std::string>{"C20/25", "C25/30", "C30/37", "C35/45", "C40/50", "C45/55", "C50/60",
                                        "C55/67", "C60/75"}));
    EXPECT_EQ(texts(barDiameters), (std::vector<std::string>{"ø 6 ", "ø 8 ", "ø 10", "ø 12", "ø 16"}));
    EXPECT_EQ(texts(steelGrades), (std::vector<std::string>{"400 ", "500 ", "600 "}));
    EXPECT_EQ(texts(loadCategories),
              (std::vector<std::string>{"Valfri last", "A-Bostäder ", "B-Kontor   ", "C1         ",
                                        "C2         ", "C3         ", "C4         ", "C5         ",
                                        "D1         ", "D2         "}));
    EXPECT_EQ(texts(fireClasses), (std::vector<std::string>{"Brandteknisk klass"}));
}

TEST(ReferenceTables, PadTheirRowsToOneWidth) {
    const auto expectWidth = [](const auto& rows, std::size_t width) {
        for (const std::string_view row : rows)
            EXPECT_EQ(lengthOf(row), width) << '"' << row << '"';
    };
    expectWidth(concreteClasses, 6);
    expectWidth(barDiameters, 4);
    expectWidth(steelGrades, 4);
    expectWidth(loadCategories, 11);
    expectWidth(fireClasses, 18);
}

TEST(ReferenceTables, GiveTheVariableLoadOfRuleSetAndCategory) {
    const float loads[7][10] = {
        {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},       {2, 2, 2.5f, 2.5f, 2.5f, 3, 4, 5, 4, 5},
        {2, 2, 3, 3, 4, 5, 5, 5, 4, 5},       {2, 2, 3, 3, 4, 5, 5, 5, 4, 5},
        {2, 2, 2.5f, 2.5f, 3, 4, 5, 6, 4, 5}, {1.5f, 1.5f, 2.5f, 2.5f, 4, 5, 5, 5, 4, 5},
        {2, 2, 3, 3, 4, 5, 5, 5, 4, 5},
    };
    for (int ruleSet = 0; ruleSet <= 6; ++ruleSet) {
        for (int category = 0; category <= 9; ++category)
            EXPECT_EQ(loadFactorTable(ruleSet, category), loads[ruleSet][category])
                << ruleSet << ", " << category;
    }
    for (const auto& [ruleSet, category] : {std::pair{-1, 0}, {7, 0}, {0, -1}, {0, 10}})
        EXPECT_EQ(errorOf([&] { loadFactorTable(ruleSet, category); }), errSubscriptOutOfRange);
}

DesignCase preset() {
    DesignCase designCase;
    presetDesignCase(designCase);
    return designCase;
}

TEST(Presets, SetTheFactorsOfARuleSet) {
    const DesignCase c = preset();
    const double factors[7][3] = {{},
                                  {1.35, 0.89, 1.5},
                                  {1.35, 0.85, 1.5},
                                  {1.35, 0.89, 1.5},
                                  {1.35, 0.85, 1.5},
                                  {1.2, 1.0, 1.5},
                                  {1.35, 0.85, 1.5}};
    for (int ruleSet = 1; ruleSet <= 6; ++ruleSet) {
        EXPECT_EQ(c.lambdaG(ruleSet), factors[ruleSet][0]) << ruleSet;
        EXPECT_EQ(c.ksi(ruleSet), factors[ruleSet][1]) << ruleSet;
        EXPECT_EQ(c.lambdaQ(ruleSet), factors[ruleSet][2]) << ruleSet;
    }
}

TEST(Presets, SetTheCombinationFactorsOfACategory) {
    const DesignCase c = preset();
    for (const int ruleSet : {1, 2, 3, 4, 6}) {
        for (int k = 0; k <= 9; ++k) {
            EXPECT_EQ(c.psi0(ruleSet, k), 0.7) << ruleSet << ", " << k;
            EXPECT_EQ(c.psi1(ruleSet, k), k <= 2 ? 0.5 : 0.7) << ruleSet << ", " << k;
            const int lastLow = ruleSet == 4 ? 7 : 2;
            EXPECT_EQ(c.psi2(ruleSet, k), k <= lastLow ? 0.3 : 0.6) << ruleSet << ", " << k;
        }
    }
    for (int k = 0; k <= 9; ++k) {
        EXPECT_EQ(c.psi0(5, k), k <= 1 ? 0.5 : 0.6) << k;
        EXPECT_EQ(c.psi1(5, k), k <= 1 ? 0.3 : k == 2 ? 0.4 : 0.6) << k;
        EXPECT_EQ(c.psi2(5, k), k <= 2 ? 0.2 : 0.5) << k;
    }
}

TEST(Presets, LeaveRuleSet0Empty) {
    const DesignCase c = preset();
    EXPECT_FALSE(c.lambdaG(0) || c.ksi(0) || c.lambdaQ(0));
    for (int k = 0; k <= 9; ++k)
        EXPECT_FALSE(c.psi0(0, k) || c.psi1(0, k) || c.psi2(0, k)) << k;
}

TEST(Presets, SetSpansAndSupports) {
    DesignCase c;
    for (int i = 0; i <= 15; ++i)
        c.spv(i) = c.ptjl(i) = c.flast(i) = c.plast(i) = c.upl(i) = 9;
    presetDesignCase(c);
    for (int span = 1; span <= 10; ++span) {
        EXPECT_EQ(c.spv(span), 5.5f);
        EXPECT_EQ(c.ptjl(span), 0.17f);
        EXPECT_EQ(c.flast(span), 2.0f);
        EXPECT_EQ(c.plast(span), 0.0f);
    }
    for (int support = 1; support <= 9; ++support)
        EXPECT_EQ(c.upl(support), 0.1f);
    EXPECT_EQ(c.upl(0), 0.0f);
    EXPECT_EQ(c.upl(10), 0.0f);
    EXPECT_EQ(c.spv(0), 9.0f);
    for (int beyond = 11; beyond <= 15; ++beyond)
        EXPECT_EQ(c.spv(beyond), 9.0f);
}

TEST(Presets, LeaveTheRestOfTheCase) {
    DesignCase c;
    c.loadCode = 4;
    c.safetyClass(4) = 3;
    c.nfack = 7;
    c.konsv = 1.5f;
    c.reservedValue = 99;
    c.lllast(2) = 8;
    const DesignCase before = c;
    presetDesignCase(c);
    EXPECT_EQ(c.loadCode, before.loadCode);
    EXPECT_EQ(c.safetyClass, before.safetyClass);
    EXPECT_EQ(c.nfack, before.nfack);
    EXPECT_EQ(c.konsv, before.konsv);
    EXPECT_EQ(c.reservedValue, before.reservedValue);
    EXPECT_EQ(c.lllast, before.lllast);
}

} // namespace

} // namespace varno
