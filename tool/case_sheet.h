#pragma once

#include <string>
#include <variant>
#include <vector>

#include "base/numbers.h"
#include "model/design_case.h"

// A case as a person would like to read it, before it is text or a page: choices in words, spans, supports and line loads
// as tables, decimal commas. Only what is in use is there; numbers that the file can hold are not rounded away.

namespace varno::tool {

inline const NumberLocale swedish{.decimal = ",", .thousands = "\u00A0"};

/// A caption and its value, or a line of text without one.
struct SheetLine {
    std::string caption;
    std::string value;
};
/// Rows of cells; the first is of captions, the second of units. A number with fewer decimals than its neighbours has
/// blanks behind it, so that the commas stand under each other.
using SheetTable = std::vector<std::vector<std::string>>;

struct SheetSection {
    std::string heading;
    std::vector<std::variant<SheetLine, SheetTable>> parts;
};

std::vector<SheetSection> caseSheet(const DesignCase& designCase);

std::string withoutTrailingBlanks(std::string text);

} // namespace varno::tool
