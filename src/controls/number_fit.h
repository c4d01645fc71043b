#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace varno {

/// The faces that a number is shown in, by their size in per cent of the ordinary one. A number too wide for its box is
/// drawn smaller: cut off it would look like another number. Smaller than the last of them nobody could read it.
inline constexpr std::array faceSizes{100, 92, 84, 77, 70, 64};

struct NumberFit {
    std::size_t face; ///< of `faceSizes`
    bool whole;       ///< false when even the smallest is too wide
    bool operator==(const NumberFit&) const = default;
};

/// The largest face in which a number fits a box. \param widths of the number in each of the faces
constexpr NumberFit fitNumber(std::span<const int, faceSizes.size()> widths, int room) {
    for (std::size_t face = 0; face < widths.size(); ++face) {
        if (widths[face] <= room) return {face, true};
    }
    return {widths.size() - 1, false};
}

} // namespace varno
