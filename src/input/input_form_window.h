#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/control_ids.h"
#include "input/doubts.h"
#include "input/form_scroll.h"
#include "input/input_form.h"
#include "win32/balloon.h"
#include "win32/form_window.h"
#include "win32/strings.h"
#include "win32/tips.h"

namespace varno {

/// The main input form: a child window of the main window's MDI client that fills it.
class InputFormWindow : public win32::FormWindow, public FormView {
  public:
    explicit InputFormWindow(win32::WindowHost& host) : FormWindow(host), hint_(host) {}

    void create(HWND mdiClient);
    /// From here on what happens in the form goes to its rules.
    void listen(InputForm& rules) { rules_ = &rules; }
    /// Handles the keys of one message: Tab and Enter go through the form in its order, the arrow keys up and
    /// down stay in a column of the grid and step the span count in `nfack`. False when the message is none
    /// of them.
    bool translateKey(const MSG& message);
    /// Gives the focus to the first or the last control that takes it.
    void focusEnd(bool last);
    /// The locked box at a place of the screen.
    std::optional<Control> lockedAt(POINT place) const;
    /// Marks the boxes of these and no other.
    void showDoubts(const std::vector<Doubt>& doubts);
    /// Lays the form out at another resolution.
    void changeDpi(int dpi);
    /// Takes the room that the main window has for it, and scrolls where it needs more.
    void fill(int width, int height);

    std::string text(Control control) const override { return win32::textOf(window(control)); }
    void setText(Control control, const std::string& text) override { setBoxText(controlId(control), text); }
    void setVisible(Control control, bool visible) override;
    void setEnabled(Control control, bool enabled) override;
    void setCaption(Control control, const std::string& caption) override;
    void showRows(Field list, std::span<const std::string_view> rows, int selected) override;
    int selectedRow(Field list) const override;
    void selectOption(Field group, int option) override;
    void showGroup(Field group, bool visible) override;
    void setChecked(Field box, bool checked) override;
    void focus(Control control) override { SetFocus(window(control)); }
    void enter(Control control) override { enter(window(control)); }
    void returnTo(Control control) override { postReturnTo(controlId(control)); }
    void showHint(Control control, const std::string& text) override;
    void hideHint() override { hint_.hide(); }

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT defaultProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void onCloseBox() override {}
    bool isTyped(int box) const override;
    void takeBack(int box) override;
    bool pasted(int box, const std::string& text) override;
    std::optional<std::string> copied(int box) const override;
    void layOut() override;
    void reached(HWND control) override;

  private:
    void nameSymbols();
    void keepFocusOff(HWND control);
    int chosenOption(Field group) const;
    void keepReachable(Field group);
    void tellBars();
    void scrollTo(int x, int y);
    void scrolled(int bar, int request);
    void wheelTurned(WPARAM wParam, bool sideways);
    bool scrollMessage(UINT message, WPARAM wParam);
    void clickButton(Control control, HWND button);
    bool moveOn(HWND from, bool backwards);
    bool moveInColumn(Control from, int rows);
    void enter(HWND box);
    HWND window(Control control) const { return item(controlId(control)); }

    InputForm* rules_ = nullptr;
    HWND lastFocused_ = nullptr;
    HWND entering_ = nullptr; ///< gets the focus from Tab just now
    win32::Balloon hint_;
    win32::Tips tips_{host()};
    ScrollAxis across_;
    ScrollAxis down_;
    WheelSteps wheel_;
    bool fitting_ = false; ///< a scroll bar that comes or goes tells of another size
};

} // namespace varno
