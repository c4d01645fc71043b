#pragma once

#include <string>
#include <vector>

#include "driver/control.h"

namespace varno::gui {

struct Pixel {
    int red;
    int green;
    int blue;
    bool operator==(const Pixel&) const = default;
};

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels; ///< row by row from the top

    Pixel at(int x, int y) const;
    /// A pixel of this colour (each part within `tolerance`) stands at most `reach` pixels from the place.
    bool has(const Pixel& colour, int x, int y, int reach = 1, int tolerance = 8) const;
    int count(const Pixel& colour, int tolerance = 8) const;
};

inline constexpr Pixel black{0, 0, 0};
inline constexpr Pixel darkRed{0x80, 0, 0};
inline constexpr Pixel white{255, 255, 255};

/// A picture file (binary PPM). \throws GuiError.
Picture readPpm(const std::string& path);
/// What the screen shows of a window's client area.
Picture shownBy(const Control& window);

} // namespace varno::gui
