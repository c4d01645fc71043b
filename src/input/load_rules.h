#pragma once

#include "controls/rule_sets.h"
#include "input/input_context.h"

namespace varno {

/// The rule set, its class, and the load category.
class LoadRules {
  public:
    explicit LoadRules(InputContext& context) : context_(context) {}

    /// Goes on to the rule set that follows the clicked flag 1..6. The neutral picture of a case without
    /// rules (0) leads to the Swedish ones, as flag 6 does.
    void flagClicked(int flag);
    void switchToSwedishRules();
    /// The user chose a row of `lokt`. \throws RunTimeError 9 for a row outside the tables.
    void categoryChosen(int row);
    void classClicked(const RuleSet& rules, int option);

  private:
    void enterRuleSet(const RuleSet& rules);

    InputContext& context_;
};

} // namespace varno
