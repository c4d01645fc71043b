#include "diagram/diagram_layout.h"

#include <algorithm>

#include "diagram/moment_diagram.h"

namespace varno {

namespace {

constexpr int margin = raster(10);
constexpr int pictureWidth = static_cast<int>(diagramWidth);
constexpr int pictureHeight = static_cast<int>(diagramHeight);
constexpr int aboveButton = raster(2);
constexpr int buttonWidth = raster(150);
constexpr int buttonHeight = raster(28);
constexpr int textLine = raster(16);
constexpr int wordsWidth = raster(430); // of the longest words beside the button
constexpr int besidePicture = 2 * margin;
constexpr int belowPicture = aboveButton + buttonHeight + margin;
static_assert(naturalDiagramWidth == pictureWidth + besidePicture);
static_assert(naturalDiagramHeight == pictureHeight + 2 * margin + belowPicture);

} // namespace

DiagramLayout diagramLayout(int width, int height, int dpi) {
    const auto px = [dpi](int twips) { return pixelsOf(twips, dpi); };
    const int room = std::max(0, width - px(besidePicture));
    const int high = std::max(0, height - px(2 * margin + belowPicture));
    DiagramLayout layout{};
    layout.pictureDpi = std::max(1, std::min(dpiFor(room, pictureWidth), dpiFor(high, pictureHeight)));
    const int across = pixelsOf(pictureWidth, layout.pictureDpi);
    const int down = pixelsOf(pictureHeight, layout.pictureDpi);
    layout.picture = {(width - across) / 2, px(margin) + (high - down) / 2, across, down};
    layout.plotButton = {px(margin), height - px(margin + buttonHeight), px(buttonWidth), px(buttonHeight)};
    const int beside = layout.plotButton.right() + px(margin);
    const int line = px(textLine);
    const int lineWidth = std::max(0, width - px(margin) - beside);
    layout.reading = {beside, layout.plotButton.y - px(aboveButton), lineWidth, line};
    layout.age = {beside, layout.reading.bottom(), lineWidth, line};
    return layout;
}

Area leastDiagramArea(int dpi) {
    constexpr int width = std::max(pictureWidth / 2 + besidePicture, 3 * margin + buttonWidth + wordsWidth);
    constexpr int height = pictureHeight / 2 + 2 * margin + belowPicture;
    return {0, 0, pixelsOf(width, dpi), pixelsOf(height, dpi)};
}

} // namespace varno
