#pragma once

#include <map>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "controls/control_spec.h"
#include "win32/balloon.h"
#include "win32/box_keys.h"
#include "win32/box_marks.h"
#include "win32/dpi.h"
#include "win32/drop_downs.h"
#include "win32/window.h"

namespace varno::win32 {

/// The style of a window that can be made larger. It has no box to minimise it: one that belongs to the main window has
/// no button in the task bar, and would lie as a stub on the desktop.
inline constexpr DWORD growingWindow = WS_OVERLAPPEDWINDOW & ~static_cast<DWORD>(WS_MINIMIZEBOX);

/// A window made of controls that stand in a table, in twips. It lays them out at its own resolution, keeps
/// the keyboard focus while another window is active, and draws the symbol labels. Of its controls' events it
/// hands on those that are the user's doing: a field that lost the focus to another program was not left, and a
/// list that closes over its own row was not chosen from.
class FormWindow : public Window, private FieldWindow, private BoxKeys {
  public:
    using Window::Window;
    ~FormWindow() override;

    /// Shows the window and handles messages until `closeForm`; all other windows of the program are
    /// disabled.
    void runModal();

    HWND item(int id) const {
        const auto known = items_.find(id);
        return known == items_.end() ? GetDlgItem(handle(), id) : known->second;
    }
    /// What a screen reader says for a control that neither its caption nor the label in front of it names.
    void name(int id, ControlKind kind, const std::string& name);
    /// A box of this window is being typed in, since it has the focus.
    bool typing() const;
    /// What stands in the control that has the focus is taken over, as if it were left.
    void takeOver();
    void setFontRole(int id, FontRole role);
    const BoxMarks& marks() const { return marks_; }
    /// It was shown and has a place of its own.
    bool stands() const { return stands_; }
    int dpi() const { return dpi_; }

  protected:
    /// The window itself, with a frame that cannot be resized; without a close box where `closeBox` is 0.
    void createDialog(const wchar_t* className, const std::string& caption, HWND owner, HMENU menu = nullptr,
                      DWORD closeBox = WS_SYSMENU);
    /// Creates the controls of the table in its order, which is the tab order.
    void addControls(std::span<const ControlSpec> controls);
    /// Gives the client area this size in twips at the window's resolution, as far as the work area has room for it, and
    /// centres it over `over` (or the work area of its monitor).
    void sizeAndCentre(int width, int height, HWND over);
    /// The first time it is shown: the same, or where it was left by an earlier run.
    void stand(int width, int height, HWND over);

    /// Answers WM_GETMINMAXINFO: the client area is no smaller than this, as far as the work area has room for it.
    void keepAtLeast(MINMAXINFO& sizes, SIZE client) const;

    /// Selects a row of a drop-down list, -1 for none, or empties it; nothing is told of it.
    void showRow(int id, int row) { dropDowns_.show(item(id), row); }
    void clearRows(int id) { dropDowns_.clear(item(id)); }

    /// Places the controls; a window that can be resized overrides it. Called after a change of resolution
    /// too.
    virtual void layOut();

    /// Where the table's corner lies in the client area, in pixels; `layOut` goes by it.
    void setOrigin(POINT origin) { origin_ = origin; }
    POINT origin() const { return origin_; }
    /// A control has got the focus.
    virtual void reached(HWND) {}

    /// The system fonts were given to the controls again; a window with fonts of its own sets them now.
    virtual void fontsChanged() {}

    /// A button or other control was used: WM_COMMAND.
    virtual void onCommand(int id, int notification);
    /// The close box or Esc.
    virtual void onCloseBox() { closeForm(); }
    /// Exchanges the text of a box. The caret of the box with the focus stays where it is from the right end.
    void setBoxText(int id, const std::string& text);
    // BoxKeys. A window whose rules read its boxes asks them.
    bool isTyped(int box) const override;
    void takeBack(int box) override;
    /// Later, when the current event is over, the focus goes back to a box, its text selected.
    void postReturnTo(int id);
    /// Marks these boxes and no other, by their IDs.
    void mark(const std::map<int, std::string>& boxes) { marks_.show(handle(), boxes); }
    /// Ends a modal run, or hides a modeless window.
    void closeForm();

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    int px(int twips) const { return pixels(twips, dpi_); }
    void setDpi(int dpi);
    void drawPicture(const DRAWITEMSTRUCT& item);

  private:
    struct Placed {
        HWND control;
        ControlKind kind;
        RECT twips;
        FontRole role = FontRole::text;
    };
    SIZE frameFor(SIZE client) const;
    void leaveKept(int field) override;
    void controlTold(HWND control, int notification);
    static void describe(HWND control, ControlKind kind, const std::string& name);
    bool answers(const MSG& message);
    bool pressFocused();
    void moveTo(HWND control);
    void returnTo(HWND box);
    static void enterFirst(HWND control);
    void showWhole(HWND box, bool shown);
    void drawControl(const DRAWITEMSTRUCT& item);
    HFONT font(FontRole role) const { return fonts_[static_cast<int>(role)].get(); }
    void setFont(HWND control, FontRole role);

    std::vector<Placed> placed_;
    /// Windows looks through all controls of the window for a number, and an edit asks for dozens.
    std::unordered_map<int, HWND> items_;
    std::map<int, std::string> entered_; ///< the texts of boxes as they got the focus
    UniqueFont fonts_[fontRoles];
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    POINT origin_{};
    DropDowns dropDowns_;
    BoxMarks marks_;
    bool open_ = false;
    bool stands_ = false;
    std::string label_;     ///< in front of the control that is made now
    Balloon whole_{host()}; ///< the number that its box has no room for
};

} // namespace varno::win32
