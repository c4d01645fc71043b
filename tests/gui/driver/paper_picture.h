#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace varno::gui {

/// A page as it looks on paper.
class PaperPicture {
  public:
    PaperPicture() = default;
    /// From a picture file (binary PPM). \throws GuiError.
    explicit PaperPicture(const std::string& path);

    int width() const { return width_; }
    int height() const { return height_; }
    /// There is a pixel of this colour at most `reach` pixels from the place. Rendering blends the edge of what
    /// is drawn with the paper, so only what is wider than a pixel has its pure colour somewhere.
    bool has(COLORREF colour, double x, double y, int reach = 1) const;
    int count(COLORREF colour) const;
    /// The smallest box around all that is not white, empty on an empty page. Right and bottom lie outside.
    RECT inked() const;

  private:
    COLORREF at(int x, int y) const { return pixels_[static_cast<std::size_t>(y * width_ + x)]; }

    int width_ = 0;
    int height_ = 0;
    std::vector<COLORREF> pixels_; // row by row from the top
};

} // namespace varno::gui
