#pragma once

#include <functional>

#include "results/result_viewer.h"
#include "win32/form_window.h"

namespace varno {

/// The result viewer (`Form6`, "Utdata"): one scrollable text box, modeless.
class ResultViewerWindow : public win32::FormWindow, public ResultViewer {
  public:
    /// `editFont` opens the font chooser; `returned` shows the input form again.
    ResultViewerWindow(win32::WindowHost& host, HWND owner, std::function<void()> editFont,
                       std::function<void()> returned);

    void setText(const std::string& text) override;
    void setFont(const std::string& face) override;
    void show() override;

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void onCloseBox() override;
    void layOut() override;
    void fontsChanged() override { makeFont(); }

  private:
    void makeFont();

    std::function<void()> editFont_;
    std::function<void()> returned_;
    std::string face_ = "Courier New";
    win32::UniqueFont textFont_;
    bool placed_ = false;
};

} // namespace varno
