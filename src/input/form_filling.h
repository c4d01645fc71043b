#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "base/numbers.h"
#include "controls/main_view.h"
#include "input/form_view.h"
#include "model/design_case.h"
#include "model/design_input_file.h"

namespace varno {

/// The option group of the safety or reliability classes of a rule set 1..6.
Field classGroup(int ruleSet);

/// The flag picture (1..6) that stands for a rule set, 0 for a rule set without one.
int flagOfRuleSet(int ruleSet);

struct ShownLine;

/// Shows the one design case in the input form: fills its lists, and follows the reader line by line.
class CaseFormFiller : public CaseDisplay {
  public:
    /// `refresh` runs the full refresh of the sketch at the end of a case.
    CaseFormFiller(DesignCase& designCase, FormView& form, MainView& window, NumberLocale locale,
                   std::function<void()> refresh);

    /// Presets the record and fills the fixed lists; runs before every read of a case. Disables the menu
    /// "Diagram".
    void fillReferenceTables();

    void readingStarts() override;
    void setTitle(const std::string& title) override;
    void lineRead(int number) override;
    void caseRead() override;

    /// Shows everything of the record again, as reading it would.
    void showAll();

    /// Writes the per-span and per-support fields from the record: support 0 first, then spans 1..nfack.
    void showCaseFields();
    /// The cells of spans 1..nfack and supports 0..nfack visible, the end supports and loads fixed by the
    /// category locked.
    void showSpanCells();
    /// The six factors of the current rule set and load category.
    void showFactors();
    /// The flag and the class frame of the rule set.
    void showRuleSet();
    /// The captions of the fire options, which depend on the fire class; the fourth is offered for class 2
    /// only.
    void showFireOptions();
    /// Empties a list and fills it with these rows.
    void fillList(Field list, std::span<const std::string_view> rows);
    /// "Laster enl. BKR" for the Swedish rules, "Laster enl. Eurokod" otherwise.
    void showLoadFrameCaption();

  private:
    void showLine(const ShownLine& shown);
    void showWhole(Field field, int value, std::string_view pattern = "#0");
    template <typename Number>
    void showNumber(Control control, Number value, std::string_view pattern);

    DesignCase& case_;
    FormView& form_;
    MainView& window_;
    NumberLocale locale_;
    std::function<void()> refresh_;
};

} // namespace varno
