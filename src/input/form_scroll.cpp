#include "input/form_scroll.h"

namespace varno {

void ScrollAxis::reveal(int begin, int end, int margin) {
    const int low = begin - margin;
    const int high = end + margin;
    if (high > position_ + page_) moveTo(high - page_);
    if (low < position_) moveTo(low);
}

ScrollBars scrollBarsFor(PixelSize content, PixelSize room, int thickness) {
    const bool tall = content.height > room.height;
    const bool wide = content.width > room.width - (tall ? thickness : 0);
    return {tall || (wide && content.height > room.height - thickness), wide};
}

int WheelSteps::pixels(int turn, int perNotch) {
    constexpr int notch = 120;
    // What was left of a turn the other way would swallow the beginning of this one.
    if ((turn < 0) != (rest_ < 0)) rest_ = 0;
    rest_ += turn * perNotch;
    const int whole = rest_ / notch;
    rest_ -= whole * notch;
    return whole;
}

} // namespace varno
