#pragma once

#include <algorithm>

namespace varno {

/// One direction of a form that may be larger than the room it is shown in, in pixels. A form that is smaller stands in
/// the middle of its room.
class ScrollAxis {
  public:
    void fit(int content, int page) {
        content_ = content;
        page_ = std::max(0, page);
        moveTo(position_);
    }
    int content() const { return content_; }
    int page() const { return page_; }
    int most() const { return std::max(0, content_ - page_); }
    int position() const { return position_; }
    /// Where the form begins in its room.
    int offset() const { return most() > 0 ? -position_ : (page_ - content_) / 2; }

    void moveTo(int position) { position_ = std::clamp(position, 0, most()); }
    /// Moves no farther than it takes to show a part of the form with `margin` around it. Where there is no room for
    /// that, its beginning is shown.
    void reveal(int begin, int end, int margin);

  private:
    int content_ = 0;
    int page_ = 0;
    int position_ = 0;
};

struct PixelSize {
    int width;
    int height;
    bool operator==(const PixelSize&) const = default;
};

struct ScrollBars {
    bool vertical;
    bool horizontal;
    bool operator==(const ScrollBars&) const = default;
};

/// The scroll bars that a form needs in a room. One of them takes room from the other direction.
ScrollBars scrollBarsFor(PixelSize content, PixelSize room, int thickness);

/// Turns of the wheel into pixels. A wheel without notches tells parts of one; nothing of them is lost.
class WheelSteps {
  public:
    /// \param turn 120 to a notch  \param perNotch pixels
    int pixels(int turn, int perNotch);

  private:
    int rest_ = 0;
};

} // namespace varno
