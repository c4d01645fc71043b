#include "input/form_filling.h"

#include <algorithm>
#include <array>

#include "controls/rule_sets.h"
#include "model/reference_tables.h"

namespace varno {

namespace {

struct CaseList {
    Field field;
    std::span<const std::string_view> rows;
};
// Filled when a case is shown, and when the load rules become the Swedish ones.
constexpr std::array caseLists{
    CaseList{Field::lokt, loadCategories},
    CaseList{Field::btg, concreteClasses},
    CaseList{Field::aok, steelGrades},
    CaseList{Field::auk, steelGrades},
};
constexpr std::array fixedLists{
    CaseList{Field::brandk, fireClasses},
    CaseList{Field::duk, barDiameters},
    CaseList{Field::dok, barDiameters},
};

// How a whole number of the case is shown.
struct ShownNumber {
    Field field;
    enum { row, option, whole, limit, check } as;
    std::int16_t DesignCase::*value;
};

constexpr std::array shownNumbers{
    ShownNumber{Field::nfack, ShownNumber::whole, &DesignCase::nfack},
    ShownNumber{Field::lastkomb, ShownNumber::option, &DesignCase::lastkomb},
    ShownNumber{Field::dok, ShownNumber::row, &DesignCase::dok},
    ShownNumber{Field::kavko, ShownNumber::check, &DesignCase::kavko},
    ShownNumber{Field::ktack, ShownNumber::whole, &DesignCase::ktack},
    ShownNumber{Field::duk, ShownNumber::row, &DesignCase::duk},
    ShownNumber{Field::duarm, ShownNumber::whole, &DesignCase::duarm},
    ShownNumber{Field::brandk, ShownNumber::row, &DesignCase::brandk},
    ShownNumber{Field::brandb, ShownNumber::option, &DesignCase::brandb},
    ShownNumber{Field::kutak, ShownNumber::option, &DesignCase::kutak},
    ShownNumber{Field::overhojning, ShownNumber::whole, &DesignCase::overhojning},
    ShownNumber{Field::initiell, ShownNumber::limit, &DesignCase::initiell},
    ShownNumber{Field::tillkommande, ShownNumber::limit, &DesignCase::tillkommande},
    ShownNumber{Field::brukskomb, ShownNumber::option, &DesignCase::brukskomb},
};

constexpr std::array factorFields{Field::lambdaG, Field::ksi,  Field::lambdaQ,
                                  Field::psi0,    Field::psi1, Field::psi2};

} // namespace

CaseFormFiller::CaseFormFiller(DesignCase& designCase, FormView& form, MainView& window, NumberLocale locale)
    : case_(designCase), form_(form), window_(window), boxes_(form, std::move(locale)) {}

void CaseFormFiller::showCase(const std::string& title) {
    form_.setText({Field::rubrik}, title);
    showRuleSet();
    // Whatever the rule set: only a switch to the sixth opens them.
    for (const Field factor : factorFields)
        form_.setEnabled({factor}, false);
    for (const CaseList& list : fixedLists)
        fillList(list.field, list.rows);
    fillCaseLists();
    showNumber({Field::konsv}, case_.konsv, "#0.00");
    showNumber({Field::konsh}, case_.konsh, "#0.00");
    showNumbers();
    showCaseFields();
    showSpanCells();
    showFireOptions();
}

void CaseFormFiller::fillList(Field list, std::span<const std::string_view> rows) {
    form_.clearList(list);
    for (const std::string_view row : rows)
        form_.addRow(list, row);
}

void CaseFormFiller::fillCaseLists() {
    for (const CaseList& list : caseLists)
        fillList(list.field, list.rows);
    form_.selectRow(Field::lokt, case_.lokt);
    form_.selectRow(Field::aok, case_.aok - 1);
    form_.selectRow(Field::auk, case_.auk - 1);
    form_.selectRow(Field::btg, case_.btg - 1);
}

template <typename Number>
void CaseFormFiller::showNumber(Control control, Number value, std::string_view pattern) {
    boxes_.put(control, value, pattern);
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
    const auto show = [this](Field field, const Factor& factor) { boxes_.put({field}, factor, "#0.00"); };
    const int ruleSet = case_.loadCode;
    const int category = case_.lokt;
    show(Field::lambdaG, case_.lambdaG(ruleSet));
    show(Field::ksi, case_.ksi(ruleSet));
    show(Field::lambdaQ, case_.lambdaQ(ruleSet));
    show(Field::psi0, case_.psi0(ruleSet, category));
    show(Field::psi1, case_.psi1(ruleSet, category));
    show(Field::psi2, case_.psi2(ruleSet, category));
}

void CaseFormFiller::showNumbers() {
    for (const ShownNumber& number : shownNumbers) {
        const std::int16_t value = case_.*number.value;
        switch (number.as) {
        case ShownNumber::row:
            form_.selectRow(number.field, value - 1);
            break;
        case ShownNumber::option:
            form_.selectOption(number.field, value);
            break;
        case ShownNumber::whole:
            showNumber({number.field}, static_cast<double>(value), "#0");
            break;
        case ShownNumber::limit:
            showNumber({number.field}, static_cast<double>(value), "####");
            break;
        case ShownNumber::check:
            form_.setChecked(number.field, value != 0);
            break;
        }
    }
}

void CaseFormFiller::showCaseFields() {
    showNumber({Field::upl, 0}, case_.upl(0), "0.000");
    for (int span = 1; span <= std::min<int>(case_.nfack, maxSpans); ++span) {
        showNumber({Field::spv, span}, case_.spv(span), "#0.00");
        showNumber({Field::plast, span}, case_.plast(span), "#0.00");
        showNumber({Field::flast, span}, case_.flast(span), "#0.00");
        showNumber({Field::ptjl, span}, case_.ptjl(span), "0.000");
        showNumber({Field::upl, span}, case_.upl(span), "0.000");
    }
}

void CaseFormFiller::showSpanCells() {
    // A category other than 0 fixes the variable load.
    const bool ownLoad = case_.lokt == 0;
    // Both end supports are held at 0.
    form_.setEnabled({Field::upl, 0}, false);
    for (int span = 1; span <= maxSpans; ++span) {
        const bool used = span <= case_.nfack;
        for (const Field row : {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl}) {
            form_.setVisible({row, span}, used);
        }
        form_.setEnabled({Field::flast, span}, ownLoad);
        form_.setEnabled({Field::upl, span}, span != case_.nfack);
    }
}

void CaseFormFiller::showFireOptions() {
    constexpr std::array<const char*, 4> resistance{" REI  30 ", " REI  60 ", " REI  90 ", " REI 120 "};
    constexpr std::array<const char*, 4> fireLoad{"100 MJ/m2", "150 MJ/m2", "200 MJ/m2", "250 MJ/m2"};
    const bool byFireLoad = case_.brandk == 2;
    for (int option = 1; option <= 4; ++option) {
        const auto place = static_cast<std::size_t>(option - 1);
        form_.setCaption({Field::brandb, option}, byFireLoad ? fireLoad[place] : resistance[place]);
    }
    form_.setVisible({Field::brandb, 4}, byFireLoad);
}

} // namespace varno
