// New, Open, Save, Save as and Exit.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

const Bytes damaged = "SKADAD\r\nEn halv fil\r\n3\r\n2\r\n";

class Documents : public ::testing::Test {
  protected:
    Documents() { program.passStartUp(); }

    // Changes the case, so that it has something to lose.
    void change(const std::string& title = "Ändrad") { program.typeInto({Field::rubrik}, title); }

    // Answers the save prompt; it must bear this caption and ask about this case.
    void answerPrompt(const std::string& caption, const std::string& caseName, int button) {
        const Control prompt = program.window(savePromptClass);
        EXPECT_EQ(prompt.text(), caption);
        EXPECT_EQ(prompt.item(idQuestion).text(), "Vill Du spara ändringarna i " + caseName + ".IND ?");
        EXPECT_EQ(prompt.item(idYesButton).text(), "Ja");
        EXPECT_EQ(prompt.item(idNoButton).text(), "Nej");
        EXPECT_EQ(prompt.item(idCancelButton).text(), "Avbryt");
        EXPECT_EQ(prompt.item(idCancelButton).visible(), caption == "Avsluta")
            << "only Exit can be cancelled";
        prompt.item(button).click();
        program.waitGone(prompt);
    }

    std::string title() const { return program.field(Field::rubrik).text(); }

    // What is wrong with the file is told first, then the error that it ended in.
    void expectFileFaults(std::source_location place = std::source_location::current()) {
        const std::string text = program.answer().text;
        EXPECT_NE(text.find("en indatafil"), std::string::npos) << "line " << place.line() << ": " << text;
    }

    // Nothing is unsaved: the program ends without a question.
    void expectCleanExit() {
        program.command(idExit);
        EXPECT_EQ(program.exitCode(), 0u);
    }

    Scene scene;
    Program program{scene};
};

TEST_F(Documents, SaveAsTakesTheNameWithoutItsBlanksInUpperCase) {
    program.saveAs("  kalk ");
    expectCaption(program, "KALK.IND");
    EXPECT_EQ(scene.read("KALK.IND"), withLine(scene.read("varno.def"), 1, "KALK"));
    expectCleanExit();
}

TEST_F(Documents, SaveAsCutsTheNameAtItsFirstPoint) {
    program.saveAs("a.b.c");
    expectCaption(program, "A.IND");
    EXPECT_EQ(linesOf(scene.read("A.IND")).front(), "A");
    program.saveAs("kalk.txt");
    expectCaption(program, "KALK.IND");
    EXPECT_FALSE(scene.has("kalk.txt"));
    EXPECT_TRUE(scene.has("KALK.IND"));
}

TEST_F(Documents, SaveAsWritesSwedishNamesAsTheReaderTakesThem) {
    program.saveAs("åsö");
    expectCaption(program, "ÅSÖ.IND");
    EXPECT_EQ(linesOf(scene.read("ÅSÖ.IND")).front(), "\x8FS\x99");
    program.open("bostad.ind");
    program.open("åsö.ind");
    expectCaption(program, "ÅSÖ.IND");
}

TEST_F(Documents, SampleIsSavedByteForByteAsItWas) {
    for (const std::string sample : {"BOSTAD", "KONTOR", "TIOFACK"}) {
        program.open(sample + ".IND");
        expectCaption(program, sample + ".IND");
        program.saveAs("kopia" + sample.substr(0, 2));
        const Bytes original = scene.read(sample + ".IND");
        EXPECT_EQ(scene.read("kopia" + sample.substr(0, 2) + ".IND"),
                  withLine(original, 1, "KOPIA" + sample.substr(0, 2)));
    }
    expectCleanExit();
}

TEST_F(Documents, SaveWritesOverTheOpenedFile) {
    const Bytes original = scene.read("KONTOR.IND");
    program.open("kontor.ind");
    change("Nytt namn");
    program.command(idSave);
    const Bytes expected = withLine(original, 2, "Nytt namn");
    expectSoon(program, expected, [&] { return scene.read("KONTOR.IND"); });
    EXPECT_FALSE(program.shows(fileDialogClass));
    expectCleanExit();
}

TEST_F(Documents, SaveOfACaseWithoutAFileAsksForItsName) {
    change();
    program.command(idSave);
    const Control dialog = program.window(fileDialogClass);
    EXPECT_EQ(dialog.text(), "Spara som..");
    program.chooseFile("hus2");
    expectCaption(program, "HUS2.IND");
    EXPECT_EQ(linesOf(scene.read("HUS2.IND")).at(1), "\x8Endrad");
    expectCleanExit();
}

TEST_F(Documents, CancelledDialogLeavesTheCaseAsItIs) {
    change();
    for (const int command : {idSaveAs, idSave}) {
        program.command(command);
        const Control dialog = program.window(fileDialogClass);
        dialog.item(idCancelButton).click();
        program.waitGone(dialog);
        EXPECT_EQ(program.caption(), "NAMNLÖS.IND");
        EXPECT_EQ(title(), "Ändrad");
    }
    program.command(idOpen);
    answerPrompt("Öppna", "NAMNLÖS", idNoButton);
    const Control dialog = program.window(fileDialogClass);
    dialog.post(WM_CLOSE);
    program.waitGone(dialog);
    EXPECT_EQ(title(), "Ändrad");
    program.command(idExit);
    answerPrompt("Avsluta", "NAMNLÖS", idNoButton);
    EXPECT_EQ(program.exitCode(), 0u);
}

TEST_F(Documents, NewAfterNoLoadsTheDefaultCase) {
    program.open("tiofack.ind");
    program.typeInto({Field::spv, 10}, "9");
    program.command(idNew);
    answerPrompt("Ny", "TIOFACK", idNoButton);
    expectCaption(program, "NAMNLÖS.IND");
    expectSoon(program, std::string("Nytt bjälklag"), [&] { return title(); });
    expectSoon(program, program.field(Field::rubrik), [&] { return program.focused(); });
    EXPECT_EQ(program.field(Field::rubrik).selection(), std::pair(0, 13));
    EXPECT_FALSE(program.field(Field::spv, 4).visible());
    EXPECT_EQ(scene.read("TIOFACK.IND"), readFile(samplesFolder() + "\\TIOFACK.IND"));
    // It has no file again.
    program.command(idRun);
    EXPECT_EQ(program.answer().text, "Du måste spara Filen först !");
    expectCleanExit();
}

TEST_F(Documents, NewAfterYesOnACaseWithoutAFileFirstAsksForItsName) {
    change();
    program.command(idNew);
    answerPrompt("Ny", "NAMNLÖS", idYesButton);
    EXPECT_EQ(program.window(fileDialogClass).text(), "Spara som..");
    program.chooseFile("sparad");
    expectSoon(program, std::string("Nytt bjälklag"), [&] { return title(); });
    expectCaption(program, "NAMNLÖS.IND");
    EXPECT_EQ(linesOf(scene.read("SPARAD.IND")).at(1), "\x8Endrad");
}

TEST_F(Documents, NewAfterYesOnANamedCaseSavesItAtOnce) {
    program.open("bostad.ind");
    change();
    program.command(idNew);
    answerPrompt("Ny", "BOSTAD", idYesButton);
    expectCaption(program, "NAMNLÖS.IND");
    EXPECT_EQ(linesOf(scene.read("BOSTAD.IND")).at(1), "\x8Endrad");
}

TEST_F(Documents, DamagedFileIsReportedAndTheCaseStays) {
    scene.write("SKADAD.IND", damaged);
    program.open("kontor.ind");
    const std::string before = title();
    program.command(idOpen);
    program.chooseFile("skadad.ind");
    expectFileFaults();
    EXPECT_EQ(program.answerError().text, "Run-time error '62': Input past end of file");
    expectCaption(program, "KONTOR.IND");
    EXPECT_EQ(title(), before);
    EXPECT_TRUE(program.field(Field::spv, 5).visible());

    program.command(idOpen);
    program.chooseFile("finnsinte.ind");
    EXPECT_EQ(program.answerError().text, "Run-time error '52': Bad file name or number");
    expectCaption(program, "KONTOR.IND");

    program.open("bostad.ind");
    expectCaption(program, "BOSTAD.IND");
    expectCleanExit();
}

TEST_F(Documents, CaseThatCannotBeDrawnOpensWithItsMessage) {
    const std::string divisionByZero = "Run-time error '11': Division by zero";
    change("Undantag");
    program.typeInto({Field::spv, 3}, "0,01");
    program.field(Field::rubrik).clickInto();
    EXPECT_EQ(program.answerError().text, divisionByZero);
    program.saveAs("und");
    expectCaption(program, "UND.IND");
    program.command(idNew);
    expectCaption(program, "NAMNLÖS.IND");
    expectSoon(program, std::string("Nytt bjälklag"), [&] { return title(); });

    program.command(idOpen);
    program.chooseFile("und.ind");
    EXPECT_EQ(program.answerError().text, divisionByZero);
    expectCaption(program, "UND.IND");
    EXPECT_EQ(title(), "Undantag");
    EXPECT_EQ(program.field(Field::spv, 3).text().substr(2), "01");
    expectSoon(program, program.field(Field::rubrik), [&] { return program.focused(); });
    EXPECT_EQ(program.field(Field::rubrik).selection(), std::pair(0, 8));

    // A file that is refused on top of it changes nothing.
    scene.write("SKADAD.IND", damaged);
    program.command(idOpen);
    program.chooseFile("skadad.ind");
    expectFileFaults();
    EXPECT_EQ(program.answerError().text, "Run-time error '62': Input past end of file");
    expectCaption(program, "UND.IND");
    EXPECT_EQ(title(), "Undantag");
    const Bytes before = scene.read("UND.IND");
    program.saveAs("und2");
    EXPECT_EQ(scene.read("UND2.IND"), withLine(before, 1, "UND2"));
    expectCleanExit();
}

TEST_F(Documents, FileOutOfTheArraysIsReportedAndTheCaseStays) {
    const Bytes good = scene.read("KONTOR.IND");
    scene.write("REGEL7.IND", withLine(good, 3, "7"));
    scene.write("LAST10.IND", withLine(good, 9, "10"));
    scene.write("STORT.IND", withLine(good, 20, "32768"));
    program.open("bostad.ind");
    const std::vector<std::pair<std::string, std::string>> files{
        {"regel7.ind", "Run-time error '9': Subscript out of range"},
        {"last10.ind", "Run-time error '9': Subscript out of range"},
        {"stort.ind", "Run-time error '6': Overflow"},
    };
    for (const auto& [name, error] : files) {
        program.command(idOpen);
        program.chooseFile(name);
        expectFileFaults();
        EXPECT_EQ(program.answerError().text, error) << name;
        expectCaption(program, "BOSTAD.IND");
        EXPECT_EQ(title(), "Bostäder i Ängsgården hus Å väster om ån");
    }
    program.saveAs("kvar");
    EXPECT_EQ(scene.read("KVAR.IND"), withLine(scene.read("BOSTAD.IND"), 1, "KVAR"));
}

TEST_F(Documents, ExitPromptAnswers) {
    scene.write("~indata~.tmp", "rest");
    program.open("bostad.ind");
    change("Först");
    program.command(idExit);
    answerPrompt("Avsluta", "BOSTAD", idCancelButton);
    EXPECT_TRUE(program.main().enabled());
    EXPECT_EQ(title(), "Först");

    // The close box asks the same.
    program.main().post(WM_CLOSE);
    answerPrompt("Avsluta", "BOSTAD", idYesButton);
    EXPECT_EQ(program.exitCode(), 0u);
    EXPECT_EQ(linesOf(scene.read("BOSTAD.IND")).at(1), "F\x94rst");
    EXPECT_TRUE(scene.has("~indata~.tmp")) << "only the clean exit deletes it";
}

TEST_F(Documents, ExitAfterNoLosesTheChanges) {
    scene.write("~indata~.tmp", "rest");
    const Bytes before = scene.read("BOSTAD.IND");
    program.open("bostad.ind");
    change();
    program.main().post(WM_CLOSE);
    answerPrompt("Avsluta", "BOSTAD", idNoButton);
    EXPECT_EQ(program.exitCode(), 0u);
    EXPECT_EQ(scene.read("BOSTAD.IND"), before);
    EXPECT_TRUE(scene.has("~indata~.tmp"));
}

TEST_F(Documents, ExitAfterYesWithoutANameAsksForIt) {
    change();
    program.command(idExit);
    answerPrompt("Avsluta", "NAMNLÖS", idYesButton);
    program.chooseFile("sista");
    EXPECT_EQ(program.exitCode(), 0u);
    EXPECT_TRUE(scene.has("SISTA.IND"));
}

TEST_F(Documents, CloseBoxOnAnUnchangedCaseDeletesTheTemporaryFile) {
    scene.write("~indata~.tmp", "rest");
    program.main().post(WM_CLOSE);
    EXPECT_EQ(program.exitCode(), 0u);
    EXPECT_FALSE(scene.has("~indata~.tmp"));
}

} // namespace
} // namespace varno::gui
