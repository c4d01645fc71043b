#pragma once

#include <functional>

#include "input/form_view.h"
#include "win32/form_window.h"

namespace varno {

/// Takes what the user does in the input form.
class FormEvents {
  public:
    virtual ~FormEvents() = default;
    /// The text of a box or the row of a list is another, by whoever changed it.
    virtual void changed(Control control) = 0;
    virtual void lostFocus(Control control) = 0;
    /// An option (the index), the check box (the index is its state: 1 ticked, 0 clear) or a row of a list
    /// was chosen by the user.
    virtual void clicked(Control control) = 0;
    virtual void spinUp() = 0;
    virtual void spinDown() = 0;
    /// The form itself was clicked, beside its controls.
    virtual void formClicked() = 0;
    /// Tab went past the last control of the form, or before the first: the focus goes to what stands around
    /// it.
    virtual void tabbedOut() = 0;
};

/// The main input form: a child window of the main window's MDI client that fills it. It forwards events and
/// shows what it is told.
class InputFormWindow : public win32::FormWindow, public FormView {
  public:
    InputFormWindow(win32::WindowHost& host, FormEvents& events);

    void create(HWND mdiClient);
    /// The size the form needs, in pixels at its resolution.
    SIZE naturalSize() const;
    /// Handles the keys of one message: Tab and Enter go through the form in its order, the arrow keys up and
    /// down stay in a column of the grid and step the span count in `nfack`. False when the message is none
    /// of them.
    bool translateKey(const MSG& message);
    /// Gives the focus to the first or the last control that takes it.
    void focusEnd(bool last);
    /// Lays the form out at another resolution.
    void changeDpi(int dpi);

    std::string text(Control control) const override;
    void setText(Control control, const std::string& text) override;
    void setVisible(Control control, bool visible) override;
    void setEnabled(Control control, bool enabled) override;
    void setCaption(Control control, const std::string& caption) override;
    void clearList(Field list) override;
    void addRow(Field list, std::string_view row) override;
    void selectRow(Field list, int row) override;
    int selectedRow(Field list) const override;
    void selectOption(Field group, int option) override;
    void showGroup(Field group, bool visible) override;
    void setChecked(Field box, bool checked) override;
    void focus(Control control) override;
    void selectAll(Control control) override;

  protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT defaultProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onCommand(int id, int notification) override;
    void onCloseBox() override {}

  private:
    void clickButton(Control control, HWND button);
    bool moveOn(HWND from, bool backwards);
    bool moveInColumn(Control from, int rows);
    void enter(HWND control);
    HWND control(Control control) const { return item(controlNumber(control)); }
    static int controlNumber(Control control);

    FormEvents& events_;
    HWND lastFocused_ = nullptr;
};

} // namespace varno
