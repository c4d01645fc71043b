#pragma once

#include "lineloads/line_load_editor.h"
#include "win32/form_window.h"

namespace varno {

/// The window of a line load editor, modeless: "Linjelaster", or "Fria linjelaster" with the multiplier panel.
class LineLoadWindow : public win32::FormWindow, public LineLoadView {
  public:
    LineLoadWindow(win32::WindowHost& host, HWND owner, const LineLoadSet& set);

    /// From here on what happens in the window goes to its rules.
    void listen(LineLoadEditor& rules) { rules_ = &rules; }

    /// Marks the boxes of these and no other.
    void showDoubts(const std::vector<LineLoadDoubt>& doubts);

    std::string text(LineLoadControl control) const override;
    void setText(LineLoadControl control, const std::string& text) override;
    void setRowVisible(int row, bool visible) override;
    void focus(LineLoadControl control) override;
    void enter(LineLoadControl control) override;
    void returnTo(LineLoadControl control) override;
    void show() override;
    void close() override { closeForm(); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void onCloseBox() override;
    bool isTyped(int box) const override;
    void takeBack(int box) override;
    bool arrow(int box, int rows) override;

  private:
    void onBox(LineLoadControl box, int notification);

    const LineLoadSet& set_;
    LineLoadEditor* rules_ = nullptr;
};

} // namespace varno
