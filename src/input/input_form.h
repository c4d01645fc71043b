#pragma once

#include "input/field_table.h"
#include "input/input_context.h"
#include "input/load_rules.h"
#include "input/span_rules.h"

namespace varno {

/// The rules of the main input form. The window forwards its events and shows what it is told.
///
/// Input is never rejected: a text is read as the number it begins with, rewritten in its field's pattern and
/// stored. Only what no number type can hold raises a run-time error (6; 9 for an index): the event stops,
/// the record keeps its value and the box shows it again.
///
/// Events arrive while a rule runs: setting a text or a row brings `changed`, taking the focus `lostFocus` of
/// the field that had it. Both are expected.
class InputForm {
  public:
    explicit InputForm(const InputContext& context) : context_(context), spans_(context_), loads_(context_) {}
    InputForm(const InputForm&) = delete;
    InputForm& operator=(const InputForm&) = delete;

    /// A text or a list's row is another one than before, whoever set it.
    void changed(Control control);
    /// A text box or a list loses the focus.
    void lostFocus(Control control);
    /// The user chose: a row of `lokt` or `brandk` (already selected), an option (the index), or the check
    /// box (the index is its state: 1 ticked, 0 clear, 2 grey).
    void clicked(Control control);
    void spinUp() { spans_.addSpan(); }
    void spinDown() { spans_.removeSpan(); }
    /// A click on the visible flag of the main window, 1..6, or on the neutral picture, 0.
    void flagClicked(int flag) { loads_.flagClicked(flag); }
    void switchToSwedishRules() { loads_.switchToSwedishRules(); }
    /// The form became the active window.
    void activated() { context_.form.focus({Field::rubrik}); }
    /// Tab went past the last control, or before the first.
    void tabbedOut() { context_.window.focusFlag(); }
    /// A click beside all controls.
    void formClicked() { context_.form.focus({Field::rubrik}); }

  private:
    void titleChanged();
    void leaveNumber(const TextField& row, int index);
    void leaveFactor(const TextField& row, Factor& stored);
    void leaveWhole(const TextField& row, std::int16_t& stored);
    void storeRow(const ChoiceField& row);
    void choose(const ChoiceField& row, int option);

    InputContext context_;
    SpanRules spans_;
    LoadRules loads_;
};

} // namespace varno
