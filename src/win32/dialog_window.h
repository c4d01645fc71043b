#pragma once

#include "win32/form_window.h"

namespace varno::win32 {

/// A window of texts and of the buttons of a message box (OK, Cancel, Yes, No), each of which closes it.
class DialogWindow : public FormWindow {
  public:
    /// Hidden, with a client area of `size` twips, over its owner.
    DialogWindow(WindowHost& host, HWND owner, const wchar_t* className, const std::string& caption,
                 std::span<const ControlSpec> controls, SIZE size, DWORD closeBox = WS_SYSMENU);

    /// Modally, the focus first on the control `focus` or the first of the window; the ID of the button that closed
    /// it. Esc and the close box are idCancelButton; where neither that button nor "OK" is seen, they do nothing.
    int ask(int focus = 0);

  protected:
    void onCommand(int id, int notification) override;
    void onCloseBox() override;

  private:
    bool offers(int id) const { return IsWindowVisible(item(id)) != FALSE; }

    int answer_ = 0;
};

} // namespace varno::win32
