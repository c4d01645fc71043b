#pragma once

#include <optional>
#include <vector>

#include "drawing/annotated_picture.h"
#include "drawing/recording_canvas.h"
#include "win32/window.h"

namespace varno::win32 {

/// Takes what the pointer does over a picture area.
class PictureEvents {
  public:
    virtual ~PictureEvents() = default;
    /// It is at this x of the picture, in twips, or left it.
    virtual void pointedAt(std::optional<double> x) = 0;
};

/// A picture area: paints a recorded drawing in one go, so that it does not flicker, as often as it is
/// uncovered.
class PictureWindow : public Window {
  public:
    using Window::Window;

    /// `name` is for screen readers. The picture outlives the window.
    void create(HWND parent, int id, const std::string& name, const RecordingCanvas& picture);
    void listen(PictureEvents& events) { events_ = &events; }
    /// The scale of the surface, in pixels to the inch, and the resolution that its lines are drawn for: on a surface that
    /// has grown they are as thin as ever.
    void setScale(int surfaceDpi, int penDpi);
    /// Words to write into it; they stay until others come.
    void setTexts(std::vector<PictureText> texts);
    /// The picture with its words, for other programs.
    AnnotatedPicture annotated(double width, double height) const {
        return {*picture_, width, height, texts_};
    }
    /// Paints the drawing as it is now.
    void redraw() { InvalidateRect(handle(), nullptr, FALSE); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void paint();
    void pointerMoved(int x);

    const RecordingCanvas* picture_ = nullptr;
    std::vector<PictureText> texts_;
    PictureEvents* events_ = nullptr;
    bool pointedAt_ = false;
    int surfaceDpi_ = USER_DEFAULT_SCREEN_DPI;
    int penDpi_ = USER_DEFAULT_SCREEN_DPI;
};

} // namespace varno::win32
