#include "engine/numbers.h"

#include <clocale>
#include <gtest/gtest.h>

namespace varnowb {
namespace {

TEST(EngineNumbers, ReadsWhatACellMayHold) {
    const std::pair<const char*, double> good[] = {
        {"5.500  ", 5.5},    {"  5.500", 5.5}, {"0", 0},      {"-1.500 ", -1.5}, {"1234567", 1234567},
        {"1.5E-05", 1.5e-5}, {"1d2", 100},     {"5,5", 5.5},  {".25", 0.25},     {"12.", 12},
        {"+3", 3},           {"\t7 ", 7},      {"-0.000", 0}, {"1E+2", 100}};
    for (const auto& [text, value] : good) {
        const auto number = readNumber(text);
        ASSERT_TRUE(number) << text;
        EXPECT_DOUBLE_EQ(*number, value) << text;
    }
}

TEST(EngineNumbers, RefusesEverythingElse) {
    for (const char* text : {"", "   ", "x", "1 2", "12ab", "1.2.3", "1,2,3", "inf", "nan", "-", "+", "+-1",
                             "--1", ".", "1e999", "0x10", "5.5m", "e5", "1e"})
        EXPECT_FALSE(readNumber(text)) << text;
    EXPECT_FALSE(readNumber(std::string_view{"1\0002", 3}));
}

TEST(EngineNumbers, WholeNumbersHaveSixteenBits) {
    EXPECT_EQ(readWhole("-32768"), -32768);
    EXPECT_EQ(readWhole(" 32767 "), 32767);
    EXPECT_EQ(readWhole("3.000"), 3);
    EXPECT_FALSE(readWhole("32768"));
    EXPECT_FALSE(readWhole("-32769"));
    EXPECT_FALSE(readWhole("2.5"));
    EXPECT_FALSE(readWhole(""));
}

TEST(EngineNumbers, WritesNoMinusBeforeAZero) {
    EXPECT_EQ(fixed(-0.0004, 3), "0.000");
    EXPECT_EQ(fixed(-0.0, 2), "0.00");
    EXPECT_EQ(fixed(-0.0006, 3), "-0.001");
    EXPECT_EQ(fixed(12.5, 3), "12.500");
}

TEST(EngineNumbers, AWideNumberIsFittedWithAnExponent) {
    EXPECT_EQ(cell(12.5, 8, 2), "   12.50");
    EXPECT_EQ(cell(12345678, 8, 2), "1.23e+07");
    EXPECT_EQ(cell(12345678, 6, 2), " 1e+07");
    EXPECT_EQ(fitted(12345678, 20, 2), "12345678.00");
    EXPECT_LE(cell(-1e300, 12, 3).size(), 12U);
}

TEST(EngineNumbers, TheLocaleIsNotAsked) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"sv_SE.UTF-8", "de_DE.UTF-8", "Swedish_Sweden.1252"})
        std::setlocale(LC_ALL, name);
    EXPECT_EQ(fixed(1234.5, 2), "1234.50");
    EXPECT_EQ(readNumber("1.5"), 1.5);
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
} // namespace varnowb
