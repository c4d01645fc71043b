#include "tool/drawing_commands.h"

#include <algorithm>
#include <ostream>

#include "diagram/moment_diagram.h"
#include "drawing/svg_canvas.h"
#include "input/sketch_picture.h"
#include "results/result_pages.h"
#include "tool/commands.h"
#include "tool/drawing_list.h"
#include "tool/json_text.h"

namespace varno::tool {

namespace {

void writeLines(FileOpener& opener, const std::string& path, const std::string& text) {
    File file = opener.openFile(path, FileMode::output);
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        file.printLine(text.substr(from, end - from));
        from = end + 1;
    }
    file.close();
}

void drawDiagramOn(Canvas& canvas, FileOpener& opener, const std::string& path,
                   const std::string& momentPath) {
    const CaseFile loaded = loadCase(opener, path);
    SketchPicture unseen;
    SlabSketch sketch(loaded.designCase, unseen.loadPicture, unseen.slabStrip, unseen);
    sketch.computeGeometry();
    MomentDiagram diagram(loaded.designCase, sketch);
    File measured = opener.openFile(momentPath, FileMode::input);
    diagram.measure(measured);
    measured.close();
    File drawn = opener.openFile(momentPath, FileMode::input);
    diagram.draw(drawn, canvas);
    drawn.close();
}

} // namespace

void listSketch(FileOpener& opener, const std::string& path, std::ostream& out) {
    const CaseFile loaded = loadCase(opener, path);
    ListCanvas loadPicture("load", out);
    ListCanvas slabStrip("strip", out);
    ListButtons buttons(out);
    SlabSketch(loaded.designCase, loadPicture, slabStrip, buttons).fullRefresh();
}

void drawSketch(FileOpener& opener, const std::string& path, const std::string& svgPath) {
    const CaseFile loaded = loadCase(opener, path);
    SketchPicture picture;
    SlabSketch(loaded.designCase, picture.loadPicture, picture.slabStrip, picture).fullRefresh();
    writeLines(opener, svgPath, svgOf(picture));
}

void listDiagram(FileOpener& opener, const std::string& path, const std::string& momentPath,
                 std::ostream& out) {
    ListCanvas canvas("diagram", out);
    drawDiagramOn(canvas, opener, path, momentPath);
}

void drawDiagram(FileOpener& opener, const std::string& path, const std::string& momentPath,
                 const std::string& svgPath) {
    SvgCanvas canvas(diagramWidth, diagramHeight);
    drawDiagramOn(canvas, opener, path, momentPath);
    writeLines(opener, svgPath, canvas.svg());
}

void printPages(FileOpener& opener, const std::string& path, std::ostream& out) {
    File file = opener.openFile(path, FileMode::input);
    std::string json;
    for (const Bytes& page : VARNO1::readResultPages(file))
        json += (json.empty() ? "\n  " : ",\n  ") + jsonText(decodeWindows1252(page));
    out << "[" << json << (json.empty() ? "]\n" : "\n]\n");
}

} // namespace varno::tool
