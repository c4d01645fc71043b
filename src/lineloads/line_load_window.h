#pragma once

#include <functional>

#include "lineloads/line_load_editor.h"
#include "win32/form_window.h"

namespace varno {

/// The window of a line load editor, modeless: "Linjelaster", or "Fria linjelaster" with the multiplier panel.
class LineLoadWindow : public win32::FormWindow, public LineLoadView {
  public:
    /// `returned` shows the main input form again.
    LineLoadWindow(win32::WindowHost& host, HWND owner, const LineLoadSet& set,
                   std::function<void()> returned);

    /// The rules; set before the window is first shown.
    void listen(LineLoadEditor& editor) { editor_ = &editor; }

    std::string text(LineLoadControl control) const override;
    void setText(LineLoadControl control, const std::string& text) override;
    void setRowVisible(int row, bool visible) override;
    void focus(LineLoadControl control) override;
    void show() override;
    void close() override;

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void onCloseBox() override;

  private:
    void left(LineLoadControl control);

    const LineLoadSet& set_;
    std::function<void()> returned_;
    LineLoadEditor* editor_ = nullptr;
    bool placed_ = false;
};

} // namespace varno
