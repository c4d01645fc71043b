#pragma once

#include "shell/rescue.h"
#include "win32/window.h"

namespace varno {

/// Locks are empty files beside the file they stand for. Windows removes one with the last handle to it, also
/// when the program is killed; one that a power cut left behind is held by nobody.
class WindowsRescueLocks : public RescueLocks {
  public:
    std::unique_ptr<Lock> take(const std::string& path) override;
};

class WindowsRescueClock : public RescueClock {
  public:
    std::chrono::seconds running() override;
    std::string dateAndTime() override;
};

/// The folder of the rescue files in the user's local application data, made when it is not there; empty when
/// it cannot be made.
std::string rescueFolder();
/// A name that no other program of this machine has: process numbers come again, with another start time.
std::string rescueInstance();

/// A window that nobody sees: the timer of the rescue, and the end of the Windows session, which Windows tells
/// to top-level windows only.
class RescueWindow : private win32::Window {
  public:
    RescueWindow(win32::WindowHost& host, Rescue& rescue);

  private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    Rescue& rescue_;
};

} // namespace varno
