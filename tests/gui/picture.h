#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace varno::gui {

/// What is on the screen where a window lies.
class Picture {
  public:
    /// \throws GuiError when the screen cannot be read.
    static Picture ofScreen(HWND window);

    int width() const { return width_; }
    int height() const { return height_; }
    COLORREF at(int x, int y) const;
    /// The columns of a row that have this colour, from the left.
    std::vector<int> columns(int y, COLORREF colour) const;
    /// The rows of a column that have this colour, from the top.
    std::vector<int> rows(int x, COLORREF colour) const;
    int count(COLORREF colour) const;
    bool operator==(const Picture&) const = default;

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<COLORREF> pixels_;
};

} // namespace varno::gui
