#include "tool/case_inputs.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "controls/rule_sets.h"
#include "input/field_table.h"
#include "shell/case_messages.h"

namespace varno::tool {

namespace {

template <typename Number>
std::string commaText(Number value) {
    std::string text = generalForm(value);
    if (const auto point = text.find('.'); point != std::string::npos) text[point] = ',';
    return value == 0 && std::signbit(value) ? "-0" : text;
}

std::string valueText(float value) {
    return withComma(value);
}
std::string valueText(std::int16_t value) {
    return std::to_string(value);
}
std::string valueText(const Factor& factor) {
    return factor ? withComma(*factor) : "saknas";
}

std::string wholeText(std::int16_t DesignCase::*field, const DesignCase& c) {
    if (field == &DesignCase::loadCode) return ruleSetWords(c);
    for (const ChoiceField& row : choiceFields) {
        if (row.place != field) continue;
        if (row.kind == ChoiceKind::checkBox) return c.*field != 0 ? "ja" : "nej";
        return choiceText(row.field, c).value_or(std::to_string(c.*field));
    }
    return std::to_string(c.*field);
}

const RuleSet& classesOf(const DesignCase& c) {
    const RuleSet* const known = ruleSetWith(&RuleSet::number, c.loadCode);
    return known == nullptr ? ruleSets.front() : *known;
}

class Inputs {
  public:
    explicit Inputs(const CaseFile& caseFile) : file_(caseFile), case_(caseFile.designCase) {}

    std::vector<Input> all() {
        for (std::size_t i = 0; i < caseLines.size(); ++i)
            addLine(static_cast<int>(i) + 1, caseLines[i]);
        return std::move(inputs_);
    }

  private:
    void addLine(int number, const CaseLine& line) {
        if (std::holds_alternative<CaseNameLine>(line)) return add({number, 0}, "\"" + file_.name + "\"");
        if (std::holds_alternative<TitleLine>(line)) return add({number, 0}, "\"" + file_.title + "\"");
        if (std::holds_alternative<SafetyClassLine>(line)) return add({number, 0}, classWords(case_));
        if (const auto* whole = std::get_if<IntegerLine>(&line))
            return add({number, 0}, wholeText(whole->field, case_));
        addNumbers({number, 0}, line);
    }

    void addNumbers(CasePlace place, const CaseLine& line) {
        forEachNumber(line, case_,
                      [&](const CellFormat& cell, auto field, std::optional<int> element, auto at) {
                          if (cell.isColumn()) ++place.cell;
                          if (inUse(line, field, element)) add(place, valueText(at(case_)));
                      });
    }
    // The end supports have no width, and a line load beyond the count is kept but not calculated with.
    template <typename Place>
    bool inUse(const CaseLine& line, Place field, std::optional<int> element) const {
        if (std::holds_alternative<LineLoadLine>(line)) return *element <= case_.nllast;
        if constexpr (std::is_same_v<Place, SpanArray DesignCase::*>)
            return field != &DesignCase::upl || (*element != 0 && *element != case_.nfack);
        return true;
    }
    void add(CasePlace place, const std::string& value) {
        const bool isClass =
            std::holds_alternative<SafetyClassLine>(caseLines[static_cast<std::size_t>(place.line - 1)]);
        inputs_.push_back({place, isClass ? classFrame(case_) : fieldName(place), value});
    }

    const CaseFile& file_;
    const DesignCase& case_;
    std::vector<Input> inputs_;
};

} // namespace

std::vector<Input> inputsOf(const CaseFile& caseFile) {
    return Inputs(caseFile).all();
}

std::string withComma(float value) {
    return commaText(value);
}
std::string withComma(double value) {
    return commaText(value);
}

std::string ruleSetWords(const DesignCase& c) {
    const RuleSet* const known = ruleSetWith(&RuleSet::number, c.loadCode);
    return known == nullptr ? std::to_string(c.loadCode) : known->name;
}

std::string classFrame(const DesignCase& c) {
    return classesOf(c).frame;
}

std::string classWords(const DesignCase& c) {
    const RuleSet& rules = classesOf(c);
    const int option = c.safetyClass(c.loadCode);
    const bool named = option >= 1 && option <= static_cast<int>(rules.classes.size());
    return named ? rules.classes[static_cast<std::size_t>(option - 1)] : std::to_string(option);
}

} // namespace varno::tool
