#pragma once

#include "drawing/recording_canvas.h"
#include "win32/window.h"

namespace varno::win32 {

/// A picture area: paints a recorded drawing in one go, so that it does not flicker, as often as it is
/// uncovered.
class PictureWindow : public Window {
  public:
    using Window::Window;

    /// `name` is for screen readers. The picture outlives the window.
    void create(HWND parent, int id, const std::string& name, const RecordingCanvas& picture);
    void setDpi(int dpi);
    /// Paints the drawing as it is now.
    void redraw() { InvalidateRect(handle(), nullptr, FALSE); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void paint();

    const RecordingCanvas* picture_ = nullptr;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
};

} // namespace varno::win32
