#pragma once

#include <windows.h>

#include "shell/main_layout.h"
#include "shell/status_line.h"

namespace varno {

/// The labels of the status line, at the foot of the main window.
class StatusLabels {
  public:
    void create(HWND owner);
    void setFont(HFONT font);
    void place(const MainLayout& layout);
    void show(const StatusWords& words);
    /// A place of the screen is where the state is told, whatever the line shows just now.
    bool onState(POINT place) const;

  private:
    HWND label(int part) const { return GetDlgItem(owner_, part); }

    HWND owner_ = nullptr;
    StatusWords shown_;
};

} // namespace varno
