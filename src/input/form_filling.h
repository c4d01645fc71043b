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

    /// Shows the whole record and its title, every list filled anew.
    void showCase(const std::string& title);

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
};

} // namespace varno
