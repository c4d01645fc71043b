#pragma once

#include <cmath>

#include "drawing/canvas.h"

namespace varno {

/// A rectangle in pixels.
struct Area {
    int x;
    int y;
    int width;
    int height;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
    bool operator==(const Area&) const = default;
};

/// A length in twips at a resolution.
inline int pixelsOf(double twips, int dpi) {
    return static_cast<int>(std::lround(twips * dpi / twipsPerInch));
}

/// The resolution at which a length in twips fills so many pixels.
inline int dpiFor(int pixels, int twips) {
    return static_cast<int>(pixels * twipsPerInch / twips);
}

} // namespace varno
