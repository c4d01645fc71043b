#include "drawing/annotated_picture.h"

#include <algorithm>

#include "drawing/svg_canvas.h"

namespace varno {

std::string svgOf(const AnnotatedPicture& picture) {
    constexpr double gap = 50;
    SvgCanvas canvas(picture.width, picture.height);
    replay(picture.drawing, canvas);
    for (const PictureText& text : picture.texts) {
        const double baseline = text.above ? text.place.y - gap : text.place.y + gap + SvgCanvas::textHeight;
        canvas.text({text.place.x, std::clamp(baseline, SvgCanvas::textHeight, picture.height - gap)}, text.text);
    }
    return canvas.svg();
}

} // namespace varno
