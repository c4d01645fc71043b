#pragma once

#include <windows.h>

#include <map>
#include <optional>
#include <string>

namespace varno::win32 {

/// The boxes of a window that are marked for the user to look at twice, by their control ID, each with what there is to
/// say of it. A mark is a ground of its own.
class BoxMarks {
  public:
    /// These boxes of the window and no other.
    void show(HWND window, const std::map<int, std::string>& marks);
    /// What there is to say of the box at a place of the screen.
    std::string at(HWND window, POINT place) const;
    /// The same of the box that has the focus.
    std::string ofFocus(HWND window) const;
    /// Answers WM_CTLCOLOREDIT and WM_CTLCOLORSTATIC for a marked box.
    std::optional<LRESULT> ground(HDC dc, HWND box) const;

  private:
    void redraw(HWND window) const;

    std::map<int, std::string> marks_;
};

} // namespace varno::win32
