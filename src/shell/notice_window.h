#pragma once

#include "win32/form_window.h"

namespace varno {

/// The version notice (`Form10`), shown until the user ticks "Visa inte detta nästa gång".
class VersionNoticeWindow : public win32::FormWindow {
  public:
    VersionNoticeWindow(win32::WindowHost& host, HWND owner);

    /// Modally; true when the box was ticked at "OK".
    bool ask();

  protected:
    void onCommand(int id, int notification) override;

  private:
    bool ticked_ = false;
};

/// The disclaimer (`Form9`): modal at start-up, modeless from the menu "Viktigt".
class DisclaimerWindow : public win32::FormWindow {
  public:
    DisclaimerWindow(win32::WindowHost& host, HWND owner);

    void showModeless();

  protected:
    void onCommand(int id, int notification) override;
};

} // namespace varno
