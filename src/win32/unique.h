#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

// Every handle of the program is owned by one of these.

namespace varno::win32 {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const {
        if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
    }
};
/// A kernel object. INVALID_HANDLE_VALUE counts as an owned value; test for it where it is made.
using UniqueHandle = std::unique_ptr<HANDLE, HandleCloser>;

template <typename Handle>
struct GdiDeleter {
    using pointer = Handle;
    void operator()(Handle handle) const { DeleteObject(handle); }
};
using UniqueFont = std::unique_ptr<HFONT, GdiDeleter<HFONT>>;
using UniqueBrush = std::unique_ptr<HBRUSH, GdiDeleter<HBRUSH>>;
using UniquePen = std::unique_ptr<HPEN, GdiDeleter<HPEN>>;
using UniqueBitmap = std::unique_ptr<HBITMAP, GdiDeleter<HBITMAP>>;

struct DcDeleter {
    using pointer = HDC;
    void operator()(HDC dc) const { DeleteDC(dc); }
};
/// A device context that was created (a memory or printer DC), not one got from a window.
using UniqueDc = std::unique_ptr<HDC, DcDeleter>;

struct IconDestroyer {
    using pointer = HICON;
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
using UniqueIcon = std::unique_ptr<HICON, IconDestroyer>;

struct MenuDestroyer {
    using pointer = HMENU;
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};
/// A menu that no window owns.
using UniqueMenu = std::unique_ptr<HMENU, MenuDestroyer>;

/// Selects an object into a device context for as long as it lives.
class Selected {
  public:
    Selected(HDC dc, HGDIOBJ object) : dc_(dc), old_(SelectObject(dc, object)) {}
    ~Selected() { SelectObject(dc_, old_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC dc_;
    HGDIOBJ old_;
};

/// The device context of a window outside WM_PAINT.
class WindowDc {
  public:
    explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
    ~WindowDc() { ReleaseDC(window_, dc_); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    HDC get() const { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

} // namespace varno::win32
