#pragma once

#include <optional>

#include "input/form_view.h"

namespace varno {

/// The box below (`rows` 1) or above (-1) one of the grid's boxes, in the same column: spans stand over the
/// support at their right end. Nothing beyond the first and last row, and nothing for a control outside the
/// grid.
std::optional<Control> gridNeighbour(Control control, int rows);

} // namespace varno
