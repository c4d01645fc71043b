#pragma once

#include <optional>
#include <vector>

#include "drawing/area.h"

namespace varno {

/// Where a window was left, in pixels of all screens together.
struct WindowPlace {
    Area area{};
    int dpi = 96; ///< that its size was meant for
    bool maximized = false;
    bool operator==(const WindowPlace&) const = default;
};

/// A screen without its task bar.
struct Screen {
    Area work;
    int dpi = 96;
};

/// The place where a window comes back: whole on the screen that it was on most, as large as it was there. Nothing when
/// that screen is gone.
std::optional<Area> placeOnScreens(const WindowPlace& place, const std::vector<Screen>& screens);

} // namespace varno
