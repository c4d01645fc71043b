#include "tool/commands.h"

#include <algorithm>
#include <ostream>

#include "diagram/moment_diagram.h"
#include "drawing/svg_canvas.h"
#include "input/sketch_picture.h"
#include "model/reference_tables.h"
#include "results/result_text.h"
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

void drawDiagramOn(Canvas& canvas, FileOpener& opener, const Request& request) {
    const CaseFile loaded = loadCase(opener, request.file);
    SketchPicture unseen;
    SlabSketch sketch(loaded.designCase, unseen.loadPicture, unseen.slabStrip, unseen);
    sketch.computeGeometry();
    MomentDiagram diagram(loaded.designCase, sketch);
    File measured = opener.openFile(request.moments, FileMode::input);
    diagram.measure(measured);
    File drawn = opener.openFile(request.moments, FileMode::input);
    diagram.draw(drawn, canvas);
}

} // namespace

MessageAnswer ConsoleBoxes::show(const std::string& text, int style, const std::string& title) {
    err_ << title << (title.empty() ? "" : ": ") << text << '\n';
    return style == msgYesNo ? MessageAnswer::no : MessageAnswer::cancel;
}

CaseFile loadCase(FileOpener& opener, const std::string& path) {
    DesignCase presets;
    presetDesignCase(presets);
    File file = opener.openFile(path, FileMode::input);
    return VARNO1::readDesignCase(file, presets);
}

void printJson(FileOpener& opener, const Request& request, std::ostream& out) {
    out << caseJson(loadCase(opener, request.file));
}

void rewriteCase(FileOpener& opener, const Request& request, std::ostream&) {
    const CaseFile loaded = loadCase(opener, request.file);
    File file = opener.openFile(request.target, FileMode::output);
    VARNO1::writeDesignCase(file, loaded);
    file.close();
}

void printResult(FileOpener& opener, const Request& request, std::ostream& out) {
    File file = opener.openFile(request.file, FileMode::input);
    out << decodeWindows1252(VARNO1::readResultText(file));
}

void printPages(FileOpener& opener, const Request& request, std::ostream& out) {
    File file = opener.openFile(request.file, FileMode::input);
    std::string json;
    for (const Bytes& page : VARNO1::readResultPages(file))
        json += (json.empty() ? "\n  " : ",\n  ") + jsonOf(decodeWindows1252(page));
    out << "[" << json << (json.empty() ? "]\n" : "\n]\n");
}

void printReport(FileOpener& opener, const Request& request, std::ostream& out) {
    out << caseReport(loadCase(opener, request.file));
}

void drawSketch(FileOpener& opener, const Request& request, std::ostream& out) {
    const CaseFile loaded = loadCase(opener, request.file);
    if (request.list) {
        ListCanvas loadPicture("load", out);
        ListCanvas slabStrip("strip", out);
        ListButtons buttons(out);
        SlabSketch(loaded.designCase, loadPicture, slabStrip, buttons).fullRefresh();
    } else {
        SketchPicture picture;
        SlabSketch(loaded.designCase, picture.loadPicture, picture.slabStrip, picture).fullRefresh();
        writeLines(opener, request.target, svgOf(picture));
    }
}

void drawDiagram(FileOpener& opener, const Request& request, std::ostream& out) {
    if (request.list) {
        ListCanvas canvas("diagram", out);
        drawDiagramOn(canvas, opener, request);
    } else {
        SvgCanvas canvas(diagramWidth, diagramHeight);
        drawDiagramOn(canvas, opener, request);
        writeLines(opener, request.target, canvas.svg());
    }
}

} // namespace varno::tool
