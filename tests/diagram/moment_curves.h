#pragma once

#include <string>
#include <vector>

#include "base/file.h"
#include "diagram/moment_diagram.h"
#include "drawing/recording_canvas.h"
#include "input/sketch_picture.h"
#include "support/memory_files.h"

namespace varno::testing {

/// A span of a moment curve file: the spacing and its 21 moments, all `moment` at first.
struct CurveSpan {
    explicit CurveSpan(double spacing, double moment = 0) : dx(std::to_string(spacing)) {
        moments.assign(21, std::to_string(moment));
    }
    CurveSpan& at(std::size_t k, const std::string& moment) {
        moments.at(k) = moment;
        return *this;
    }
    std::string dx;
    std::vector<std::string> moments;
};
using Curve = std::vector<CurveSpan>;

/// The items of a file, with `between` between any two.
inline Bytes momentFileOf(const Curve& first, const Curve& second, const Bytes& between = "\r\n") {
    Bytes text = std::to_string(first.size());
    for (const Curve* curve : {&first, &second}) {
        for (const CurveSpan& span : *curve) {
            text += between + span.dx;
            for (const std::string& moment : span.moments)
                text += between + moment;
        }
    }
    return text + "\r\n";
}

/// A slab of 14 m, cantilevers of 1 m included: 600 twips per metre, the first support at x = 940.
struct DiagramRig {
    explicit DiagramRig(int spans = 1) {
        designCase.nfack = static_cast<std::int16_t>(spans);
        for (int i = 1; i <= spans; ++i)
            designCase.spv(i) = 12.0f / static_cast<float>(spans);
        designCase.konsv = designCase.konsh = 1;
        sketch.computeGeometry();
    }

    void setCantilevers(float left, float right) {
        designCase.konsv = left;
        designCase.konsh = right;
        sketch.computeGeometry();
    }
    template <typename Pass>
    void onFile(const Bytes& content, Pass pass) {
        files.content[name] = content;
        File file(files, name, FileMode::input, 0, 1);
        pass(file);
    }
    void measure(const Bytes& content) {
        onFile(content, [&](File& file) { diagram.measure(file); });
    }
    void draw(const Bytes& content) {
        onFile(content, [&](File& file) { diagram.draw(file, picture); });
    }
    void plot(const Bytes& content) {
        const auto paperCanvas = [this]() -> Canvas& {
            ++timesAsked;
            return paper;
        };
        onFile(content, [&](File& file) { diagram.plot(file, paperCanvas, picture); });
    }
    /// Both passes, as opening the window runs them.
    const std::vector<Drawn>& show(const Bytes& content) {
        measure(content);
        draw(content);
        return picture.drawn();
    }

    const std::string name = "momk.dat";
    MemoryFiles files;
    DesignCase designCase;
    SketchPicture sketchPicture;
    SlabSketch sketch{designCase, sketchPicture.loadPicture, sketchPicture.slabStrip, sketchPicture};
    MomentDiagram diagram{designCase, sketch};
    RecordingCanvas picture;
    RecordingCanvas paper;
    int timesAsked = 0;
};

inline Drawn lineOf(Point from, Point to, Colour colour) {
    return LineDrawn{from, to, colour, 1};
}

} // namespace varno::testing
