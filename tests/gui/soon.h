#pragma once

#include <gtest/gtest.h>

#include <source_location>

#include "driver/program.h"

namespace varno::gui {

/// Waits until `actual` gives `expected`; the test fails with both when it does not come to that.
template <typename Expected, typename Actual>
void expectSoon(const Program& program, const Expected& expected, Actual actual,
                std::source_location place = std::source_location::current()) {
    program.until([&] { return actual() == expected; });
    const ::testing::ScopedTrace trace(place.file_name(), static_cast<int>(place.line()), "expected soon");
    EXPECT_EQ(actual(), expected);
}

inline void expectCaption(const Program& program, const std::string& caption,
                          std::source_location place = std::source_location::current()) {
    expectSoon(
        program, caption, [&] { return program.caption(); }, place);
}

} // namespace varno::gui
