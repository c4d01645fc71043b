// The program is ended in the middle of a save, and what it left behind is found again.
#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <random>

#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

constexpr const char* question = "Avbruten lagring";

class Killed : public ::testing::Test {
  protected:
    void start(bool asked = false) {
        program.emplace(scene);
        program->passStartUp(asked);
    }
    Bytes changed() const { return withLine(scene.read("BOSTAD.IND"), 2, "Nyare"); }

    Scene scene;
    std::optional<Program> program;
};

TEST_F(Killed, InASaveAtAnyMomentLeavesTheOldCaseOrTheNewOne) {
    const Bytes before = scene.read("KONTOR.IND");
    const Bytes after = withLine(before, 2, "Ny titel");
    std::mt19937 random(std::random_device{}());
    constexpr int kills = 10;
    for (int i = 0; i < kills; ++i) {
        scene.write("KONTOR.IND", before);
        start();
        program->open("kontor.ind");
        program->typeInto({Field::rubrik}, "Ny titel");
        program->command(idSave);
        const auto moment = static_cast<DWORD>(random() % 10);
        Sleep(moment);
        TerminateProcess(program->process(), 99);
        program.reset();
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, "after " + std::to_string(moment) + " ms");
        ASSERT_TRUE(scene.has("KONTOR.IND"));
        const Bytes found = scene.read("KONTOR.IND");
        EXPECT_TRUE(found == before || found == after);
        EXPECT_FALSE(scene.has("KONTOR.IND.~bak"));
        if (scene.has("KONTOR.IND.~tmp")) scene.remove("KONTOR.IND.~tmp");
    }
}

TEST_F(Killed, WhatIsNewerThanItsCaseIsOfferedAtTheNextStart) {
    const Bytes newer = changed();
    scene.write("BOSTAD.IND.~tmp", newer);
    scene.write("KONTOR.IND.~tmp", newer.substr(0, 100));
    start(true);
    const Message said = program->answer(IDYES);
    EXPECT_EQ(said.title, question);
    EXPECT_NE(said.text.find(scene.path("BOSTAD.IND")), std::string::npos) << said.text;
    expectSoon(*program, newer, [&] { return scene.read("BOSTAD.IND"); });
    EXPECT_FALSE(scene.has("BOSTAD.IND.~tmp"));
    EXPECT_FALSE(scene.has("KONTOR.IND.~tmp")) << "half a case is worth nothing";
}

TEST_F(Killed, TheOnlyOneIsOfferedAtOpenAndStaysAfterNo) {
    start();
    const Bytes only = changed();
    scene.write("NY.IND.~tmp", only);
    program->command(idOpen);
    EXPECT_EQ(program->answer(IDNO).title, question);
    const Control dialog = program->window(fileDialogClass);
    dialog.item(idCancelButton).click();
    program->waitGone(dialog);
    EXPECT_EQ(scene.read("NY.IND.~tmp"), only);
    program->command(idOpen);
    EXPECT_EQ(program->answer(IDYES).title, question);
    program->chooseFile("ny.ind");
    expectCaption(*program, "BOSTAD.IND");
    EXPECT_EQ(scene.read("NY.IND"), only);
}

} // namespace
} // namespace varno::gui
