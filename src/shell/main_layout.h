#pragma once

#include "drawing/area.h"

namespace varno {

/// Where the parts of the main window stand in its client area.
struct MainLayout {
    Area toolbar;
    Area loadPicture;
    Area slabStrip;
    Area flag;
    Area flagName;
    Area form; ///< the MDI client
    Area statusState;
    Area statusFolder;
    Area statusLength;
    Area statusResult;
    Area statusReason; ///< over all four
    int sketchDpi;     ///< pixels to the inch of the two sketch surfaces: their scale
};

/// Toolbar, sketch and flag on top, below them the form, and the status line at the foot. Room that the form does not
/// need goes to the sketch, whose scale grows as far as the width and the height allow. In a window that is narrower than
/// the sketch it shrinks instead; in a low one the form scrolls.
MainLayout mainLayout(int width, int height, int dpi);

/// The client area in which form and sketch have just the room they were laid out for.
Area naturalMainArea(int dpi);
/// The smallest one: the sketch at half its scale, and a few lines of the form.
Area leastMainArea(int dpi);

} // namespace varno
