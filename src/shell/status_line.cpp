#include "shell/status_line.h"

#include "base/text.h"
#include "controls/rule_sets.h"
#include "input/field_table.h"

namespace varno {

namespace {

// What a calculation reads.
DesignCase calculatedPart(DesignCase designCase) {
    const DesignCase none;
    designCase.nllastf = none.nllastf;
    designCase.llfnrf = none.llfnrf;
    designCase.avstf = none.avstf;
    designCase.lllastf = none.lllastf;
    return designCase;
}

// A category of the tables, without the blanks that its row ends in; empty for a number without a row.
std::string categoryName(int category) {
    const ChoiceField& list = *choiceField(Field::lokt);
    const int row = category - list.firstNumber;
    if (row < 0 || row >= list.count()) return {};
    std::string name(list.options[static_cast<std::size_t>(row)]);
    while (name.ends_with(' '))
        name.pop_back();
    return name;
}

} // namespace

void StatusLine::calculated(const std::string& when) {
    constexpr std::size_t toTheMinute = 16;
    calculated_ = Calculated{when.substr(0, toTheMinute), calculatedPart(case_)};
}

void StatusLine::opened() {
    calculated_.reset();
    opened_ = calculatedPart(case_);
}

std::string StatusLine::resultLine(const ShownResult& shown) const {
    constexpr std::size_t toTheMinute = 16;
    std::string line = shown.file;
    if (!shown.written.empty()) line += ", beräknad " + shown.written.substr(0, toTheMinute);
    if (shown.caseName != document_.currentFileName)
        return line + ". Nu är " + upperCase(document_.currentFileName) + ".IND öppet.";
    // Of a result that was there before only the files tell what it was calculated from.
    const bool old = resultIsOld() || (!calculated_ && (shown.inputIsNewer || document_.dataChanged));
    return line + (old ? ", äldre än indata" : "");
}

StatusWords StatusLine::words(const StatusFacts& facts) const {
    StatusWords words;
    words.state = state(facts.changed);
    if (facts.doubts > 0) words.state += ", se över " + std::to_string(facts.doubts);
    words.folder = "Sparas i " + facts.folder;
    words.length = "Total längd " + formatNumber(facts.totalLength, "#0.00", locale_) + " m";
    words.result = result();
    if (facts.greyDiagram) {
        words.reason = whyGrey();
    } else if (facts.lockedBox) {
        words.reason = whyLocked(*facts.lockedBox);
    } else {
        words.reason = facts.doubt;
    }
    return words;
}

std::string StatusLine::state(bool changed) const {
    if (changed) return "Ändrad, inte sparad";
    return document_.caseSaved ? "Sparad" : "Nytt fall";
}

bool StatusLine::resultIsOld() const {
    return calculatedPart(case_) != (calculated_ ? calculated_->from : opened_);
}

std::string StatusLine::result() const {
    if (!calculated_) return "Inte beräknad";
    return "Beräknad " + calculated_->when + (resultIsOld() ? ", äldre än indata" : "");
}

std::string StatusLine::whyLocked(Control box) const {
    switch (box.field) {
    case Field::upl:
        return "Låst: ändupplagens bredd är alltid 0.";
    case Field::flast: {
        const std::string category = categoryName(case_.lokt);
        return "Låst: lastkategorin " + (category.empty() ? std::string() : category + " ") +
               "bestämmer lasten. Med \"Valfri last\" skrivs den fack för fack.";
    }
    case Field::psi2:
        return "Låst: faktorn följer regelverk och lastkategori.";
    default:
        break;
    }
    const TextField* const row = textField(box.field);
    if (row == nullptr || !row->isFactor()) return {};
    return std::string("Låst: faktorn följer regelverket. Den öppnas när flaggan klickas fram till \"") +
           ruleSetWith(&RuleSet::number, 6)->name + "\".";
}

std::string StatusLine::whyGrey() const {
    if (!calculated_)
        return "Diagram är grå: fallet är inte beräknat. Välj \"Kör...\" i menyn \"Beräkning\".";
    return "Diagram är grå: indata har ändrats sedan beräkningen. Välj \"Kör...\" i menyn \"Beräkning\".";
}

} // namespace varno
