#include <windows.h>

#include "controls/control_ids.h"
#include "driver/program.h"
#include "driver/scene.h"
#include "painting.h"
#include "results/result_reader.h"
#include "win32/strings.h"
#include "win32/unique.h"
#include "window_bench.h"

namespace varno::benchmarks {

namespace {

constexpr int lines = 100'000;
constexpr int openings = 3;
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

// What Windows' own text box takes for the same text, shown in a window with nothing else: the viewer holds one.
void measureBareBox(WindowFigures& figures, const Bytes& result) {
    const std::wstring text = win32::wide(decodeWindows1252(VARNO1::fromOemLetters(result)));
    const HWND box = CreateWindowExW(0, L"EDIT", L"",
                                     WS_OVERLAPPEDWINDOW | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE |
                                         ES_READONLY | ES_AUTOVSCROLL | ES_AUTOHSCROLL,
                                     0, 0, 760, 600, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(box, EM_SETLIMITTEXT, 0, 0);
    const int height = -MulDiv(ResultReader::normalPoints, USER_DEFAULT_SCREEN_DPI, 72);
    const win32::UniqueFont font(CreateFontW(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0,
                                             FIXED_PITCH | FF_MODERN, L"Courier New"));
    SendMessageW(box, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
    const Stopwatch watch;
    SetWindowTextW(box, text.c_str());
    ShowWindow(box, SW_SHOW);
    UpdateWindow(box);
    figures.addTime("bareBox/" + std::to_string(lines), watch.elapsed());
    DestroyWindow(box);
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
    const Bytes result = longResult();
    scene.write("TIOFACK.res", result);
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
        measureBareBox(figures, result);
    }
}

} // namespace varno::benchmarks
