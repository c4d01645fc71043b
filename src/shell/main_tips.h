#pragma once

#include <vector>

#include "input/sketch_tips.h"
#include "win32/tips.h"

namespace varno {

/// The tips of the main window's parts: the flag, and the sketch as it is drawn now.
class MainTips {
  public:
    explicit MainTips(win32::WindowHost& host) : flags_(host), sketch_(host) {}
    /// Names what a click on each flag does.
    void create(HWND main);
    void showSketch(SketchTips tips);
    /// The picture areas have another size.
    void placeAgain();

  private:
    void addParts(std::vector<win32::Tip>& tips, HWND window, double start, double width) const;

    HWND loadPicture_ = nullptr;
    HWND strip_ = nullptr;
    std::vector<HWND> supports_;
    SketchTips shown_;
    win32::Tips flags_;
    win32::Tips sketch_;
};

} // namespace varno
