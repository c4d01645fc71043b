#pragma once

#include <gtest/gtest.h>

#include <string>

namespace varno::testing {

/// What varnotool says of a run-time error: what happened comes first, the number on the last line. The advice that may
/// stand between them belongs to the error's words.
inline void expectTold(const std::string& said, const std::string& happened, const std::string& number) {
    EXPECT_TRUE(said.starts_with(happened + "\n")) << said;
    EXPECT_TRUE(said.ends_with("\nrun-time error " + number + "\n")) << said;
}

} // namespace varno::testing
