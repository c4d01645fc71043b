#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "base/numbers.h"
#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;

struct Formatted {
    double value;
    const char* pattern;
    const char* text;
};

constexpr Formatted formattedDoubles[] = {
    // The patterns of the files
    {6, "##0.000", "6.000"},
    {12.5, "##0.000", "12.500"},
    {0.25, "##0.000", "0.250"},
    {-1.5, "##0.000", "-1.500"},
    {0, "##0.000", "0.000"},
    {1234.567, "##0.000", "1234.567"},
    {999.9995, "##0.000", "1000.000"},
    {0.25, "#0.000", "0.250"},
    {12, "##0", "12"},
    {0, "##0", "0"},
    {-123, "##0", "-123"},
    // The patterns of the form
    {2.5, "#0.00", "2.50"},
    {25.4, "#0.00", "25.40"},
    {123.456, "#0.00", "123.46"},
    {7.6, "#0", "8"},
    {0.1, "0.000", "0.100"},
    {400, "####", "400"},
    {12345, "####", "12345"},
    {-4, "####", "-4"},
    {0, "####", ""},
    {0.4, "####", ""},
    {-0.4, "####", ""},
    // Half away from zero, on the decimal text and not on the binary value
    {0.5, "#0", "1"},
    {1.5, "#0", "2"},
    {2.5, "#0", "3"},
    {-2.5, "#0", "-3"},
    {2.675, "0.00", "2.68"},
    {1.005, "0.00", "1.01"},
    {-1.005, "0.00", "-1.01"},
    {0.0005, "##0.000", "0.001"},
    {0.00049999, "##0.000", "0.000"},
    {0.05, "0.0", "0.1"},
    {0.95, "0.0", "1.0"},
    {9.995, "#0.00", "10.00"},
    // No minus sign before a zero
    {-0.0, "#0.00", "0.00"},
    {-0.004, "#0.00", "0.00"},
    {-0.005, "#0.00", "-0.01"},
    {-0.4, "#0", "0"},
    // Thousands
    {0, "##,##0.00", "0.00"},
    {999.99, "##,##0.00", "999.99"},
    {999.999, "##,##0.00", "1,000.00"},
    {1234, "##,##0.00", "1,234.00"},
    {-1234.5, "##,##0.00", "-1,234.50"},
    {123456, "##,##0.00", "123,456.00"},
    {1234567.891, "##,##0.00", "1,234,567.89"},
    // Very large and very small
    {1e15, "#0.00", "1000000000000000.00"},
    {1e22, "#0", "10000000000000000000000"},
    {5e-324, "#0.00", "0.00"},
};

TEST(FormatNumber, ShowsADoubleInAPattern) {
    for (const Formatted& row : formattedDoubles)
        EXPECT_EQ(formatNumber(row.value, row.pattern), row.text) << row.value << " in " << row.pattern;
    EXPECT_EQ(formatNumber(1e300, "#0"), "1" + std::string(300, '0'));
}

// A single is rounded on its own shortest text: as a double, 2.675f would be 2.67499995... and give 2.67.
TEST(FormatNumber, RoundsASingleOnTheTextOfTheSingle) {
    EXPECT_EQ(formatNumber(2.675f, "0.00"), "2.68");
    EXPECT_EQ(formatNumber(static_cast<double>(2.675f), "0.00"), "2.67");
    EXPECT_EQ(formatNumber(0.1755f, "0.000"), "0.176");
    EXPECT_EQ(formatNumber(0.1f, "0.000000000"), "0.100000000");
    EXPECT_EQ(formatNumber(5.3f, "#0.00"), "5.30");
    EXPECT_EQ(formatNumber(16777216.0f, "#0"), "16777216");
    EXPECT_EQ(formatNumber(-0.0f, "0.000"), "0.000");
}

template <typename Float>
void expectTheSameAppended(Float value) {
    for (const char* const pattern :
         {"##0.000", "#0.000", "##0", "#0.00", "0.0", "####", "#.00", "#0.0000", "#0.", "##,##0.0"}) {
        std::string text = "x";
        appendNumber(text, value, pattern);
        ASSERT_EQ(text, "x" + formatNumber(value, pattern)) << value << " in " << pattern;
    }
}

TEST(AppendNumber, IsTheSameTheShortWayAndTheLong) {
    for (int thousandths = -20000; thousandths <= 20000; thousandths += 7) {
        const double value = thousandths / 1000.0;
        expectTheSameAppended(value);
        expectTheSameAppended(static_cast<float>(value));
        expectTheSameAppended(std::nextafter(value, 1e9));
        expectTheSameAppended(std::nextafter(static_cast<float>(value), 1e9f));
    }
    std::mt19937 random(20261122);
    for (int round = 0; round < 20000; ++round) {
        // As many digits as a single or double tells apart, and some more.
        const double digits = std::floor(std::pow(10.0, static_cast<double>(random() % 1800) / 100.0));
        const double value = digits / std::pow(10.0, random() % 6) * (random() % 2 == 0 ? 1 : -1);
        expectTheSameAppended(value);
        expectTheSameAppended(static_cast<float>(value));
    }
    expectTheSameAppended(-0.0);
    expectTheSameAppended(1e300);
    expectTheSameAppended(5e-324);
    expectTheSameAppended(std::numeric_limits<float>::max());
    expectTheSameAppended(std::numeric_limits<float>::denorm_min());
    std::string text;
    EXPECT_EQ(errorOf([&] { appendNumber(text, HUGE_VAL, "#0"); }), errOverflow);
    EXPECT_EQ(errorOf([&] { appendNumber(text, std::numeric_limits<float>::quiet_NaN(), "#0"); }),
              errOverflow);
}

TEST(FormatNumber, UsesTheSignsOfTheLocaleGiven) {
    const NumberLocale swedish{.decimal = ",", .thousands = "\u00A0"};
    EXPECT_EQ(formatNumber(1234567.5, "##,##0.00", swedish), "1\u00A0234\u00A0567,50");
    EXPECT_EQ(formatNumber(-0.25f, "#0.00", swedish), "-0,25");
    EXPECT_EQ(formatNumber(1234.0, "#0", swedish), "1234");
}

TEST(FormatNumber, OverflowsForAValueThatIsNotFinite) {
    for (const double value : {HUGE_VAL, -HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(errorOf([&] { formatNumber(value, "#0"); }), errOverflow);
        EXPECT_EQ(errorOf([&] { formatNumber(static_cast<float>(value), "#0"); }), errOverflow);
        EXPECT_EQ(errorOf([&] { generalForm(static_cast<float>(value)); }), errOverflow);
    }
}

TEST(GeneralForm, IsTheShortestTextThatReadsBack) {
    const struct {
        float value;
        const char* text;
    } rows[] = {
        {0, "0"},
        {-0.0f, "0"},
        {1, "1"},
        {-1, "-1"},
        {1.2f, "1.2"},
        {-2.75f, "-2.75"},
        {0.1f, "0.1"},
        {100, "100"},
        {123456.7f, "123456.7"},
        {9999999, "9999999"},
        {1e7f, "1E+07"},
        {12345678, "1.2345678E+07"},
        {16777216, "1.6777216E+07"},
        {-3.4028235e38f, "-3.4028235E+38"},
        {0.0001f, "0.0001"},
        {0.00012345f, "0.00012345"},
        {0.00001f, "1E-05"},
        {-0.000025f, "-2.5E-05"},
        {1e-45f, "1E-45"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(generalForm(row.value), row.text);
    EXPECT_EQ(generalForm(0.1), "0.1");
    EXPECT_EQ(generalForm(static_cast<double>(0.1f)), "0.10000000149011612");
    EXPECT_EQ(generalForm(1e300), "1E+300");
}

TEST(GeneralForm, ReadsBackAsTheSameSingle) {
    std::mt19937 random(20240607);
    int tried = 0;
    while (tried < 50000) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value)) continue;
        ++tried;
        const std::string text = generalForm(value);
        ASSERT_EQ(toSingle(VARNO1::parseNumber(text)), value) << text;
        ASSERT_LE(text.size(), 15u) << text;
    }
}

} // namespace

} // namespace varno
