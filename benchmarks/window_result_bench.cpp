#include <windows.h>

#include "controls/control_ids.h"
#include "driver/program.h"
#include "driver/scene.h"
#include "painting.h"
#include "window_bench.h"

namespace varno::benchmarks {

namespace {

constexpr int lines = 100'000;
constexpr int openings = 5;
constexpr int pages = 200;
// A line of a result file with small DOS letters.
constexpr const char* line = "  st\x94"
                             "dmoment p\x86 tv\x86 f\x84lt              -12.34      56.78\r\n";

Bytes longResult() {
    Bytes text;
    for (int i = 0; i < lines; ++i)
        text += line;
    return text;
}

gui::Control openResult(const gui::Program& program) {
    program.command(idShowResult);
    gui::Control viewer;
    waitAwake(program.main(), [&] {
        const auto found = program.find(gui::viewerClass);
        if (found) viewer = *found;
        return found.has_value();
    });
    waitPainted(treeOf(viewer));
    return viewer;
}

// What a key of the text box does, sent so that it is over when the answer comes, and painted at once.
void measurePages(WindowFigures& figures, const gui::Control& viewer) {
    const gui::Control text = viewer.item(idFileTextBox);
    const auto turn = [&](const std::string& name, WPARAM how) {
        const Stopwatch watch;
        text.send(WM_VSCROLL, how);
        waitPainted({text});
        figures.addTime(name, watch.elapsed());
    };
    for (int page = 0; page < pages; ++page)
        turn("scrollResult", SB_PAGEDOWN);
    for (int page = 0; page < pages / 10; ++page) {
        turn("scrollResultToEnd", SB_BOTTOM);
        turn("scrollResultToEnd", SB_TOP);
    }
}

} // namespace

void measureLongResult(WindowFigures& figures) {
    const bool scrolls = figures.wanted("scrollResult");
    if (!figures.wanted("openResult") && !scrolls) return;
    const gui::Scene scene;
    scene.write("TIOFACK.res", longResult());
    gui::Program program(scene);
    program.passStartUp();
    program.open("TIOFACK.IND");
    for (int i = 0; i < openings; ++i) {
        const Stopwatch watch;
        const gui::Control viewer = openResult(program);
        figures.addTime("openResult/" + std::to_string(lines), watch.elapsed());
        if (i == 0 && scrolls) measurePages(figures, viewer);
        viewer.item(idReturn).click();
        program.waitGone(viewer);
    }
}

} // namespace varno::benchmarks
