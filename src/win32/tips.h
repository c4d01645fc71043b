#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "win32/window.h"

namespace varno::win32 {

/// Words about a control that takes the mouse (a locked one does not), or about a part of a window's client area.
struct Tip {
    HWND window;
    std::optional<RECT> part;
    std::string text;
};

/// Words that come up when the pointer rests on what they are about, and go by themselves. The program's message loop tells
/// them of the pointer: left to themselves, they would look at every message of every control that they are about.
class Tips {
  public:
    explicit Tips(WindowHost& host) : host_(host) {}
    ~Tips() { clear(); }
    Tips(const Tips&) = delete;
    Tips& operator=(const Tips&) = delete;

    void add(HWND control, const std::string& text) { add({control, std::nullopt, text}); }
    void add(Tip tip);
    /// These and no others. Of the same windows in the same order only what changed is told: making them anew costs more
    /// than drawing the sketch that they are about.
    void show(const std::vector<Tip>& tips);

  private:
    void create(HWND owner);
    void clear();
    void change(std::size_t place, const Tip& tip);

    WindowHost& host_;
    HWND window_ = nullptr;
    std::vector<Tip> tips_;
};

} // namespace varno::win32
