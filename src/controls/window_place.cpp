#include "controls/window_place.h"

#include <algorithm>
#include <cstdint>

namespace varno {

namespace {

// Numbers of a damaged file may be anything.
std::int64_t overlap(std::int64_t begin, std::int64_t length, std::int64_t otherBegin,
                     std::int64_t otherLength) {
    return std::max<std::int64_t>(0, std::min(begin + length, otherBegin + otherLength) -
                                         std::max(begin, otherBegin));
}

std::int64_t shared(const Area& a, const Area& b) {
    return overlap(a.x, a.width, b.x, b.width) * overlap(a.y, a.height, b.y, b.height);
}

} // namespace

std::optional<Area> placeOnScreens(const WindowPlace& place, const std::vector<Screen>& screens) {
    const Screen* most = nullptr;
    std::int64_t largest = 0;
    for (const Screen& screen : screens) {
        const std::int64_t area = shared(place.area, screen.work);
        if (area <= largest) continue;
        largest = area;
        most = &screen;
    }
    if (most == nullptr || place.dpi <= 0) return std::nullopt;
    const Area& work = most->work;
    const auto scaled = [&](int length, int room) {
        return static_cast<int>(std::min<std::int64_t>(std::int64_t{length} * most->dpi / place.dpi, room));
    };
    Area out{0, 0, scaled(place.area.width, work.width), scaled(place.area.height, work.height)};
    out.x = std::clamp(place.area.x, work.x, work.right() - out.width);
    out.y = std::clamp(place.area.y, work.y, work.bottom() - out.height);
    return out;
}

} // namespace varno
