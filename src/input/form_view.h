#pragma once

#include <span>
#include <string>
#include <string_view>

#include "controls/field.h"

namespace varno {

/// What the rules ask of the main input form. It shows what it is told and knows no rule. Texts are UTF-8.
///
/// Setting a text or a list row that differs runs the control's change rule, as typing does; it never runs a
/// click rule. An option group is hidden and shown with its frame.
class FormView {
  public:
    virtual ~FormView() = default;

    virtual std::string text(Control control) const = 0;
    virtual void setText(Control control, const std::string& text) = 0;
    virtual void setVisible(Control control, bool visible) = 0;
    virtual void setEnabled(Control control, bool enabled) = 0;
    virtual void setCaption(Control control, const std::string& caption) = 0;

    /// Fills a list anew and selects a row, from 0; a row the list does not have selects nothing.
    virtual void showRows(Field list, std::span<const std::string_view> rows, int selected) = 0;
    /// -1 when nothing is selected.
    virtual int selectedRow(Field list) const = 0;

    /// Selects one option of a group, from 1; an option the group does not have selects none.
    virtual void selectOption(Field group, int option) = 0;
    /// Shows or hides the frame of a safety class group.
    virtual void showGroup(Field group, bool visible) = 0;
    virtual void setChecked(Field box, bool checked) = 0;

    virtual void focus(Control control) = 0;
    /// The same, with the whole text selected.
    virtual void enter(Control control) = 0;
    /// The focus goes back to a box, its text selected, once the event is over.
    virtual void returnTo(Control control) = 0;
    /// A word beside a box that the user types in, which takes no focus and goes by itself. Nothing happens when the box
    /// has not the focus.
    virtual void showHint(Control control, const std::string& text) = 0;
    virtual void hideHint() = 0;
};

/// The hint at a title with a comma: the line of the file that holds the title ends at one.
inline constexpr const char* commaHint =
    "Ett kommatecken i rubriken delar den, och allt efter den hamnar fel när filen läses.\n"
    "Skriv till exempel ett tankstreck i stället.";

} // namespace varno
