#pragma once

#include <string>
#include <vector>

#include "driver/program.h"

namespace varno::gui {

/// What is wrong with how the controls of a window stand at this resolution, one line each: a caption that its control
/// cannot show whole, rows lower than their letters, a control outside the window or over the edge of its frame, two that
/// overlap, boxes and labels that are not in line, a path that is indented.
std::vector<std::string> layoutFaults(const Program& program, const Control& window, int dpi);
/// The same of a window that scrolls; `area` is where its content lies, as scrolled.
std::vector<std::string> layoutFaults(const Program& program, const Control& window, int dpi,
                                      const RECT& area);

} // namespace varno::gui
