// The rule set, its class, and the load category.
#include "input/input_form.h"
#include "model/reference_tables.h"

namespace varno {

namespace {

// The one set whose factors can be edited.
constexpr int editableRules = 6;

const RuleSet& ruleSetOfFlag(int flag) {
    const RuleSet* const row = ruleSetWith(&RuleSet::flag, flag);
    return row == nullptr ? ruleSets.front() : *row;
}

} // namespace

void InputForm::flagClicked(int flag) {
    const Edit edit(context_.steps);
    const RuleSet& next = ruleSetOfFlag(flag + 1);
    if (next.number == swedishRules) {
        switchToSwedishRules();
    } else {
        enterRuleSet(next);
    }
}

void InputForm::enterRuleSet(const RuleSet& rules) {
    context_.document.dataChanged = true;
    // A flag takes no focus. A factor being typed in belongs to the rule set that is left, and its box may be
    // locked in a moment.
    context_.form.focus({Field::rubrik});

    DesignCase& designCase = context_.designCase;
    // A category outside the tables ends here, before anything has changed.
    static_cast<void>(designCase.psi0(rules.number, designCase.lokt));
    designCase.loadCode = static_cast<std::int16_t>(rules.number);

    context_.filler.openFactors(rules.number == editableRules);
    // Sets whose clicks are not kept as their own choice start from the first class each time.
    std::int16_t& chosen = designCase.safetyClass(rules.number);
    if (rules.classWritten != rules.number) {
        chosen = 1;
    } else if (chosen == 0) {
        chosen = 2;
    }
    context_.filler.showRuleSet();
}

void InputForm::switchToSwedishRules() {
    const Edit edit(context_.steps);
    enterRuleSet(ruleSets.front());
    context_.filler.fillCaseLists();
}

void InputForm::categoryChosen(int row) {
    DesignCase& designCase = context_.designCase;
    const float load = loadFactorTable(designCase.loadCode, row);
    designCase.lokt = static_cast<std::int16_t>(row);
    // All ten spans, so that one added later carries the load of the category too.
    for (int span = 1; span <= maxSpans; ++span) {
        context_.form.setEnabled({Field::flast, span}, false);
        designCase.flast(span) = load;
        context_.boxes().put({Field::flast, span}, load, "#0.00");
    }
    context_.filler.showFactors();
    // Category 0 is the user's own load; the others fix it.
    if (row == 0) {
        for (int span = 1; span <= maxSpans; ++span)
            context_.form.setEnabled({Field::flast, span}, true);
    }
}

void InputForm::classClicked(const RuleSet& rules, int option) {
    if (rules.classWritten == 0) return;
    const int options = static_cast<int>(rules.classes.size());
    if (option < 1 || option > options) throw RunTimeError(errSubscriptOutOfRange);
    context_.designCase.safetyClass(rules.classWritten) = static_cast<std::int16_t>(option);
    context_.document.dataChanged = true;
}

} // namespace varno
