#pragma once

#include <string>
#include <vector>

#include "driver/program.h"

namespace varno::gui {

/// Takes the tour's pictures, and only of windows that show what they ought to: a window that is there and cannot
/// be seen is a tour that failed.
///
/// A picture is asked for by writing its name, and the place on the screen that must not be of one colour, to the file
/// shot-request.txt; whoever takes it deletes the file.
class Camera {
  public:
    Camera(const Program& program, std::string folder);

    /// \param controls what of the window the picture is about
    /// \throws GuiError when the client area or one of the controls is not inside the window and on the screen, or is
    ///         of one colour there
    void take(const std::string& name, const Control& window, const std::vector<Control>& controls);

  private:
    const Program& program_;
    std::string folder_;
    int pictures_ = 0;
};

} // namespace varno::gui
