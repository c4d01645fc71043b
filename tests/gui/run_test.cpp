// The calculation run and the result viewer.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "result_words.h"
#include "soon.h"

namespace varno::gui {
namespace {

// A work folder whose name holds a blank and Swedish letters, in any test that does not say otherwise.
class Runs : public ::testing::Test {
  protected:
    explicit Runs(const std::string& folder = "Åäö prov") : scene(folder), program(scene) {
        program.passStartUp();
    }

    Control viewer() const { return program.window(viewerClass); }
    std::string shownText() const { return viewer().item(idFileTextBox).text(); }
    void close(const Control& window) const {
        window.item(idReturn).click();
        program.waitGone(window);
    }
    // "Kör...", and what the viewer then shows.
    std::string run() const {
        program.command(idRun);
        const std::string text = shownText();
        close(viewer());
        return text;
    }

    Scene scene;
    Program program;
};

TEST_F(Runs, CaseWithoutAFileIsRefused) {
    program.command(idRun);
    EXPECT_EQ(program.answer(), (Message{"", "Du måste spara Filen först !"}));
    EXPECT_FALSE(scene.has("~indata~.tmp"));
    EXPECT_FALSE(program.diagramEnabled());
}

TEST_F(Runs, ChangedCaseIsRefused) {
    program.open("bostad.ind");
    program.typeInto({Field::spv, 3}, "4");
    program.command(idRun);
    EXPECT_EQ(program.answer().text, "Du måste spara Filen först !");
    EXPECT_FALSE(scene.has("~indata~.tmp"));
    EXPECT_FALSE(program.diagramEnabled());
}

TEST_F(Runs, SavedCaseIsCalculatedAndShown) {
    program.open("kontor.ind");
    program.command(idRun);
    const Control viewer = this->viewer();
    EXPECT_EQ(viewer.text(), "Utdata");
    EXPECT_EQ(viewer.item(idReturn).text(), "Återgå");
    EXPECT_EQ(scene.read("~indata~.tmp"), scene.read("KONTOR.IND"));
    EXPECT_FALSE(scene.read("momk.dat").empty());
    const Bytes result = scene.read("KONTOR.res");
    EXPECT_FALSE(result.empty());
    expectSoon(program, viewerText(result), [&] { return shownText(); });
    const std::string text = shownText();
    EXPECT_TRUE(text.starts_with("\r\n")) << "an empty line comes first";
    EXPECT_NE(text.find("Kontorshus Älvsjö södra flygeln på plan 3"), std::string::npos) << text;
    EXPECT_TRUE(program.diagramEnabled());
    EXPECT_TRUE(program.main().enabled()) << "the viewer is not modal";
    EXPECT_EQ(program.currentDirectory(), scene.folder());

    viewer.item(idReturn).click();
    program.waitGone(viewer);
    program.command(idNew);
    expectCaption(program, "NAMNLÖS.IND");
    EXPECT_FALSE(program.diagramEnabled()) << "New greys the diagram";
}

TEST_F(Runs, OpenGreysTheDiagramAndSoDoesAnEdit) {
    program.open("bostad.ind");
    run();
    EXPECT_TRUE(program.diagramEnabled());
    program.open("kontor.ind");
    EXPECT_FALSE(program.diagramEnabled());
    run();
    EXPECT_TRUE(program.diagramEnabled());
    program.typeInto({Field::spv, 1}, "4");
    EXPECT_FALSE(program.diagramEnabled());
}

TEST_F(Runs, SecondRunMakesTheTemporaryFileAnew) {
    program.open("bostad.ind");
    const std::string first = run();
    scene.write("~indata~.tmp", "gammalt");
    scene.remove("BOSTAD.res");
    EXPECT_EQ(run(), first);
    EXPECT_EQ(scene.read("~indata~.tmp"), scene.read("BOSTAD.IND"));
    program.command(idExit);
    EXPECT_EQ(program.exitCode(), 0u);
    EXPECT_FALSE(scene.has("~indata~.tmp")) << "the clean exit deletes it";
    EXPECT_TRUE(scene.has("BOSTAD.res"));
    EXPECT_TRUE(scene.has("momk.dat"));
}

TEST_F(Runs, WithoutTheEngineTheResultIsMissing) {
    scene.remove("varnowb.exe");
    program.open("bostad.ind");
    program.command(idRun);
    const Message missing{"", "Resultatfil till BOSTAD.IND saknas !"};
    EXPECT_EQ(program.answer(), missing);
    EXPECT_EQ(scene.read("~indata~.tmp"), scene.read("BOSTAD.IND"));
    EXPECT_TRUE(program.diagramEnabled()) << "the run came so far";
    EXPECT_TRUE(program.main().enabled());

    // An older result of the same name is shown.
    scene.write("BOSTAD.res", "gammalt\r\n");
    EXPECT_EQ(run(), "\r\ngammalt");
}

TEST_F(Runs, CaseSavedElsewhereLeavesTheTemporaryFileAway) {
    const std::string elsewhere = scene.beside("annan");
    program.command(idSaveAs);
    program.chooseFile(elsewhere + "\\");
    const Control dialog = program.window(fileDialogClass);
    expectSoon(program, elsewhere, [&] { return dialog.item(idPathLabel).text(); });
    program.chooseFile("borta");
    expectCaption(program, "BORTA.IND");
    EXPECT_TRUE(fileExists(elsewhere + "\\BORTA.IND"));
    program.command(idRun);
    EXPECT_EQ(program.answer().text, "Resultatfil till BORTA.IND saknas !");
    EXPECT_FALSE(scene.has("~indata~.tmp"));
}

TEST_F(Runs, ResultOnScreen) {
    program.open("bostad.ind");
    program.command(idShowResult);
    EXPECT_EQ(program.answer(), (Message{"", "Resultatfil till BOSTAD.IND saknas !"}));

    const std::vector<std::pair<Bytes, std::string>> results{
        {"", ""},
        // As the only line, it has only its first letter repaired.
        {"\x86 \x86 \x86", "\r\nå \u2020 \u2020"},
        {"ett\r\ntv\x86\r\ntre\r\n", "\r\nett\r\ntvå\r\ntre"},
        // One more of each letter a line.
        {"\x84\x84\x84\r\n\r\n", "\r\nää\u201E\r\n"},
        {"\x8F\x8E\x99\x86\x84\x94\r\n", "\r\nÅÄÖåäö"},
        {"\r\n\r\n", "\r\n\r\n"},
    };
    for (const auto& [bytes, text] : results) {
        scene.write("BOSTAD.res", bytes);
        program.command(idShowResult);
        const Control window = viewer();
        expectSoon(program, text, [&] { return window.item(idFileTextBox).text(); });
        EXPECT_EQ(viewerText(bytes), text);
        close(window);
    }
}

class RunsElsewhere : public Runs {
  protected:
    RunsElsewhere() : Runs("kör, här & nu") {}
};

TEST_F(RunsElsewhere, FolderWithACommaAndABlankWorks) {
    program.open("tiofack.ind");
    const std::string text = run();
    EXPECT_EQ(text, viewerText(scene.read("TIOFACK.res")));
}

// The current directory is one folder, the work folder with engine and default case another.
TEST(RunFolders, WorkFolderIsNotTheCurrentDirectory) {
    const Scene scene("Verk för Åäö");
    const std::string current = scene.beside("Hus på ön");
    writeFile(current + "\\varno.ini", scene.read("varno.ini"));
    writeFile(current + "\\varno.ver", scene.read("varno.ver"));
    writeFile(current + "\\BOSTAD.IND", scene.read("BOSTAD.IND"));
    StartOptions options;
    options.currentFolder = current;
    Program program(scene, options);
    program.passStartUp();
    program.open("bostad.ind");
    program.command(idRun);
    program.window(viewerClass);
    EXPECT_TRUE(fileExists(current + "\\BOSTAD.res"));
    EXPECT_TRUE(fileExists(current + "\\momk.dat"));
    EXPECT_TRUE(fileExists(current + "\\~indata~.tmp"));
    EXPECT_FALSE(scene.has("BOSTAD.res"));
    EXPECT_EQ(program.currentDirectory(), current);
}

} // namespace
} // namespace varno::gui
