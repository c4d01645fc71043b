#pragma once

#include <windows.h>

#include <commctrl.h>

namespace varno {

/// The main window's toolbar: one button per key of the table, with pictures drawn for its resolution.
class Toolbar {
  public:
    ~Toolbar();
    Toolbar() = default;
    Toolbar(const Toolbar&) = delete;
    Toolbar& operator=(const Toolbar&) = delete;

    void create(HWND parent);
    /// Draws the pictures for a resolution.
    void setDpi(int dpi);
    void setEnabled(int id, bool enabled);
    HWND handle() const { return handle_; }

  private:
    HWND handle_ = nullptr;
    HIMAGELIST images_ = nullptr;
    HIMAGELIST fadedImages_ = nullptr;
};

} // namespace varno
