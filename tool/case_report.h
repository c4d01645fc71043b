#pragma once

#include <string>

#include "model/design_input_file.h"

namespace varno::tool {

/// The case in readable Swedish, UTF-8 with LF: choices in words, spans, supports and line loads as tables,
/// decimal commas. Only what is in use is shown; numbers that the file can hold are not rounded away.
std::string caseReport(const CaseFile& loaded);

} // namespace varno::tool
