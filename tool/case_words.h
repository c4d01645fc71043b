#pragma once

#include <string>

#include "model/design_case.h"

namespace varno::tool {

// The numbers of a case in words, as the input form shows them; Swedish, UTF-8. A number that no list and no
// option group has is shown as the number.

std::string ruleSetWords(int ruleSet);
/// The caption of the class group of a rule set, "Säkerhetsklass" for a rule set without one.
std::string classCaption(int ruleSet);
std::string classWords(int ruleSet, int option);
std::string loadCategoryWords(int category);
std::string loadCombinationWords(int option);
std::string serviceCombinationWords(int option);
std::string concreteWords(int row);
std::string steelWords(int row);
std::string barWords(int row);
std::string fireClassWords(int row);
/// A fire resistance, or a fire load for fire class 2.
std::string fireMethodWords(int fireClass, int option);
std::string ceilingWords(int option);

} // namespace varno::tool
