// Engines that fail: the program goes on, and shows what there is.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

class BadEngine : public ::testing::Test {
  protected:
    BadEngine() {
        scene.write("varnowb.exe", readFile(programsFolder() + "\\tests\\gui\\varno_bad_engine.exe"));
        program.passStartUp();
        program.open("bostad.ind");
    }

    void runWith(const std::string& how) const {
        scene.write("motor.txt", how + "\r\n");
        program.command(idRun);
    }
    void expectMissing() const {
        EXPECT_EQ(program.answer(), (Message{"", "Resultatfil till BOSTAD.IND saknas !"}));
        expectSoon(program, true, [&] { return program.main().enabled(); });
    }
    void expectResult(const std::string& text) const {
        const Control viewer = program.window(viewerClass);
        expectSoon(program, text, [&] { return viewer.item(idFileTextBox).text(); });
        viewer.item(idReturn).click();
        program.waitGone(viewer);
    }
    // The case is as it was, on the screen and on the disk, and can go on being edited and saved.
    void expectUnhurt() const {
        EXPECT_EQ(program.caption(), "BOSTAD.IND");
        EXPECT_EQ(scene.read("BOSTAD.IND"), readFile(samplesFolder() + "\\BOSTAD.IND"));
        program.command(idExit);
    }

    Scene scene;
    Program program{scene};
};

TEST_F(BadEngine, ThatCrashesLeavesNoResultAndSaysSo) {
    runWith("kraschar");
    expectMissing();
    runWith("inget");
    expectMissing();
    expectUnhurt();
    EXPECT_EQ(program.exitCode(), 0u);
}

TEST_F(BadEngine, ThatCrashesOverAnOlderResultShowsThatOne) {
    scene.write("BOSTAD.res", "gammalt\r\n");
    runWith("kraschar");
    expectResult("\r\ngammalt");
    expectUnhurt();
    EXPECT_EQ(program.exitCode(), 0u);
}

TEST_F(BadEngine, HalfAResultIsShownAndHalfACurveReported) {
    runWith("halvt");
    expectResult("\r\nResultat\r\nMoment i fält: 1");
    program.command(idMoment);
    const Message said = program.answer();
    EXPECT_NE(said.text.find("momk.dat"), std::string::npos) << said.text;
    EXPECT_TRUE(said.text.ends_with("Run-time error '62': Input past end of file")) << said.text;
    expectUnhurt();
    EXPECT_EQ(program.exitCode(), 0u);
}

TEST_F(BadEngine, AnEmptyResultIsShownEmpty) {
    runWith("tomt");
    expectResult("");
    program.command(idMoment);
    EXPECT_EQ(program.answerError().text, "Run-time error '62': Input past end of file");
    expectUnhurt();
    EXPECT_EQ(program.exitCode(), 0u);
}

} // namespace
} // namespace varno::gui
