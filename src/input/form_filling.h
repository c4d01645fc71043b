#pragma once

#include <string>

#include "controls/main_view.h"
#include "input/field_table.h"
#include "input/form_view.h"
#include "input/number_box.h"
#include "model/design_case.h"

namespace varno {

using FormBoxes = NumberBoxes<FormView, Control>;

/// Shows the one design case in the input form.
class CaseFormFiller {
  public:
    CaseFormFiller(DesignCase& designCase, FormView& form, MainView& window, NumberLocale locale);

    FormBoxes& boxes() { return boxes_; }

    /// Shows the whole record and its title, every list filled anew. The factors can be typed only where a switch to
    /// rule set 6 has opened them.
    void showCase(const std::string& title, bool factorsOpen = false);

    /// Writes the per-span and per-support fields from the record: support 0 first, then spans 1..nfack.
    void showCaseFields();
    /// The boxes of one span and of the support at its right end.
    void showSpan(int span);
    /// The cells of spans 1..nfack and supports 0..nfack visible, the end supports and loads fixed by the
    /// category locked.
    void showSpanCells();
    /// The six factors of the current rule set and load category.
    void showFactors();
    /// The flag of the rule set, its classes with the chosen one, its factors, and the caption of the load frame.
    void showRuleSet();
    /// Opens the factors for typing, or locks them. psi2 is not among them: it keeps whatever state it has.
    void openFactors(bool open);
    bool factorsOpen() const { return factorsOpen_; }
    /// The captions of the fire options, which depend on the fire class; the fourth is offered for class 2
    /// only.
    void showFireOptions();
    /// Fills the lists of load category, concrete class and steel grades anew and selects the record's rows.
    void fillCaseLists();

  private:
    void showChoice(const ChoiceField& row);
    void showNumber(const TextField& row, int index = 0);

    DesignCase& case_;
    FormView& form_;
    MainView& window_;
    FormBoxes boxes_;
    bool factorsOpen_ = false;
};

} // namespace varno
