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

void writeLines(FileOpener& opener, const std::string& path, const std::string& text) {
    File file = opener.openFile(path, FileMode::output);
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        file.printLine(text.substr(from, end - from));
        from = end + 1;
    }
    file.close();
}

namespace {

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

ExitCode printJson(const Session& session, const Request& request) {
    const CaseFile loaded = loadCase(session.opener, request.file);
    session.out << (request.used ? usedCaseJson(loaded) : caseJson(loaded));
    return done;
}

ExitCode rewriteCase(const Session& session, const Request& request) {
    const CaseFile loaded = loadCase(session.opener, request.file);
    File file = session.opener.openFile(request.target, FileMode::output);
    VARNO1::writeDesignCase(file, loaded);
    file.close();
    return done;
}

ExitCode printResult(const Session& session, const Request& request) {
    File file = session.opener.openFile(request.file, FileMode::input);
    session.out << decodeWindows1252(VARNO1::readResultText(file));
    return done;
}

ExitCode printPages(const Session& session, const Request& request) {
    File file = session.opener.openFile(request.file, FileMode::input);
    std::string json;
    for (const Bytes& page : VARNO1::readResultPages(file))
        json += (json.empty() ? "\n  " : ",\n  ") + jsonOf(decodeWindows1252(page));
    session.out << "[" << json << (json.empty() ? "]\n" : "\n]\n");
    return done;
}

ExitCode printReport(const Session& session, const Request& request) {
    session.out << caseReport(loadCase(session.opener, request.file));
    return done;
}

ExitCode drawSketch(const Session& session, const Request& request) {
    const CaseFile loaded = loadCase(session.opener, request.file);
    if (request.list) {
        ListCanvas loadPicture("load", session.out);
        ListCanvas slabStrip("strip", session.out);
        ListButtons buttons(session.out);
        SlabSketch(loaded.designCase, loadPicture, slabStrip, buttons).fullRefresh();
    } else {
        SketchPicture picture;
        SlabSketch(loaded.designCase, picture.loadPicture, picture.slabStrip, picture).fullRefresh();
        writeLines(session.opener, request.target, svgOf(picture));
    }
    return done;
}

ExitCode drawDiagram(const Session& session, const Request& request) {
    if (request.list) {
        ListCanvas canvas("diagram", session.out);
        drawDiagramOn(canvas, session.opener, request);
    } else {
        SvgCanvas canvas(diagramWidth, diagramHeight);
        drawDiagramOn(canvas, session.opener, request);
        writeLines(session.opener, request.target, canvas.svg());
    }
    return done;
}

} // namespace varno::tool
