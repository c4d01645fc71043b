#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

namespace varno::gui {

/// A window or control of another process. Everything goes through messages that Windows carries across
/// processes; texts are UTF-8. What makes the program act is posted, because a modal window would keep a sent
/// message from returning; what only asks or sets is sent.
class Control {
  public:
    Control() = default;
    explicit Control(HWND window) : window_(window) {}

    HWND handle() const { return window_; }
    explicit operator bool() const { return window_ != nullptr; }
    bool operator==(const Control&) const = default;

    /// A control of this window. \throws GuiError when there is none of this ID.
    Control item(int id) const;
    std::vector<Control> children() const; ///< the direct ones, in tab order
    std::string className() const;
    int id() const { return GetDlgCtrlID(window_); }
    LONG style() const { return GetWindowLongW(window_, GWL_STYLE); }
    bool visible() const { return IsWindowVisible(window_) != FALSE; }
    bool enabled() const { return IsWindowEnabled(window_) != FALSE; }
    RECT place() const; ///< in the client area of its parent

    std::string text() const;
    void setText(const std::string& text) const;
    /// The selected characters of an edit: first, and one behind the last.
    std::pair<int, int> selection() const;
    void selectAll() const;

    void click() const; ///< a button, check box or option
    bool checked() const;

    /// Rows of a drop-down list or a list box.
    std::vector<std::string> rows() const;
    int selectedRow() const;
    std::string selectedText() const; ///< empty when nothing is selected
    /// Chooses a row as the user does. \throws GuiError for a row that is not there.
    void choose(int row) const;
    void choose(const std::string& row) const;
    void doubleClick(const std::string& row) const;

    /// A click into the control, which gives it the focus.
    void clickInto() const;
    void clickAt(int x, int y) const;
    /// The letters, as WM_CHAR.
    void type(const std::string& text) const;
    void key(WORD virtualKey) const;

    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void post(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  private:
    bool isDropDown() const { return className() == "ComboBox"; }
    int rowOf(const std::string& row) const;
    void notifyParent(int notification) const;

    HWND window_ = nullptr;
};

} // namespace varno::gui
