#pragma once

#include <windows.h>

#include <string>

namespace varno::win32 {

/// Words that come up when the pointer rests on a control or on a part of a window, and go by themselves.
class Tips {
  public:
    Tips() = default;
    ~Tips() { clear(); }
    Tips(const Tips&) = delete;
    Tips& operator=(const Tips&) = delete;

    /// A control that takes the mouse; a locked one does not.
    void add(HWND control, const std::string& text);
    /// A part of a window's client area.
    void addPart(HWND window, const RECT& part, const std::string& text);
    void clear();

  private:
    void addTool(HWND owner, UINT flags, UINT_PTR id, const RECT& part, const std::string& text);

    HWND tip_ = nullptr;
    UINT_PTR parts_ = 0;
};

} // namespace varno::win32
