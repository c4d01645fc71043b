#include "tool/case_words.h"

#include "base/text.h"
#include "controls/rule_sets.h"
#include "input/field_table.h"

namespace varno::tool {

std::string ruleSetWords(int ruleSet) {
    const RuleSet* const rules = ruleSetWith(&RuleSet::number, ruleSet);
    return rules == nullptr ? std::to_string(ruleSet) : rules->name;
}

std::string classCaption(int ruleSet) {
    const RuleSet* const rules = ruleSetWith(&RuleSet::number, ruleSet);
    return rules == nullptr ? ruleSets.front().frame : rules->frame;
}

std::string classWords(int ruleSet, int option) {
    const RuleSet* const rules = ruleSetWith(&RuleSet::number, ruleSet);
    const auto& classes = rules == nullptr ? ruleSets.front().classes : rules->classes;
    return option >= 1 && option <= static_cast<int>(classes.size())
               ? classes[static_cast<std::size_t>(option - 1)]
               : std::to_string(option);
}

std::string choiceWords(Field field, const DesignCase& designCase) {
    const ChoiceField& row = *choiceField(field);
    const auto options = field == Field::brandb ? fireOptions(designCase.brandk) : row.options;
    const int number = designCase.*row.place;
    const int place = number - row.firstNumber;
    if (place < 0 || place >= static_cast<int>(options.size())) return std::to_string(number);
    std::string words = trimBlanks(options[static_cast<std::size_t>(place)]);
    // The rows of the form are padded, some within.
    const auto pad = words.find("  ");
    return pad == std::string::npos ? words : words.erase(pad, 1);
}

} // namespace varno::tool
