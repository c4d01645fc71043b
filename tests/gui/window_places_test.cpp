// Where the user left the windows is where they come back; another resolution lays out every window anew.
#include <gtest/gtest.h>

#include <memory>
#include <tuple>

#include "driver/program.h"
#include "driver/remote.h"
#include "soon.h"

namespace varno::gui {
namespace {

constexpr const char* diagramClass = "VarnoMomkurva";
constexpr const char* lineLoadClass = "VarnoLineLoads";

class WindowPlaces : public ::testing::Test {
  protected:
    void start() {
        StartOptions options;
        options.localData = local;
        program = std::make_unique<Program>(scene, options);
        program->passStartUp();
    }
    void end() {
        program->command(idExit);
        EXPECT_EQ(program->exitCode(), 0u);
    }
    Control opened(int command, const char* windowClass) {
        program->command(command);
        return program->window(windowClass);
    }
    static RECT boxOf(const Control& window) {
        RECT box{};
        GetWindowRect(window.handle(), &box);
        return box;
    }
    static void put(const Control& window, int x, int y, int width, int height) {
        SetWindowPos(window.handle(), nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    void expectBox(const Control& window, int x, int y, int width, int height,
                   std::source_location place = std::source_location::current()) {
        const RECT expected{x, y, x + width, y + height};
        const auto stands = [&] {
            const RECT box = boxOf(window);
            return EqualRect(&box, &expected) != FALSE;
        };
        program->until(stands);
        const RECT box = boxOf(window);
        EXPECT_TRUE(stands()) << "line " << place.line() << ": " << box.left << ", " << box.top << ", "
                              << box.right - box.left << " x " << box.bottom - box.top;
    }

    Scene scene;
    const std::string local = scene.beside("lokalt");
    std::unique_ptr<Program> program;
};

TEST_F(WindowPlaces, WindowsComeBackWhereTheyWereLeft) {
    start();
    program->open("kontor.ind");
    program->calculate();
    Control viewer = opened(idShowResult, viewerClass);
    Control diagram = opened(idMoment, diagramClass);
    Control loads = opened(idLineLoads, lineLoadClass);
    const RECT loadsBox = boxOf(loads);
    put(program->main(), 30, 20, 1000, 720);
    put(viewer, 50, 60, 600, 400);
    put(diagram, 200, 100, 800, 500);
    put(loads, 300, 250, loadsBox.right - loadsBox.left, loadsBox.bottom - loadsBox.top);
    expectBox(diagram, 200, 100, 800, 500);
    end();

    start();
    expectBox(program->main(), 30, 20, 1000, 720);
    program->open("kontor.ind");
    program->calculate();
    expectBox(opened(idShowResult, viewerClass), 50, 60, 600, 400);
    expectBox(opened(idMoment, diagramClass), 200, 100, 800, 500);
    loads = opened(idLineLoads, lineLoadClass);
    expectBox(loads, 300, 250, loadsBox.right - loadsBox.left, loadsBox.bottom - loadsBox.top);
    // A window that was not shown keeps the place it had.
    end();
    start();
    end();
    start();
    expectBox(program->main(), 30, 20, 1000, 720);
    expectBox(opened(idLineLoads, lineLoadClass), 300, 250, loadsBox.right - loadsBox.left,
              loadsBox.bottom - loadsBox.top);
}

TEST_F(WindowPlaces, AProgramThatWasKilledComesBackWhereItWas) {
    const std::string file = local + "\\Varno\\fonster.txt";
    start();
    const Control loads = opened(idLineLoads, lineLoadClass);
    const RECT loadsBox = boxOf(loads);
    // A window is known where it was put of itself before anybody can move it: when the status line is written.
    expectSoon(*program, std::string("Nytt fall"),
               [&] { return program->main().item(idStatusState).text(); });
    put(program->main(), 30, 20, 1000, 720);
    put(loads, 300, 250, loadsBox.right - loadsBox.left, loadsBox.bottom - loadsBox.top);
    expectSoon(*program, true, [&] {
        return fileExists(file) && readFile(file).find("VarnoMain 30 20 1000 720") != Bytes::npos &&
               readFile(file).find("VarnoLineLoads 300 250") != Bytes::npos;
    });
    program.reset();
    start();
    expectBox(program->main(), 30, 20, 1000, 720);
    expectBox(opened(idLineLoads, lineLoadClass), 300, 250, loadsBox.right - loadsBox.left,
              loadsBox.bottom - loadsBox.top);
}

TEST_F(WindowPlaces, NoWindowComesBackOffTheScreen) {
    scene.beside("lokalt\\Varno");
    writeFile(local + "\\Varno\\fonster.txt",
              "VarnoMain -5000 -5000 1000 720 96 0\r\nVarnoForm6 1100 700 600 400 96 0\r\n");
    start();
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const auto expectInside = [&](const Control& window) {
        const RECT box = boxOf(window);
        RECT shown{};
        EXPECT_TRUE(IntersectRect(&shown, &box, &work) && EqualRect(&shown, &box))
            << box.left << ", " << box.top << ", " << box.right << ", " << box.bottom;
    };
    expectInside(program->main());
    program->open("kontor.ind");
    program->calculate();
    const Control viewer = opened(idShowResult, viewerClass);
    expectInside(viewer);
    EXPECT_EQ(boxOf(viewer).right - boxOf(viewer).left, 600);
}

TEST_F(WindowPlaces, AMaximizedMainWindowIsMaximizedAgain) {
    start();
    const RECT before = boxOf(program->main());
    program->main().post(WM_SYSCOMMAND, SC_MAXIMIZE);
    expectSoon(*program, true, [&] { return IsZoomed(program->main().handle()) != FALSE; });
    end();
    start();
    expectSoon(*program, true, [&] { return IsZoomed(program->main().handle()) != FALSE; });
    program->main().post(WM_SYSCOMMAND, SC_RESTORE);
    expectBox(program->main(), before.left, before.top, before.right - before.left,
              before.bottom - before.top);
}

// As Windows tells a window that was dragged to a screen of another resolution.
TEST_F(WindowPlaces, EveryWindowFollowsTheResolutionOfItsScreen) {
    start();
    program->open("kontor.ind");
    program->calculate();
    const auto letterHeight = [&](const Control& control) { return program->fontOf(control).lfHeight; };
    const auto expectGrown = [&](const Control& window, const Control& part) {
        const LONG before = letterHeight(part);
        const RECT box = boxOf(window);
        const RECT larger{box.left, box.top, box.left + (box.right - box.left) * 3 / 2,
                          box.top + (box.bottom - box.top) * 3 / 2};
        RemoteMemory suggested(program->process(), sizeof larger);
        suggested.write(&larger, sizeof larger);
        window.send(WM_DPICHANGED, MAKEWPARAM(144, 144), static_cast<LPARAM>(suggested.address()));
        expectSoon(*program, MulDiv(before, 3, 2), [&] { return static_cast<int>(letterHeight(part)); });
        const RECT after = boxOf(window);
        EXPECT_GT(after.right - after.left, (box.right - box.left) * 5 / 4) << window.text();
    };
    const Control viewer = opened(idShowResult, viewerClass);
    expectGrown(viewer, viewer.item(idFileTextBox));
    const Control diagram = opened(idMoment, diagramClass);
    expectGrown(diagram, diagram.item(idPlot));
    for (const auto& [command, name, part] : {std::tuple{idLineLoads, lineLoadClass, int{idLineLoadField}},
                                              {idFreeLineLoads, "VarnoFreeLineLoads", idLineLoadField},
                                              {idImportant, disclaimerClass, idOkButton}}) {
        const Control window = opened(command, name);
        expectGrown(window, window.item(part));
    }
    expectGrown(program->main(), program->field(Field::rubrik));
    // Those that are waited for.
    for (const auto& [command, name, part] : {std::tuple{idOpen, fileDialogClass, int{idFileName}},
                                              {idDeleteResults, "VarnoDelFile", idFileList}}) {
        const Control window = opened(command, name);
        expectGrown(window, window.item(part));
        window.post(WM_CLOSE);
        program->waitGone(window);
    }
}

} // namespace
} // namespace varno::gui
