#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "controls/activation.h"
#include "controls/window_place.h"
#include "win32/accessible_names.h"

namespace varno::win32 {

/// What a window needs of the program around it.
class WindowHost {
  public:
    virtual ~WindowHost() = default;
    /// Takes a run-time error that stopped an event. It is shown when the event is over, never from inside
    /// it: a message box in the middle of a focus change would change the focus again.
    virtual void report(const RunTimeError& error) = 0;
    /// Handles the dialog keys and accelerators of one message of the queue; true when nothing is left to do
    /// with it.
    virtual bool translate(MSG& message) = 0;
    /// Where a window of a class was left by an earlier run, on the screens that there are now; nothing when it is to
    /// stand where it stands of itself.
    virtual std::optional<WindowPlace> keptPlace(const std::string&) { return std::nullopt; }
    /// Which of the program's windows is the active one.
    Activation& activation() { return activation_; }
    /// The tooltip windows that are to hear of the pointer.
    std::vector<HWND>& tips() { return tips_; }
    /// Runs one event's rules; a run-time error stops it and is reported.
    template <typename Event>
    void guarded(Event event) {
        try {
            event();
        } catch (const RunTimeError& error) {
            report(error);
        }
    }

  private:
    Activation activation_;
    std::vector<HWND> tips_;
};

/// Hands one message of the queue to the window it belongs to.
void dispatch(WindowHost& host, MSG& message);

/// A window of a class of the program's own. It is destroyed with its object.
class Window {
  public:
    explicit Window(WindowHost& host) : host_(host) {}
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND handle() const { return handle_; }
    bool exists() const { return handle_ != nullptr; }
    /// Shows it, restored, as the foremost window.
    void bringForward();

  protected:
    struct Place {
        int x = CW_USEDEFAULT;
        int y = CW_USEDEFAULT;
        int width = CW_USEDEFAULT;
        int height = CW_USEDEFAULT;
    };
    /// Registers the class when it is new and creates the window; `menu` is the ID of a child window.
    void create(const wchar_t* className, const std::string& text, DWORD style, DWORD exStyle, HWND parent,
                HMENU menu, Place place);
    void destroy();
    /// Names the window itself for screen readers, as nameForScreenReaders does a control.
    void speakAs(const std::string& name, long role = 0) { spoken_.emplace(name, role); }

    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT defaultProc(UINT message, WPARAM wParam, LPARAM lParam);

    WindowHost& host() { return host_; }
    /// WM_ACTIVATE of a top-level window: tells the program of it, and keeps the focus for the way back. True
    /// when the window is active again and nothing of the program's own came between.
    bool activationChanged(WPARAM wParam, LPARAM lParam);
    /// Gives the focus to the control that had it when the window was left; Windows gives it to the window itself.
    bool restoreFocus();

  private:
    static void registerClass(const wchar_t* className);
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    WindowHost& host_;
    HWND handle_ = nullptr;
    HWND lastFocus_ = nullptr;
    std::optional<SpokenName> spoken_;
};

/// The instance of the program.
HINSTANCE programInstance();

/// A control of a class of Windows, not placed yet.
HWND createControl(HWND parent, int id, const wchar_t* className, std::string_view text, DWORD style,
                   DWORD exStyle = 0, void* parameter = nullptr);
/// The part of a window's monitor that no task bar covers.
RECT workAreaOf(HWND window);

/// Moves and sizes a window and does nothing else with it.
void setPlace(HWND window, int x, int y, int width, int height);
inline void setPlace(HWND window, const RECT& box) {
    setPlace(window, box.left, box.top, box.right - box.left, box.bottom - box.top);
}

} // namespace varno::win32
