#pragma once

#include <string>

#include "model/design_input_file.h"

namespace varno::tool {

/// The case as one JSON object, UTF-8: the record's fields by their names, arrays in their full index range
/// from 0. A number is the shortest decimal that reads back as the same single or double, an empty factor
/// cell is null.
std::string caseJson(const CaseFile& loaded);

} // namespace varno::tool
