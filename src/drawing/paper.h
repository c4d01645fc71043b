#pragma once

#include <algorithm>

namespace varno {

/// The margins of a text on paper, mm: the left one to file the page.
inline constexpr int filingMargin = 20;
inline constexpr int textMargin = 15;

/// A page in one direction, in the printer's pixels.
struct PaperAxis {
    int length;
    int offset;    ///< the edge that cannot be printed on, on the side that the coordinates begin
    int printable; ///< what lies between that edge and the one at the other end
    int perInch;
};

/// Where text begins and ends in the coordinates of the printable area.
struct TextRange {
    int begin;
    int end;
    int length() const { return end - begin; }
    bool operator==(const TextRange&) const = default;
};

/// The range with these margins, in mm. An edge that cannot be printed on and is wider is margin enough.
constexpr TextRange textRange(const PaperAxis& axis, int marginBefore, int marginBehind) {
    const auto pixels = [&](int mm) { return mm * axis.perInch * 10 / 254; };
    const int edgeBehind = std::max(0, axis.length - axis.offset - axis.printable);
    const int begin = std::max(0, pixels(marginBefore) - axis.offset);
    return {begin, axis.printable - std::max(0, pixels(marginBehind) - edgeBehind)};
}

} // namespace varno
