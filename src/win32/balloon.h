#pragma once

#include <string>

#include "win32/window.h"

namespace varno::win32 {

/// A word beside a control: it takes no focus, makes no sound, lies in nobody's way and goes by itself.
///
/// A tooltip window and not the edit control's own balloon: that one sounds, and it is only there under some
/// themes.
class Balloon : private Window {
  public:
    explicit Balloon(WindowHost& host) : Window(host) {}
    ~Balloon() override;

    /// Until `hide`, or for ten seconds; one that is shown stays as it is.
    void show(HWND control, const std::string& text);
    void hide();

  private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    HWND tip_ = nullptr;
};

} // namespace varno::win32
