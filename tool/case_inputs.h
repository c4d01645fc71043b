#pragma once

#include <string>
#include <vector>

#include "model/case_check.h"
#include "model/design_input_file.h"

namespace varno::tool {

/// One input of a case in words: "Spännvidd (m), fack 2", "4,8".
struct Input {
    CasePlace place;
    std::string name;
    std::string value; ///< two values that differ never look the same
    bool operator==(const Input&) const = default;
};

/// The inputs that are in use, in the order of the file.
std::vector<Input> inputsOf(const CaseFile& caseFile);

/// The shortest text of a number that reads back as the same, with a decimal comma.
std::string withComma(float value);
std::string withComma(double value);

/// The load rules and their classes in words; a number that is not in the tables is shown as the number.
std::string ruleSetWords(const DesignCase& designCase);
std::string classFrame(const DesignCase& designCase);
std::string classWords(const DesignCase& designCase);

} // namespace varno::tool
