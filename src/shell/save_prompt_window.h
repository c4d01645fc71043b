#pragma once

#include "shell/document.h"
#include "win32/form_window.h"

namespace varno {

/// The save-changes prompts: "Ja", "Nej", and at the end of the program "Avbryt".
class SavePromptWindow : public win32::FormWindow {
  public:
    SavePromptWindow(win32::WindowHost& host, HWND owner);

    SaveAnswer ask(const std::string& caption, const std::string& text, bool cancelOffered);

  protected:
    void onCommand(int id, int notification) override;
    /// Esc and the close box: "Avbryt" where it is offered; nothing otherwise, since neither answer is meant
    /// by them.
    void onCloseBox() override;

  private:
    bool cancelOffered_ = false;
    SaveAnswer answer_ = SaveAnswer::cancel;
};

} // namespace varno
