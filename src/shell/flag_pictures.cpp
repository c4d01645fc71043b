#include "shell/flag_pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace varno {

namespace {

using enum FlagShape::Kind;

constexpr unsigned swedishBlue = 0x005293;
constexpr unsigned swedishYellow = 0xFECB00;
constexpr unsigned europeBlue = 0x003399;
constexpr unsigned europeGold = 0xFFCC00;

constexpr FlagShape field(unsigned colour) {
    return {rectangle, colour, 0, 0, 160, 100};
}

// The proportions of the flags' own laws: Sweden 5-2-9 by 4-2-4, Denmark 12-4-21 by 12-4-12, Finland 5-3-10
// by 4-3-4.
constexpr std::array sweden{
    field(swedishBlue),
    FlagShape{rectangle, swedishYellow, 50, 0, 20, 100},
    FlagShape{rectangle, swedishYellow, 0, 40, 160, 20},
};
constexpr std::array denmark{
    field(0xC8102E),
    FlagShape{rectangle, 0xFFFFFF, 52, 0, 17, 100},
    FlagShape{rectangle, 0xFFFFFF, 0, 42, 160, 16},
};
constexpr std::array finland{
    field(0xFFFFFF),
    FlagShape{rectangle, 0x002F6C, 44, 0, 27, 100},
    FlagShape{rectangle, 0x002F6C, 0, 36, 160, 28},
};
constexpr std::array poland{
    field(0xFFFFFF),
    FlagShape{rectangle, 0xDC143C, 0, 50, 160, 50},
};
constexpr std::array neutral{
    field(0xD8D8D8),
    FlagShape{rectangle, 0xA0A0A0, 66, 44, 28, 12},
};

constexpr int stars = 12;

// Twelve stars on a circle, as on the face of a clock, behind `before` further shapes.
template <std::size_t before>
std::array<FlagShape, before + stars> withStars(const std::array<FlagShape, before>& back, double x, double y,
                                                double ring, double radius) {
    std::array<FlagShape, before + stars> shapes{};
    std::copy(back.begin(), back.end(), shapes.begin());
    for (int i = 0; i < stars; ++i) {
        const double angle = 2 * std::numbers::pi * i / stars;
        shapes[before + static_cast<std::size_t>(i)] = {
            star, europeGold, x + ring * std::sin(angle), y - ring * std::cos(angle), radius, radius};
    }
    return shapes;
}

} // namespace

std::span<const FlagShape> flagShapes(int flag) {
    static const auto swedishEurocode = withStars(
        std::array{sweden[0], sweden[1], sweden[2], FlagShape{rectangle, europeBlue, 82, 0, 78, 68}}, 121, 34,
        25, 6);
    static const auto europe = withStars(std::array{field(europeBlue)}, 80, 50, 33, 6.5);
    switch (flag) {
    case 1:
        return sweden;
    case 2:
        return swedishEurocode;
    case 3:
        return denmark;
    case 4:
        return finland;
    case 5:
        return poland;
    case 6:
        return europe;
    default:
        return neutral;
    }
}

} // namespace varno
