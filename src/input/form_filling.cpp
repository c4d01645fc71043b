#include "input/form_filling.h"

#include <algorithm>
#include <array>

#include "controls/rule_sets.h"

namespace varno {

namespace {

// Filled anew when the load rules become the Swedish ones.
constexpr std::array caseLists{Field::lokt, Field::btg, Field::aok, Field::auk};

} // namespace

CaseFormFiller::CaseFormFiller(DesignCase& designCase, FormView& form, MainView& window, NumberLocale locale)
    : case_(designCase), form_(form), window_(window), boxes_(form, std::move(locale)) {}

void CaseFormFiller::showCase(const std::string& title, bool factorsOpen) {
    boxes_.write({Field::rubrik}, title);
    showRuleSet();
    openFactors(factorsOpen);
    form_.setEnabled({Field::psi2}, false);
    for (const TextField& row : textFields) {
        if (!row.isPerSpan()) showNumber(row);
    }
    boxes_.put({Field::nfack}, case_.nfack, "#0");
    for (const ChoiceField& row : choiceFields)
        showChoice(row);
    showCaseFields();
    showSpanCells();
    showFireOptions();
}

void CaseFormFiller::showChoice(const ChoiceField& row) {
    const std::int16_t value = case_.*row.place;
    switch (row.kind) {
    case ChoiceKind::list:
        form_.showRows(row.field, row.options, value - row.firstNumber);
        break;
    case ChoiceKind::options:
        form_.selectOption(row.field, value);
        break;
    case ChoiceKind::checkBox:
        form_.setChecked(row.field, value != 0);
        break;
    }
}

void CaseFormFiller::fillCaseLists() {
    for (const Field list : caseLists)
        showChoice(*choiceField(list));
}

void CaseFormFiller::showNumber(const TextField& row, int index) {
    boxes_.put({row.field, index}, numberOf(case_, row, index), row.shownPattern);
}

void CaseFormFiller::showRuleSet() {
    const RuleSet* const current = ruleSetWith(&RuleSet::number, case_.loadCode);
    window_.showFlag(current == nullptr ? 0 : current->flag);
    for (const RuleSet& other : ruleSets)
        form_.showGroup(other.classGroup, &other == current);
    if (current != nullptr) form_.selectOption(current->classGroup, case_.safetyClass(case_.loadCode));
    form_.setCaption({Field::loadFrame}, loadFrameCaption(case_.loadCode));
    showFactors();
}

void CaseFormFiller::showFactors() {
    for (const TextField& row : textFields) {
        if (row.isFactor()) showNumber(row);
    }
}

void CaseFormFiller::openFactors(bool open) {
    factorsOpen_ = open;
    for (const Field factor : {Field::lambdaG, Field::ksi, Field::lambdaQ, Field::psi0, Field::psi1})
        form_.setEnabled({factor}, open);
}

void CaseFormFiller::showCaseFields() {
    showNumber(*textField(Field::upl), 0);
    for (int span = 1; span <= std::min<int>(case_.nfack, maxSpans); ++span)
        showSpan(span);
}

void CaseFormFiller::showSpan(int span) {
    for (const TextField& row : textFields) {
        if (row.isPerSpan()) showNumber(row, span);
    }
}

void CaseFormFiller::showSpanCells() {
    // A category other than 0 fixes the variable load.
    const bool ownLoad = case_.lokt == 0;
    // Both end supports are held at 0.
    form_.setEnabled({Field::upl, 0}, false);
    for (int span = 1; span <= maxSpans; ++span) {
        const bool used = span <= case_.nfack;
        for (const TextField& row : textFields) {
            if (row.isPerSpan()) form_.setVisible({row.field, span}, used);
        }
        form_.setEnabled({Field::flast, span}, ownLoad);
        form_.setEnabled({Field::upl, span}, span != case_.nfack);
    }
}

void CaseFormFiller::showFireOptions() {
    int option = 0;
    for (const std::string_view caption : fireOptions(case_.brandk))
        form_.setCaption({Field::brandb, ++option}, std::string(caption));
    form_.setVisible({Field::brandb, option}, case_.brandk == 2);
}

} // namespace varno
