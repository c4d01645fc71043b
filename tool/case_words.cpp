#include "tool/case_words.h"

#include <array>
#include <span>
#include <string_view>

#include "base/text.h"
#include "controls/rule_sets.h"
#include "model/reference_tables.h"

namespace varno::tool {

namespace {

// By number, from 1.
constexpr std::array<std::string_view, 3> loadCombinations{"6.10 a", "6.10 b", "6.10 a och 6.10 b"};
constexpr std::array<std::string_view, 2> serviceCombinations{"Frekventa laster", "Karakteristiska laster"};
constexpr std::array<std::string_view, 4> fireResistances{"REI 30", "REI 60", "REI 90", "REI 120"};
constexpr std::array<std::string_view, 4> fireLoads{"100 MJ/m²", "150 MJ/m²", "200 MJ/m²", "250 MJ/m²"};
constexpr std::array<std::string_view, 2> ceilings{"Saknas", "13 Gips"};

std::string nameOf(std::span<const std::string_view> names, int number, int first = 1) {
    const int place = number - first;
    if (place < 0 || place >= static_cast<int>(names.size())) return std::to_string(number);
    return trimBlanks(names[static_cast<std::size_t>(place)]);
}

} // namespace

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

std::string loadCategoryWords(int category) {
    return nameOf(loadCategories, category, 0);
}
std::string loadCombinationWords(int option) {
    return nameOf(loadCombinations, option);
}
std::string serviceCombinationWords(int option) {
    return nameOf(serviceCombinations, option);
}
std::string concreteWords(int row) {
    return nameOf(concreteClasses, row);
}
std::string steelWords(int row) {
    return nameOf(steelGrades, row);
}
std::string barWords(int row) {
    return nameOf(barDiameters, row);
}
std::string fireClassWords(int row) {
    return nameOf(fireClasses, row);
}
std::string fireMethodWords(int fireClass, int option) {
    return nameOf(fireClass == 2 ? fireLoads : fireResistances, option);
}
std::string ceilingWords(int option) {
    return nameOf(ceilings, option);
}

} // namespace varno::tool
