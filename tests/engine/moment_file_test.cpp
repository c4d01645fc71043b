#include "engine/moment_file.h"

#include "tests/engine/support.h"

#include <gtest/gtest.h>

namespace varno::engine {
namespace {

// As the front-end reads it: items end at a comma or a line end.
std::vector<std::string> items(const std::string& text) {
    std::vector<std::string> found;
    std::string item;
    for (const auto& line : test::crLfLines(text)) {
        for (const char c : line + ",") {
            if (c != ',') {
                item += c;
                continue;
            }
            found.push_back(item);
            item.clear();
        }
    }
    return found;
}

bool isPlainNumber(const std::string& item) {
    const auto digits = item.find_first_not_of("0123456789.", item.starts_with('-') ? 1 : 0);
    return !item.empty() && digits == std::string::npos;
}

TEST(EngineMomentFile, HoldsTheCountAndTwoCurves) {
    for (std::size_t n = 1; n <= 10; ++n) {
        DesignLoads loads;
        for (std::size_t i = 0; i < n; ++i) {
            loads.permanent.push_back(2 + static_cast<double>(i));
            loads.variable.push_back(5 - static_cast<double>(i));
        }
        std::vector<double> upl(n + 1, 0.2);
        upl.front() = upl.back() = 0;
        const auto e = envelope({1, 0.5, std::vector<double>(n, 4.7)}, loads, upl);
        const auto read = items(momentFile(e));
        ASSERT_EQ(read.size(), 1 + 44 * n);
        EXPECT_EQ(read[0], std::to_string(n));
        std::size_t at = 1;
        for (const auto* curves : {&e.upper, &e.lower})
            for (std::size_t i = 0; i < n; ++i) {
                EXPECT_NEAR(std::stod(read[at++]), e.dx[i], 1e-6);
                for (const double moment : (*curves)[i])
                    EXPECT_NEAR(std::stod(read[at++]), moment, 1e-6);
            }
        for (const auto& item : read) {
            EXPECT_TRUE(isPlainNumber(item)) << item;
            EXPECT_FALSE(item.starts_with("-0.000000")) << item;
        }
    }
}

TEST(EngineMomentFile, UpperIsNeverBelowLowerAndSagIsPositive) {
    const auto e = envelope({0, 0, {6}}, {{3}, {2}, {}}, {0, 0});
    const auto read = items(momentFile(e));
    EXPECT_EQ(read[1], "0.300000");
    EXPECT_EQ(read[2 + 10], "22.500000"); // (3 + 2) 6^2 / 8
    EXPECT_EQ(read[23 + 1 + 10], "13.500000");
    EXPECT_EQ(read[2], "0.000000");
    EXPECT_EQ(read[2 + 20], "0.000000");
}

} // namespace
} // namespace varno::engine
