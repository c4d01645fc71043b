#pragma once

#include "controls/main_view.h"
#include "controls/rule_sets.h"
#include "input/edit_steps.h"
#include "input/form_filling.h"
#include "input/form_view.h"
#include "input/grid_clipboard.h"
#include "input/sketch_refresh.h"
#include "model/design_case.h"

namespace varno {

/// What the rules of the input form work on. Everything outlives them.
struct InputContext {
    DesignCase& designCase;
    DocumentState& document;
    FormView& form;
    MainView& window;
    CaseFormFiller& filler;
    SketchRefresh& sketch;
    EditSteps& steps;

    FormBoxes& boxes() const { return filler.boxes(); }
    /// There is something to save, and the last moment curve no longer fits the input.
    void markChanged() const {
        document.dataChanged = true;
        window.setDiagramEnabled(false);
    }
};

/// The rules of the main input form. The window forwards its events and shows what it is told.
///
/// Input is never rejected: a text is read as the number it begins with, rewritten in its field's pattern and
/// stored. Only what no number type can hold raises run-time error 6, and an index, a number of spans or a load
/// category that there is no room for 9: the event stops, the record is as it was and the box shows it again.
/// Errors of the sketch come after everything is stored and shown.
///
/// Events arrive while a rule runs: setting a text or a row brings `changed`, taking the focus `lostFocus` of
/// the field that had it. Both are expected.
class InputForm {
  public:
    explicit InputForm(const InputContext& context) : context_(context) {}
    InputForm(const InputForm&) = delete;
    InputForm& operator=(const InputForm&) = delete;

    /// A text or a list's row is another one than before, whoever set it.
    void changed(Control control);
    /// A text box takes the focus.
    void entered(Control control) { context_.boxes().entered(control); }
    /// What was typed in the box that has the focus, since it has it: whether there is anything, and back.
    bool isTyped(Control control) const { return context_.boxes().isTyped(control); }
    void takeBack(Control control) { context_.boxes().takeBack(control); }
    /// A text box or a list loses the focus.
    void lostFocus(Control control);
    /// The user chose: a row of `lokt` or `brandk` (already selected), an option (the index), or the check
    /// box (the index is its state: 1 ticked, 0 clear, 2 grey).
    void clicked(Control control);
    void spinUp();
    void spinDown();
    /// A text is pasted into a box. Numbers copied in a spreadsheet go into the cells of the grid from there on, each as
    /// if it had been typed and left, so the last of a row is carried forward. An empty cell leaves the one of the grid as
    /// it is; further rows go into the rows below; locked cells take nothing. False for a single number, which is for the
    /// box itself, and outside the grid. \throws RunTimeError 6 for a number that cannot be stored: those before it are.
    bool pasted(Control control, const std::string& text);
    /// The row from a cell on, as shown; nothing outside the grid.
    std::optional<std::string> copied(Control control) const;
    /// A click on the visible flag of the main window, 1..6: goes on to the rule set that follows. The neutral
    /// picture of a case without rules (0) leads to the Swedish ones, as flag 6 does.
    void flagClicked(int flag);
    void switchToSwedishRules();
    /// The form became the active window, or was clicked beside all controls.
    void focusTitle() { context_.form.focus({Field::rubrik}); }
    /// Tab went past the last control, or before the first.
    void tabbedOut(bool backwards);

  private:
    void titleChanged();
    void leaveNumber(const TextField& row, int index);
    void leaveFactor(const TextField& row, Factor& stored);
    void leaveWhole(const TextField& row, std::int16_t& stored);
    void storeRow(const ChoiceField& row);
    void choose(const ChoiceField& row, int option);

    // The grid of spans and supports, the cantilevers and the number of spans: span_rules.cpp.
    /// A changed value goes into the span and into all spans behind it.
    void leaveSpanCell(const TextField& row, int span);
    /// A changed width goes into the support and into the inner supports behind it. End supports stay 0.
    void leaveSupport(const TextField& row, int support);
    /// The length is stored as typed, not as shown.
    void leaveCantilever(const TextField& row);
    /// The last of a row's cells that can be typed into; the first is 1.
    int lastCell(const TextField& row) const;
    /// What was typed in a cell is stored and carried forward, and nothing drawn. True when it is another number.
    bool storeCell(const TextField& row, int index);
    int spanCount() const;
    int countFrom(double wanted) const;
    void enterCount(double wanted, int lastCleared);
    void redraw(Redraws what);

    // Rows from a spreadsheet: grid_clipboard.cpp.
    int openCells(const TextField& row) const;
    bool fillCell(Control cell, const std::string& number, Redraws& drawn);
    bool fillRows(Control from, const ClipboardRows& rows, Redraws& drawn);

    // The rule set, its class, and the load category: load_rules.cpp.
    void enterRuleSet(const RuleSet& rules);
    void categoryChosen(int row);
    void classClicked(const RuleSet& rules, int option);

    InputContext context_;
};

} // namespace varno
