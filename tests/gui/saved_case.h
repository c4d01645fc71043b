#pragma once

#include <string>

#include "model/design_input_file.h"

namespace varno::gui {

/// A case file as the program's own reader gives it. \throws RunTimeError.
CaseFile readSavedCase(const std::string& path);

} // namespace varno::gui
