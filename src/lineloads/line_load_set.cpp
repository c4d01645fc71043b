#include "lineloads/line_load_set.h"

namespace varno {

std::string accessibleName(LineLoadControl control) {
    if (control.box == LineLoadBox::nllast)
        return std::string(lineLoadCount).substr(0, std::string_view(lineLoadCount).find(':'));
    if (control.box == LineLoadBox::multiplier)
        return std::string(multiplierValue) + ", " +
               multiplierBoxes.at(static_cast<std::size_t>(control.index - 1)).label;
    const auto column = static_cast<std::size_t>(control.box) - static_cast<std::size_t>(LineLoadBox::llfnr);
    const auto& [heading, unit] = lineLoadColumns.at(column);
    return std::string(heading) + (*unit != '\0' ? " " : "") + unit + ", linjelast " +
           std::to_string(control.index);
}

} // namespace varno
