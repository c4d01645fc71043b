#pragma once

#include <optional>
#include <vector>

#include "controls/control_spec.h"
#include "controls/field.h"

namespace varno {

/// The main input form's own size in twips.
inline constexpr int formWidth = raster(936);
inline constexpr int formHeight = raster(524);

/// The controls of the main input form in tab order, which is the order one fills it in: along a row of the
/// grid, then the next row. The six class groups lie on top of each other; one of them is shown.
std::vector<ControlSpec> inputFormLayout();

/// The grid: spans stand in columns 600 twips apart, each support half a column to the left of the span that
/// begins there, so that support 0 is left of span 1 and support n right of span n.
inline constexpr int gridColumn = 600;
inline constexpr int firstSpanX = raster(190);

/// The box below (`rows` 1) or above (-1) one of the grid's boxes, in the same column: spans stand over the
/// support at their right end. Nothing beyond the first and last row, and nothing for a control outside the
/// grid.
std::optional<Control> gridNeighbour(Control control, int rows);

/// The ID of the number above a span's column.
int spanHeadId(int span);

/// The ID of the frame around a safety class group.
int classFrameId(int ruleSet);

} // namespace varno
