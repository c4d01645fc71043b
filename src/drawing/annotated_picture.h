#pragma once

#include <string>
#include <vector>

#include "drawing/recording_canvas.h"

namespace varno {

/// A word above or below a place of a picture, in its middle.
struct PictureText {
    Point place;
    std::string text;
    bool above = true;
    bool operator==(const PictureText&) const = default;
};

/// A drawing with words in it, as a window shows it and a report takes it.
struct AnnotatedPicture {
    RecordingCanvas drawing;
    double width = 0; ///< twips
    double height = 0;
    std::vector<PictureText> texts = {};
};

/// As an SVG document, UTF-8.
std::string svgOf(const AnnotatedPicture& picture);

} // namespace varno
