#pragma once

#include "results/font_choice.h"
#include "win32/form_window.h"

namespace varno {

/// The font chooser (`frmTypsn`, "TYPSNITT").
class FontChooserWindow : public win32::FormWindow, public FontChooserView {
  public:
    FontChooserWindow(win32::WindowHost& host, HWND owner);

    void listen(FontChoice& choice) { choice_ = &choice; }

    void showInstalled(const std::vector<std::string>& faces) override;
    void showStored(const std::string& face) override;
    void showCurrent(const std::string& face) override;
    void run() override;
    void close() override { closeForm(); }

  protected:
    void onCommand(int id, int notification) override;
    void onCloseBox() override;
    void fontsChanged() override;

  private:
    void showOnly(int list, const std::string& face, win32::UniqueFont& font);
    void dressList(int list, win32::UniqueFont& font);

    FontChoice* choice_ = nullptr;
    win32::UniqueFont storedFont_;
    win32::UniqueFont currentFont_;
};

} // namespace varno
