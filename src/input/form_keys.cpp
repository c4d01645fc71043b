#include "input/form_keys.h"

#include <algorithm>
#include <array>

namespace varno {

std::optional<Control> gridNeighbour(Control control, int rows) {
    constexpr std::array grid{Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl};
    const auto found = std::find(grid.begin(), grid.end(), control.field);
    if (found == grid.end()) return std::nullopt;
    const auto row = static_cast<int>(found - grid.begin()) + rows;
    if (row < 0 || row >= static_cast<int>(grid.size())) return std::nullopt;
    // The left end support has no span of its own; up from it is the first span.
    const Field target = grid[static_cast<std::size_t>(row)];
    return Control{target, target == Field::upl ? control.index : std::max(1, control.index)};
}

} // namespace varno
