// What the program shows stands in front of its other windows and has the focus.
#include <gtest/gtest.h>

#include <memory>

#include "driver/program.h"
#include "driver/wait.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

// A work folder with an engine that has a console window.
class ConsoleEngine : public ::testing::Test {
  protected:
    ConsoleEngine() {
        const std::string engine = programsFolder() + "\\tests\\gui\\varno_console_engine.exe";
        if (!CopyFileW(win32::wide(engine).c_str(), win32::wide(scene.path("varnowb.exe")).c_str(), FALSE))
            throw GuiError("there is no " + engine);
        program = std::make_unique<Program>(scene);
        program->passStartUp();
        program->open("bostad.ind");
    }
    void expectInFront(const Control& window,
                       std::source_location place = std::source_location::current()) const {
        expectSoon(
            *program, window, [] { return Control(GetForegroundWindow()); }, place);
        EXPECT_TRUE(program->until([&] {
            return program->focused() == window || IsChild(window.handle(), program->focused().handle());
        }));
    }

    Scene scene;
    std::unique_ptr<Program> program;
};

TEST_F(ConsoleEngine, MessageComesUpInFront) {
    program->command(idRun);
    const Control box = program->window(messageBoxClass);
    EXPECT_EQ(program->message().text, "Resultatfil till BOSTAD.IND saknas !");
    EXPECT_TRUE(scene.has("console.txt")) << "the console was not in front";
    expectInFront(box);
    EXPECT_EQ(GetWindow(box.handle(), GW_OWNER), program->main().handle());
    EXPECT_FALSE(program->main().enabled());
    program->answer();
    expectInFront(program->main());
}

TEST_F(ConsoleEngine, ResultComesUpInFront) {
    scene.write("BOSTAD.res", "resultat\r\n");
    program->command(idRun);
    const Control viewer = program->window(viewerClass);
    EXPECT_TRUE(scene.has("console.txt")) << "the console was not in front";
    expectInFront(viewer);
    EXPECT_EQ(program->focused(), viewer.item(idFileTextBox));
}

} // namespace
} // namespace varno::gui
