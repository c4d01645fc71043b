#pragma once

#include <string>

#include "controls/field.h"
#include "model/design_case.h"

namespace varno::tool {

// The numbers of a case in words, as the input form shows them; Swedish, UTF-8. A number that no list and no
// option group has is shown as the number.

std::string ruleSetWords(int ruleSet);
/// The caption of the class group of a rule set, "Säkerhetsklass" for a rule set without one.
std::string classCaption(int ruleSet);
std::string classWords(int ruleSet, int option);
/// A list's row, or an option.
std::string choiceWords(Field field, const DesignCase& designCase);

} // namespace varno::tool
