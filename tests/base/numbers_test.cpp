#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "support/comma_locale.h"
#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;

constexpr double infinite = std::numeric_limits<double>::infinity();

struct NumberText {
    std::string text;
    double value;      ///< with the comma rule
    double plainValue; ///< without it
};

// Good and bad texts alike: nothing is refused, and what a text means must be seen in one place.
const NumberText numberTexts[] = {
    // Nothing that is a number
    {"", 0, 0},
    {"   ", 0, 0},
    {"abc", 0, 0},
    {"x12", 0, 0},
    {"-", 0, 0},
    {"+", 0, 0},
    {".", 0, 0},
    {",", 0, 0},
    {"-.", 0, 0},
    {"--3", 0, 0},
    {"+-3", 0, 0},
    {"e5", 0, 0},
    {".e5", 0, 0},
    {"nan", 0, 0},
    {"inf", 0, 0},
    {"-infinity", 0, 0},
    {"\n5", 0, 0},
    {std::string("\0"
                 "5",
                 2),
     0, 0},
    // Whole numbers, decimals, signs
    {"0", 0, 0},
    {"12", 12, 12},
    {"+12", 12, 12},
    {"-12", -12, -12},
    {"007", 7, 7},
    {"6.25", 6.25, 6.25},
    {".5", 0.5, 0.5},
    {"-.5", -0.5, -0.5},
    {"5.", 5, 5},
    {"-1.500", -1.5, -1.5},
    {"0.250  ", 0.25, 0.25},
    {"9007199254740993", 9007199254740992.0, 9007199254740992.0},
    // The comma: only the first one counts as a point
    {"2,5", 2.5, 2},
    {",5", 0.5, 0},
    {"-,5", -0.5, 0},
    {"1,234,5", 1.234, 1},
    {"1,234.5", 1.234, 1},
    {"1.5,5", 1.5, 1.5},
    {"7,", 7, 7},
    {"12,50 m", 12.5, 12},
    {"abc,5", 0, 0},
    // Blanks and tabs are skipped wherever they stand
    {"  7.6", 7.6, 7.6},
    {"\t7.6", 7.6, 7.6},
    {"1 234,5", 1234.5, 1234},
    {"- 5", -5, -5},
    {"1 . 5", 1.5, 1.5},
    {"2 e 3", 2000, 2000},
    {"1\t234,5", 1234.5, 1234},
    // No-break spaces, by which Windows groups thousands, are blanks: U+00A0 and U+202F in UTF-8, and the byte of the
    // former in Windows-1252
    {"\u00A05", 5, 5},
    {"\u202F5", 5, 5},
    {"\xA0"
     "5",
     5, 5},
    {"1\u00A0234,05", 1234.05, 1234},
    {"1\u202F234,05", 1234.05, 1234},
    {"1\xA0"
     "234,05",
     1234.05, 1234},
    {"-\u00A012\u202F345\u00A0678,5\u00A0", -12345678.5, -12345678},
    {"1,5\u00A0E\u202F3", 1500, 1},
    {"\u00A0", 0, 0},
    {"\u00A0m5", 0, 0},
    // Other spaces and the letters that share bytes with no-break spaces end the number
    {"1\u2009234", 1, 1},
    {"1\u200A234", 1, 1},
    {"1\u00E0234", 1, 1},
    {"1\u00C2234", 1, 1},
    {"1\xC2"
     "234",
     1, 1},
    {"1\xE2\x80"
     "5",
     1, 1},
    {"1\xAF"
     "5",
     1, 1},
    // The number ends at the first character that cannot continue it
    {"12abc", 12, 12},
    {"12 mm", 12, 12},
    {"1.2.3", 1.2, 1.2},
    {"5-3", 5, 5},
    {"0x10", 0, 0},
    {"1'000", 1, 1},
    {"5\r", 5, 5},
    {"5\n6", 5, 5},
    {"5%", 5, 5},
    {"3\xBD", 3, 3}, // 3½
    {std::string("5\0"
                 "6",
                 3),
     5, 5},
    // Exponents, with E and D
    {"1E3", 1000, 1000},
    {"1e-3", 0.001, 0.001},
    {"1D3", 1000, 1000},
    {"1.5d+2", 150, 150},
    {"1,5e2", 150, 1},
    {"1e", 1, 1},
    {"1e+", 1, 1},
    {"1ex", 1, 1},
    {"1ee5", 1, 1},
    {"1e2.5", 100, 100},
    {"12d abc", 12, 12},
    // Beyond the range of a double
    {"1e400", infinite, infinite},
    {"-1e400", -infinite, -infinite},
    {"1e-400", 0, 0},
    {"0e400", 0, 0},
    {"1e99999999999999999999", infinite, infinite},
    {"1e-99999999999999999999", 0, 0},
    {"0.000e99999999999999999999", 0, 0},
};

TEST(ParseNumber, TakesTheNumberThatATextBeginsWith) {
    for (const NumberText& row : numberTexts) {
        EXPECT_EQ(VARNO1::parseNumber(row.text), row.value) << '"' << row.text << '"';
        EXPECT_EQ(VARNO1::plainNumber(row.text), row.plainValue) << '"' << row.text << '"';
    }
}

TEST(ParseNumber, TakesTextsOfAnyLength) {
    EXPECT_EQ(VARNO1::parseNumber(std::string(400, '9')), infinite);
    EXPECT_EQ(VARNO1::parseNumber("-" + std::string(400, '9')), -infinite);
    EXPECT_EQ(VARNO1::parseNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(VARNO1::parseNumber("0." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(VARNO1::parseNumber(std::string(400, '0') + "7"), 7);
    EXPECT_EQ(VARNO1::parseNumber("1" + std::string(400, '0') + "e-400"), 1);
    EXPECT_EQ(VARNO1::parseNumber(std::string(100000, ' ') + "7"), 7);
}

// A blank in front sends a text the long way, which looks for blanks everywhere.
TEST(ParseNumber, ReadsTheSameTheShortWayAndTheLong) {
    std::mt19937 random(7);
    constexpr std::string_view alphabet = "0123456789012345.-+eEdD, xinf";
    for (int round = 0; round < 40000; ++round) {
        std::string text(random() % (round % 2 == 0 ? 9 : 22), ' ');
        for (char& c : text)
            c = alphabet[random() % alphabet.size()];
        const double found = VARNO1::parseNumber(text);
        const double expected = VARNO1::parseNumber(" " + text);
        ASSERT_EQ(found, expected) << text;
        ASSERT_EQ(std::signbit(found), std::signbit(expected)) << text;
    }
    for (const char* const text :
         {"5.", "-5.", ".5", "-", "123456789012345", "-12345678.9012345", "1234567890123456",
          "9007199254740993", "0.000000000000001", "0.0000000000000001", "1e999", "-1e999", "1e-999",
          "-1e-999", "-inf", "nan", "0x10"})
        EXPECT_EQ(VARNO1::parseNumber(text), VARNO1::parseNumber(std::string(" ") + text)) << text;
}

TEST(NumberWrittenPlainly, IsWhatTheTextReadsAs) {
    std::mt19937 random(8);
    const std::string digits = "0123456789";
    for (int round = 0; round < 20000; ++round) {
        std::string text = random() % 4 == 0 ? "-" : "";
        for (std::size_t left = 1 + random() % 15; left > 0; --left)
            text += digits[random() % digits.size()];
        const std::size_t first = text.starts_with('-') ? 2 : 1;
        if (random() % 4 != 0) text.insert(first + random() % (text.size() - first + 1), ".");
        const std::optional<double> found = VARNO1::numberWrittenPlainly(text + (round % 2 == 0 ? "" : "  "));
        ASSERT_TRUE(found) << text;
        ASSERT_EQ(*found, std::strtod(text.c_str(), nullptr)) << text;
    }
    for (const char* const other :
         {"", " ", "-", ".", "+1", " 1", "1 1", "1,5", "1e5", "1..", "1x", "--1", "\u00A01"})
        EXPECT_FALSE(VARNO1::numberWrittenPlainly(other)) << other;
}

TEST(ParseNumber, KeepsTheSignOfZero) {
    EXPECT_TRUE(std::signbit(VARNO1::parseNumber("-0")));
    EXPECT_FALSE(std::signbit(VARNO1::parseNumber("0")));
}

// A program that was started under a Swedish desktop reads and writes the same files as any other.
TEST(Numbers, DoNotDependOnTheLocale) {
    const testing::CommaLocale locale;
    RecordProperty("cLocale", locale.cLocale.empty() ? "none installed" : locale.cLocale);
    EXPECT_EQ(VARNO1::parseNumber("1.5"), 1.5);
    EXPECT_EQ(VARNO1::parseNumber("1,5"), 1.5);
    EXPECT_EQ(VARNO1::plainNumber("1,5"), 1);
    EXPECT_EQ(formatNumber(1234.5, "##0.000"), "1234.500");
    EXPECT_EQ(formatNumber(1234567.5f, "##,##0.00"), "1,234,567.50");
    EXPECT_EQ(generalForm(1.25f), "1.25");
    EXPECT_EQ(generalForm(1.5e-7), "1.5E-07");
}

TEST(ToInteger, RoundsTiesToEvenInto16Bits) {
    const struct {
        double value;
        int whole;
    } rows[] = {
        {0, 0},
        {0.4, 0},
        {0.5, 0},
        {0.50000001, 1},
        {1.5, 2},
        {2.5, 2},
        {22.5, 22},
        {23.5, 24},
        {7.6, 8},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {-7.6, -8},
        {32767, 32767},
        {32767.4999, 32767},
        {-32768, -32768},
        {-32768.5, -32768},
        {-1e-300, 0},
        {0.49999999999999994, 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(toInteger(row.value), row.whole) << row.value;
}

TEST(ToInteger, OverflowsOutside16Bits) {
    for (const double value : {32767.5, 32768.0, 65536.0, 1e300, -32768.6, -32769.0, -1e300, infinite,
                               -infinite, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(errorOf([&] { toInteger(value); }), errOverflow) << value;
    }
}

TEST(ToSingle, RoundsToSinglePrecision) {
    constexpr double largest = std::numeric_limits<float>::max();
    EXPECT_EQ(toSingle(0.1), 0.1f);
    EXPECT_EQ(toSingle(-5.3), -5.3f);
    EXPECT_EQ(toSingle(largest), std::numeric_limits<float>::max());
    EXPECT_EQ(toSingle(std::nextafter(largest, infinite)), std::numeric_limits<float>::max());
    EXPECT_EQ(toSingle(1e-60), 0.0f);
}

TEST(ToSingle, OverflowsBeyondTheLargestSingle) {
    const double midway = std::ldexp(2.0 - std::ldexp(1.0, -24), 127);
    EXPECT_EQ(toSingle(std::nextafter(midway, 0.0)), std::numeric_limits<float>::max());
    for (const double value :
         {midway, -midway, 3.5e38, -1e300, infinite, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(errorOf([&] { toSingle(value); }), errOverflow) << value;
}

} // namespace

} // namespace varno
