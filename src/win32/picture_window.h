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
    /// The scale of the surface, in pixels to the inch, and the resolution that its lines are drawn for: on a surface that
    /// has grown they are as thin as ever.
    void setScale(int surfaceDpi, int penDpi);
    /// Paints the drawing as it is now.
    void redraw() { InvalidateRect(handle(), nullptr, FALSE); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void paint();

    const RecordingCanvas* picture_ = nullptr;
    int surfaceDpi_ = USER_DEFAULT_SCREEN_DPI;
    int penDpi_ = USER_DEFAULT_SCREEN_DPI;
};

} // namespace varno::win32
