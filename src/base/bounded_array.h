#pragma once

#include <array>
#include <cstddef>

#include "base/run_time_error.h"

namespace varno {

/// An array with the index range First..Last of the design case. An index outside raises run-time error 9, so
/// that a damaged file (17 spans, rule set 7) ends in a message and never in foreign memory.
template <typename T, int First, int Last>
class BoundedArray {
  public:
    static constexpr int first = First;
    static constexpr int last = Last;

    constexpr T& operator()(int index) { return cells_[checked(index)]; }
    constexpr const T& operator()(int index) const { return cells_[checked(index)]; }

    constexpr auto begin() const { return cells_.begin(); }
    constexpr auto end() const { return cells_.end(); }
    bool operator==(const BoundedArray&) const = default;

  private:
    static constexpr std::size_t checked(int index) {
        if (index < First || index > Last) throw RunTimeError(errSubscriptOutOfRange);
        return static_cast<std::size_t>(index - First);
    }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> cells_{};
};

} // namespace varno
