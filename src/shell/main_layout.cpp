#include "shell/main_layout.h"

#include <algorithm>

#include "controls/control_spec.h"
#include "input/form_layout.h"
#include "input/sketch.h"

namespace varno {

namespace {

// Twips.
constexpr int toolbarHeight = raster(32);
constexpr int stripX = raster(8);
constexpr int sketchTop = toolbarHeight + raster(6);
constexpr int belowBand = raster(2);
constexpr int beforeFlag = raster(24);
constexpr int flagWidth = raster(80);
constexpr int flagHeight = raster(50);
constexpr int beforeName = raster(10);
constexpr int nameWidth = raster(170);
constexpr int nameHeight = raster(34);
constexpr int besideSketch = stripX + beforeFlag + flagWidth + beforeName + nameWidth + raster(8);
// The load picture stands as far to the right of the slab strip's left edge as the slab does inside the strip, so that
// loads, supports and slab line up.
constexpr int sketchWidth = static_cast<int>(slabStripStart + loadPictureWidth);
constexpr int sketchHeight = static_cast<int>(loadPictureHeight + slabStripHeight);
constexpr int statusHeight = raster(20);
constexpr int besideStatus = raster(8);
constexpr int stateWidth = raster(180);
constexpr int lengthWidth = raster(130);
constexpr int resultWidth = raster(270);
constexpr int leastWidth = raster(640);
constexpr int leastFormHeight = raster(140);

int sketchDpiFor(int width, int height, int dpi) {
    const int byWidth = dpiFor(width - pixelsOf(besideSketch, dpi), sketchWidth);
    if (byWidth < dpi) return std::max(byWidth, dpi / 2);
    const int besides = pixelsOf(sketchTop + belowBand, dpi) + pixelsOf(formHeight + statusHeight, dpi);
    const int byHeight = dpiFor(height - besides, sketchHeight);
    return std::clamp(byHeight, dpi, byWidth);
}

} // namespace

MainLayout mainLayout(int width, int height, int dpi) {
    const auto px = [dpi](int twips) { return pixelsOf(twips, dpi); };
    MainLayout layout{};
    layout.sketchDpi = sketchDpiFor(width, height, dpi);
    const auto sketchPx = [&](double twips) { return pixelsOf(twips, layout.sketchDpi); };

    layout.toolbar = {0, 0, width, px(toolbarHeight)};
    const int band = std::max(px(besideSketch) + sketchPx(sketchWidth), px(formWidth));
    const int left = std::max(0, (width - band) / 2) + px(stripX);
    const int top = px(sketchTop);
    const int loadX = left + sketchPx(slabStripStart);
    const int stripY = top + sketchPx(loadPictureHeight);
    // The slab's right end is the last pixel of the load picture; rounding must not cut it off.
    layout.loadPicture = {loadX, top, sketchPx(loadPictureWidth) + px(raster(1)), stripY - top};
    layout.slabStrip = {left, stripY, std::min(sketchPx(slabStripWidth), width - left),
                        sketchPx(slabStripHeight)};

    const int flagX = layout.loadPicture.right() + px(beforeFlag) - px(raster(1));
    const int flagY = top + std::max(0, (layout.loadPicture.height - px(flagHeight)) / 2);
    layout.flag = {flagX, flagY, px(flagWidth), px(flagHeight)};
    layout.flagName = {layout.flag.right() + px(beforeName), flagY + px(raster(9)), px(nameWidth),
                       px(nameHeight)};
    // A sketch that has shrunk is lower than the flag.
    if (layout.flag.bottom() > stripY)
        layout.slabStrip.width = std::min(layout.slabStrip.width, flagX - left);

    const int bandEnd = std::max(layout.slabStrip.bottom(), layout.flag.bottom()) + px(belowBand);
    const int statusY = height - px(statusHeight);
    layout.form = {0, bandEnd, width, std::max(0, statusY - bandEnd)};

    const int side = px(besideStatus);
    const auto inStatus = [&](int x, int right) { return Area{x, statusY, right - x, px(statusHeight)}; };
    layout.statusReason = inStatus(side, width - side);
    layout.statusState = inStatus(side, side + px(stateWidth));
    layout.statusResult = inStatus(width - side - px(resultWidth), width - side);
    layout.statusLength =
        inStatus(layout.statusResult.x - side - px(lengthWidth), layout.statusResult.x - side);
    layout.statusFolder = inStatus(layout.statusState.right() + side, layout.statusLength.x - side);
    return layout;
}

Area naturalMainArea(int dpi) {
    return {0, 0, pixelsOf(formWidth, dpi),
            pixelsOf(sketchTop + belowBand, dpi) + pixelsOf(sketchHeight, dpi) +
                pixelsOf(formHeight + statusHeight, dpi)};
}

Area leastMainArea(int dpi) {
    return {0, 0, pixelsOf(leastWidth, dpi),
            pixelsOf(sketchTop + belowBand + sketchHeight + leastFormHeight + statusHeight, dpi)};
}

} // namespace varno
