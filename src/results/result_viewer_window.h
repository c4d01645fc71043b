#pragma once

#include "results/font_choice.h"
#include "results/result_viewer.h"
#include "win32/form_window.h"

namespace varno {

/// The result viewer (`Form6`, "Utdata"): one scrollable text box, modeless.
class ResultViewerWindow : public win32::FormWindow, public ResultViewer {
  public:
    ResultViewerWindow(win32::WindowHost& host, HWND owner);

    void listen(FontChoice& fonts) { fonts_ = &fonts; }

    void setText(const std::string& text) override;
    void setFont(const std::string& face) override;
    void show() override;

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void layOut() override;
    void fontsChanged() override { makeFont(); }

  private:
    void makeFont();

    FontChoice* fonts_ = nullptr;
    std::string face_ = "Courier New";
    win32::UniqueFont textFont_;
    bool placed_ = false;
};

} // namespace varno
