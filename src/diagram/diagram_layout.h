#pragma once

#include "controls/control_spec.h"
#include "drawing/area.h"

namespace varno {

/// Where the parts of the window "Momentdiagram" stand in its client area.
struct DiagramLayout {
    Area picture;
    Area plotButton;
    Area reading;   ///< the line about the place that is pointed at
    Area age;       ///< below it: how old the curves are
    int pictureDpi; ///< pixels to the inch of the picture area: its scale
};

/// The picture takes all of the window that its proportions let it, in the middle of its room; the button stands below.
DiagramLayout diagramLayout(int width, int height, int dpi);

/// The client area in which the picture has its own scale, twips.
inline constexpr int naturalDiagramWidth = raster(660);
inline constexpr int naturalDiagramHeight = raster(380);
/// The smallest one: the picture at half its scale.
Area leastDiagramArea(int dpi);

} // namespace varno
