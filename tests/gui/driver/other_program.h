#pragma once

#include <thread>

#include "driver/control.h"

namespace varno::gui {

/// A window of another program than the one under test, in the lower right corner of the screen.
class OtherProgram {
  public:
    OtherProgram();
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// The user goes there. \throws GuiError when it does not get the foreground.
    void activate() const;
    bool active() const { return GetForegroundWindow() == window_.handle(); }

  private:
    std::thread thread_;
    Control window_;
};

} // namespace varno::gui
