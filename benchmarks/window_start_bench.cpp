#include <windows.h>

#include "controls/control_ids.h"
#include "driver/process.h"
#include "driver/program.h"
#include "driver/scene.h"
#include "driver/wait.h"
#include "painting.h"
#include "win32/strings.h"
#include "win32/unique.h"
#include "window_bench.h"

namespace varno::benchmarks {

namespace {

constexpr int starts = 21;
constexpr int rests = 3;
constexpr const char* emptyClass = "VarnoEmptyFrame";

std::string emptyProgram() {
    return gui::programsFolder() + "\\benchmarks\\varno_empty_window.exe";
}

// A program from its start to its end, however this ends.
class Started {
  public:
    Started(const std::string& program, const std::string& folder) {
        const std::wstring path = win32::wide(program);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION started{};
        if (!CreateProcessW(path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                            win32::wide(folder).c_str(), &start, &started))
            throw gui::GuiError(program + " cannot be started");
        CloseHandle(started.hThread);
        process_.reset(started.hProcess);
    }
    ~Started() {
        TerminateProcess(process_.get(), 99);
        WaitForSingleObject(process_.get(), gui::patience);
    }
    Started(const Started&) = delete;
    Started& operator=(const Started&) = delete;

    /// Waits until a window of a class is on the screen with all that is in it. Looked for every millisecond: whoever looks
    /// without a pause keeps the one that is to come from coming.
    void waitShown(const std::string& className) const {
        const std::wstring name = win32::wide(className);
        const Stopwatch watch;
        gui::Control window;
        while (!window || !window.visible() || unpainted(treeOf(window))) {
            if (watch.elapsed() > gui::patience) throw gui::GuiError("there is no " + className);
            if (WaitForSingleObject(process_.get(), 1) != WAIT_TIMEOUT) throw gui::GuiError("it has ended");
            window = gui::Control(FindWindowW(name.c_str(), nullptr));
        }
    }
    gui::Control window(const std::string& className) const {
        waitShown(className);
        return gui::Control(FindWindowW(win32::wide(className).c_str(), nullptr));
    }
    void waitIdle() const { WaitForInputIdle(process_.get(), gui::patience); }
    HANDLE process() const { return process_.get(); }

  private:
    win32::UniqueHandle process_;
};

void measureOne(WindowFigures& figures, const std::string& name, const std::string& program,
                const std::string& className, const std::string& folder, bool counts) {
    const Stopwatch watch;
    const Started started(program, folder);
    started.waitShown(className);
    const double shown = watch.elapsed();
    started.waitIdle();
    if (!counts) return;
    figures.addTime("start" + name, shown);
    figures.addTime("startToInput" + name, watch.elapsed());
}

void measureStarts(WindowFigures& figures, const gui::Scene& scene) {
    // The first of each finds nothing in the machine's memory.
    for (int i = -1; i < starts; ++i) {
        measureOne(figures, "Empty", emptyProgram(), emptyClass, scene.folder(), i >= 0);
        measureOne(figures, "Varno", gui::programsFolder() + "\\varno.exe", gui::mainClass, scene.folder(),
                   i >= 0);
    }
}

void measureMemory(WindowFigures& figures, const gui::Scene& scene) {
    for (int i = 0; i < rests; ++i) {
        const Started empty(emptyProgram(), scene.folder());
        empty.waitShown(emptyClass);
        empty.waitIdle();
        figures.addBytes("memoryEmpty", gui::ownMemory(empty.process()));

        // Not driven as the tests drive it, which leaves a thread of their own in the program.
        const Started varno(gui::programsFolder() + "\\varno.exe", scene.folder());
        varno.window(gui::disclaimerClass).item(idOkButton).click();
        waitAwake(varno.window(gui::mainClass), [&] { return !varno.window(gui::mainClass).text().empty(); });
        waitPainted(treeOf(varno.window(gui::mainClass)));
        varno.waitIdle();
        figures.addBytes("memoryVarno", gui::ownMemory(varno.process()));
    }
}

} // namespace

void measureStart(WindowFigures& figures) {
    const gui::Scene scene;
    if (figures.wanted("startVarno")) measureStarts(figures, scene);
    if (figures.wanted("memoryVarno")) measureMemory(figures, scene);
}

} // namespace varno::benchmarks
