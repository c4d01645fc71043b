#pragma once

#include <string>

#include "drawing/recording_canvas.h"
#include "input/sketch.h"

namespace varno {

/// The sketch as it stands: what the window paints from, and places its buttons by. A refresh that an error
/// stopped has left it half drawn; it stays so until the next one.
class SketchPicture : public SupportButtons {
  public:
    struct Button {
        bool visible = false;
        double left = 0;
        double top = 0;
        bool operator==(const Button&) const = default;
    };

    void setButton(int index, bool visible, double left, double top) override {
        buttons_(index) = {visible, left, top};
    }

    RecordingCanvas loadPicture;
    RecordingCanvas slabStrip;
    const Button& button(int index) const { return buttons_(index); }

    bool operator==(const SketchPicture& other) const {
        return loadPicture == other.loadPicture && slabStrip == other.slabStrip && buttons_ == other.buttons_;
    }

  private:
    BoundedArray<Button, 0, 15> buttons_;
};

/// The whole sketch as one SVG document: the load picture above the slab strip, the ends of the slab in line,
/// the buttons as boxes.
std::string svgOf(const SketchPicture& picture);

} // namespace varno
