#pragma once

#include <array>
#include <cstdint>

#include "base/run_time_error.h"

namespace varno {

struct Rgb {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
    bool operator==(const Rgb&) const = default;
};

/// The sixteen colours that drawings name by number.
inline constexpr std::array<Rgb, 16> palette{{
    {0x00, 0x00, 0x00}, // 0 black
    {0x00, 0x00, 0x80}, // 1 blue
    {0x00, 0x80, 0x00}, // 2 green
    {0x00, 0x80, 0x80}, // 3 cyan
    {0x80, 0x00, 0x00}, // 4 red
    {0x80, 0x00, 0x80}, // 5 magenta
    {0x80, 0x80, 0x00}, // 6 yellow
    {0xC0, 0xC0, 0xC0}, // 7 white
    {0x80, 0x80, 0x80}, // 8 grey
    {0x00, 0x00, 0xFF}, // 9 light blue
    {0x00, 0xFF, 0x00}, // 10 light green
    {0x00, 0xFF, 0xFF}, // 11 light cyan
    {0xFF, 0x00, 0x00}, // 12 light red
    {0xFF, 0x00, 0xFF}, // 13 light magenta
    {0xFF, 0xFF, 0x00}, // 14 light yellow
    {0xFF, 0xFF, 0xFF}, // 15 bright white
}};

/// A ground that a foreground of this colour is read on is dark.
constexpr bool isLight(Rgb rgb) {
    return rgb.red * 299 + rgb.green * 587 + rgb.blue * 114 > 127 * 1000;
}

/// The drawing colour of the surface, or one of the palette: what the foreground is, only the surface knows
/// (black on paper, the system's window text on the screen).
class Colour {
  public:
    static constexpr Colour foreground() { return Colour(-1); }
    /// \throws RunTimeError 9 for a number outside 0..15.
    static constexpr Colour numbered(int number) {
        if (number < 0 || number > 15) throw RunTimeError(errSubscriptOutOfRange);
        return Colour(number);
    }

    constexpr bool isForeground() const { return number_ < 0; }
    constexpr int number() const { return number_; } ///< of the palette; below 0 for the foreground
    constexpr Rgb rgb(Rgb ofForeground) const {
        return isForeground() ? ofForeground : palette[static_cast<std::size_t>(number_)];
    }
    /// What takes its place on a dark ground, on which the dark half of the palette cannot be seen: the light twin, which
    /// stands eight numbers further on.
    constexpr Colour onDark() const { return number_ >= 1 && number_ <= 6 ? Colour(number_ + 8) : *this; }
    bool operator==(const Colour&) const = default;

  private:
    explicit constexpr Colour(int number) : number_(number) {}
    int number_;
};

inline constexpr Colour green = Colour::numbered(2);
inline constexpr Colour red = Colour::numbered(4);
inline constexpr Colour brightWhite = Colour::numbered(15);

} // namespace varno
