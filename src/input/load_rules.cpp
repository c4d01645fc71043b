#include "input/load_rules.h"

#include "model/reference_tables.h"

namespace varno {

namespace {

constexpr int swedishRules = 1;
// The one set whose factors can be edited.
constexpr int editableRules = 6;

int ruleSetAfterFlag(int flag) {
    switch (flag) {
    case 1:
        return 3;
    case 2:
        return 5;
    case 3:
        return 4;
    case 4:
        return 2;
    case 5:
        return 6;
    default:
        return swedishRules;
    }
}

} // namespace

void LoadRules::flagClicked(int flag) {
    context_.document.dataChanged = true;
    enterRuleSet(ruleSetAfterFlag(flag));
    if (context_.designCase.loadCode == swedishRules) switchToSwedishRules();
}

void LoadRules::enterRuleSet(int ruleSet) {
    // A flag takes no focus. A factor being typed in belongs to the rule set that is left, and its box may be
    // locked in a moment.
    context_.form.focus({Field::rubrik});

    DesignCase& designCase = context_.designCase;
    // A category outside the tables ends here, before anything has changed.
    static_cast<void>(designCase.psi0(ruleSet, designCase.lokt));
    designCase.loadCode = static_cast<std::int16_t>(ruleSet);

    // psi2 is not among them: it keeps whatever state it has.
    for (const Field factor : {Field::lambdaG, Field::ksi, Field::lambdaQ, Field::psi0, Field::psi1}) {
        context_.form.setEnabled({factor}, ruleSet == editableRules);
    }
    context_.filler.showRuleSet();

    // Sets 2 and 6 start from their first class each time; the others keep the user's choice.
    std::int16_t& chosen = designCase.safetyClass(ruleSet);
    if (ruleSet == 2 || ruleSet == 6) {
        chosen = 1;
    } else if (chosen == 0) {
        chosen = 2;
    }
    context_.form.selectOption(classGroup(ruleSet), chosen);
    context_.filler.showFactors();
    context_.filler.showLoadFrameCaption();
}

void LoadRules::switchToSwedishRules() {
    context_.document.dataChanged = true;
    enterRuleSet(swedishRules);
    context_.filler.fillCaseLists();
}

void LoadRules::categoryChosen(int row) {
    DesignCase& designCase = context_.designCase;
    const float load = loadFactorTable(designCase.loadCode, row);
    designCase.lokt = static_cast<std::int16_t>(row);
    // All ten spans, so that one added later carries the load of the category too.
    for (int span = 1; span <= maxSpans; ++span) {
        context_.form.setEnabled({Field::flast, span}, false);
        designCase.flast(span) = load;
        context_.form.setText({Field::flast, span}, context_.display(load, "#0.00"));
    }
    context_.filler.showFactors();
    // Category 0 is the user's own load; the others fix it.
    if (row == 0) {
        for (int span = 1; span <= maxSpans; ++span)
            context_.form.setEnabled({Field::flast, span}, true);
    }
}

void LoadRules::classClicked(const ClassGroup& group, int option) {
    if (group.writes == 0) return;
    const int options = static_cast<int>(group.options.size());
    if (option < 1 || option > options) throw RunTimeError(errSubscriptOutOfRange);
    context_.designCase.safetyClass(group.writes) = static_cast<std::int16_t>(option);
    context_.document.dataChanged = true;
}

} // namespace varno
