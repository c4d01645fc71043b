#pragma once

#include <cstddef>
#include <random>
#include <string>

#include "support/typed_texts.h"

namespace varno::testing {

/// Chance that is the same in every run of a seed.
class Dice {
  public:
    explicit Dice(unsigned seed) : random_(seed) {}

    int pick(int first, int last) { return std::uniform_int_distribution<int>(first, last)(random_); }
    template <typename Table>
    const auto& anyOf(const Table& table) {
        return table[static_cast<std::size_t>(pick(0, static_cast<int>(table.size()) - 1))];
    }
    /// Half of the texts are plain numbers, so that the case stays one that can be drawn now and then.
    std::string text() {
        return pick(0, 1) == 0 ? std::to_string(pick(1, 99) / 10.0).substr(0, 3) : anyOf(typedTexts);
    }

  private:
    std::mt19937 random_;
};

} // namespace varno::testing
