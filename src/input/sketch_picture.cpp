#include "input/sketch_picture.h"

#include "drawing/svg_canvas.h"

namespace varno {

std::string svgOf(const SketchPicture& picture) {
    constexpr double margin = slabStripStart;
    constexpr double width = sketchLength + 2 * margin;
    SvgCanvas canvas(width, loadPictureHeight + slabStripHeight);
    // Each picture ends at its own edges, as on the screen: a negative load would reach into the strip. The
    // lines on the left and the right edge are shown in their full width.
    canvas.openSurface({margin - twipsPerPixel, 0}, {-twipsPerPixel, 0}, loadPictureWidth + 2 * twipsPerPixel,
                       loadPictureHeight);
    replay(picture.loadPicture, canvas);
    canvas.closeSurface();
    canvas.openSurface({0, loadPictureHeight}, {0, 0}, width, slabStripHeight);
    replay(picture.slabStrip, canvas);
    for (int i = 0; i <= 15; ++i) {
        const SketchPicture::Button& button = picture.button(i);
        if (!button.visible) continue;
        const Point corner{button.left, button.top};
        const Point opposite{button.left + supportButtonWidth, button.top + supportButtonHeight};
        canvas.box(corner, opposite, Colour::foreground());
    }
    canvas.closeSurface();
    return canvas.svg();
}

} // namespace varno
