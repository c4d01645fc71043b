#include "input/form_filling.h"

#include <algorithm>
#include <array>

#include "model/reference_tables.h"

namespace varno {

// How a line of the file that holds one number of its own is shown.
struct ShownLine {
    int line;
    Field field;
    enum { row, option, whole, limit, check } as;
    std::int16_t DesignCase::*value;
};

namespace {

// By rule set, from 1.
constexpr std::array classGroups{Field::shkl,   Field::shklpl, Field::pkl,
                                 Field::shklfi, Field::shkldk, Field::shkleu};
constexpr std::array flags{1, 5, 2, 4, 3, 6};

bool hasPresets(int ruleSet) {
    return ruleSet >= 1 && ruleSet <= maxLoadCode;
}

constexpr std::array shownLines{
    ShownLine{5, Field::nfack, ShownLine::whole, &DesignCase::nfack},
    ShownLine{11, Field::lastkomb, ShownLine::option, &DesignCase::lastkomb},
    ShownLine{16, Field::btg, ShownLine::row, &DesignCase::btg},
    ShownLine{17, Field::aok, ShownLine::row, &DesignCase::aok},
    ShownLine{18, Field::dok, ShownLine::row, &DesignCase::dok},
    ShownLine{19, Field::kavko, ShownLine::check, &DesignCase::kavko},
    ShownLine{20, Field::ktack, ShownLine::whole, &DesignCase::ktack},
    ShownLine{21, Field::auk, ShownLine::row, &DesignCase::auk},
    ShownLine{22, Field::duk, ShownLine::row, &DesignCase::duk},
    ShownLine{23, Field::duarm, ShownLine::whole, &DesignCase::duarm},
    ShownLine{24, Field::brandk, ShownLine::row, &DesignCase::brandk},
    ShownLine{25, Field::brandb, ShownLine::option, &DesignCase::brandb},
    ShownLine{26, Field::kutak, ShownLine::option, &DesignCase::kutak},
    ShownLine{28, Field::overhojning, ShownLine::whole, &DesignCase::overhojning},
    ShownLine{29, Field::initiell, ShownLine::limit, &DesignCase::initiell},
    ShownLine{30, Field::tillkommande, ShownLine::limit, &DesignCase::tillkommande},
    ShownLine{31, Field::brukskomb, ShownLine::option, &DesignCase::brukskomb},
};

} // namespace

Field classGroup(int ruleSet) {
    if (!hasPresets(ruleSet)) throw RunTimeError(errSubscriptOutOfRange);
    return classGroups[static_cast<std::size_t>(ruleSet - 1)];
}

int flagOfRuleSet(int ruleSet) {
    return hasPresets(ruleSet) ? flags[static_cast<std::size_t>(ruleSet - 1)] : 0;
}

CaseFormFiller::CaseFormFiller(DesignCase& designCase, FormView& form, MainView& window, NumberLocale locale,
                               std::function<void()> refresh)
    : case_(designCase), form_(form), window_(window), locale_(std::move(locale)),
      refresh_(std::move(refresh)) {}

void CaseFormFiller::fillList(Field list, std::span<const std::string_view> rows) {
    form_.clearList(list);
    for (const std::string_view row : rows)
        form_.addRow(list, row);
}

void CaseFormFiller::fillReferenceTables() {
    presetDesignCase(case_);
    fillList(Field::brandk, fireClasses);
    fillList(Field::duk, barDiameters);
    fillList(Field::dok, barDiameters);
    window_.setDiagramEnabled(false);
}

void CaseFormFiller::readingStarts() {
    for (const Field list : {Field::lokt, Field::btg, Field::aok, Field::auk})
        form_.clearList(list);
}

void CaseFormFiller::setTitle(const std::string& title) {
    form_.setText({Field::rubrik}, title);
}

template <typename Number>
void CaseFormFiller::showNumber(Control control, Number value, std::string_view pattern) {
    form_.setText(control, formatNumber(value, pattern, locale_));
}

void CaseFormFiller::showWhole(Field field, int value, std::string_view pattern) {
    showNumber({field}, static_cast<double>(value), pattern);
}

void CaseFormFiller::showRuleSet() {
    const int ruleSet = case_.loadCode;
    window_.showFlag(flagOfRuleSet(ruleSet));
    for (int other = 1; other <= maxLoadCode; ++other)
        form_.showGroup(classGroup(other), other == ruleSet);
}

void CaseFormFiller::showFactors() {
    const auto show = [this](Field field, const Factor& factor) {
        form_.setText({field}, factor ? formatNumber(*factor, "#0.00", locale_) : "");
    };
    const int ruleSet = case_.loadCode;
    const int category = case_.lokt;
    show(Field::lambdaG, case_.lambdaG(ruleSet));
    show(Field::ksi, case_.ksi(ruleSet));
    show(Field::lambdaQ, case_.lambdaQ(ruleSet));
    show(Field::psi0, case_.psi0(ruleSet, category));
    show(Field::psi1, case_.psi1(ruleSet, category));
    show(Field::psi2, case_.psi2(ruleSet, category));
}

void CaseFormFiller::showLoadFrameCaption() {
    form_.setCaption({Field::loadFrame}, case_.loadCode == 1 ? "Laster enl. BKR" : "Laster enl. Eurokod");
}

void CaseFormFiller::lineRead(int number) {
    switch (number) {
    case 3:
        showRuleSet();
        for (const Field factor :
             {Field::lambdaG, Field::ksi, Field::lambdaQ, Field::psi0, Field::psi1, Field::psi2}) {
            form_.setEnabled({factor}, false);
        }
        return;
    case 4:
        if (hasPresets(case_.loadCode)) {
            form_.selectOption(classGroup(case_.loadCode), case_.safetyClass(case_.loadCode));
        }
        return;
    case 9:
        form_.setCaption({Field::loadFrame}, "Laster enl. Eurokod");
        fillList(Field::lokt, loadCategories);
        form_.selectRow(Field::lokt, case_.lokt);
        return;
    case 10:
        showFactors();
        return;
    case 14:
        showNumber({Field::konsv}, case_.konsv, "#0.00");
        return;
    case 15:
        showNumber({Field::konsh}, case_.konsh, "#0.00");
        return;
    case 16:
        fillList(Field::btg, concreteClasses);
        break;
    case 17:
        fillList(Field::aok, steelGrades);
        break;
    case 21:
        fillList(Field::auk, steelGrades);
        break;
    default:
        break;
    }
    for (const ShownLine& shown : shownLines) {
        if (shown.line == number) showLine(shown);
    }
}

void CaseFormFiller::showLine(const ShownLine& shown) {
    const std::int16_t value = case_.*shown.value;
    switch (shown.as) {
    case ShownLine::row:
        form_.selectRow(shown.field, value - 1);
        break;
    case ShownLine::option:
        form_.selectOption(shown.field, value);
        break;
    case ShownLine::whole:
        showWhole(shown.field, value);
        break;
    case ShownLine::limit:
        showWhole(shown.field, value, "####");
        break;
    case ShownLine::check:
        form_.setChecked(shown.field, value != 0);
        break;
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

void CaseFormFiller::caseRead() {
    showCaseFields();
    showSpanCells();
    showFireOptions();
    showLoadFrameCaption();
    refresh_();
}

void CaseFormFiller::showAll() {
    readingStarts();
    for (const CaseLine& line : caseLines)
        lineRead(line.number);
    caseRead();
}

} // namespace varno
