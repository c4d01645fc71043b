// A program that ends without being asked to: what was not saved is there at the next start.
#include <gtest/gtest.h>

#include <filesystem>

#include "driver/program.h"
#include "driver/remote.h"
#include "driver/wait.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

namespace fs = std::filesystem;

class Rescues : public ::testing::Test {
  protected:
    Rescues() { start(); }

    // Past the disclaimer. What was left behind is asked about after it.
    void start(bool asked = false) {
        StartOptions options;
        options.localData = local;
        program = std::make_unique<Program>(scene, options);
        program->passStartUp(asked);
    }
    // As the power goes.
    void kill() { program.reset(); }

    std::vector<fs::path> rescueFiles() const {
        std::vector<fs::path> files;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(win32::wide(local + "\\Varno"), none)) {
            if (entry.path().extension() == L".raddning") files.push_back(entry.path());
        }
        return files;
    }
    Bytes rescued() const {
        const auto files = rescueFiles();
        if (files.size() != 1) return {};
        try {
            return readFile(win32::narrow(files.front().wstring()));
        } catch (const GuiError&) {
            return {}; // just being replaced
        }
    }
    void expectRescued(const std::string& part) {
        expectSoon(*program, true, [&] { return rescued().find(part) != Bytes::npos; });
    }
    void expectNoRescue() {
        expectSoon(*program, std::size_t{0}, [&] { return rescueFiles().size(); });
    }
    void typeAndLeave(varno::Control control, const std::string& text) {
        program->typeInto(control, text);
        program->field(Field::rubrik).clickInto();
        expectSoon(*program, program->field(Field::rubrik), [&] { return program->focused(); });
        // The focus is there before the field that it left has done with its number.
        program->main().send(WM_NULL);
    }
    // The question after start-up, answered.
    Message answerOffer(int button) {
        const Message message = program->answer(button);
        expectSoon(*program, true, [&] { return program->main().enabled(); });
        return message;
    }
    void exitWithoutSaving() {
        program->command(idExit);
        program->window(savePromptClass).item(idNoButton).click();
        EXPECT_EQ(program->exitCode(), 0u);
    }

    Scene scene;
    const std::string local = scene.beside("lokalt");
    std::unique_ptr<Program> program;
};

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(Rescues, KilledProgramOffersTheCaseAtTheNextStart) {
    typeAndLeave({Field::spv, 2}, "7,25");
    // A title that no case file can hold.
    program->typeInto({Field::rubrik}, "Hus, 4 plan");
    expectRescued("rubrik=Hus, 4 plan\r\n");
    EXPECT_FALSE(scene.has("NAMNLÖS.IND")) << "nothing of it lies in the work folder";
    kill();

    start(true);
    const Message message = answerOffer(IDYES);
    EXPECT_EQ(message.title, "Räddat fall");
    EXPECT_TRUE(holds(message.text, "NAMNLÖS.IND")) << message.text;
    EXPECT_TRUE(holds(message.text, "Rubrik: \"Hus, 4 plan\"")) << message.text;
    expectSoon(*program, std::string("Hus, 4 plan"), [&] { return program->field(Field::rubrik).text(); });
    expectCaption(*program, "NAMNLÖS.IND");
    EXPECT_EQ(program->field(Field::spv, 1).text(), "5,50");
    EXPECT_EQ(program->field(Field::spv, 2).text(), "7,25");
    // It is a changed case: it can still be saved, and is kept until it is.
    program->command(idExit);
    const Control prompt = program->window(savePromptClass);
    EXPECT_EQ(prompt.item(idQuestion).text(), "Vill Du spara ändringarna i NAMNLÖS.IND ?");
    EXPECT_EQ(rescueFiles().size(), 1u);
    prompt.item(idNoButton).click();
    EXPECT_EQ(program->exitCode(), 0u);
    EXPECT_TRUE(rescueFiles().empty());
}

TEST_F(Rescues, CaseOfAFileIsSavedThereAgain) {
    const std::string other = scene.beside("annan mapp");
    writeFile(other + "\\KONTOR.IND", scene.read("KONTOR.IND"));
    program->open("KONTOR.IND");
    program->command(idOpen);
    const Control dialog = program->window(fileDialogClass);
    dialog.item(idFileName).setText(other);
    dialog.item(idOkButton).click();
    expectSoon(*program, other, [&] { return dialog.item(idPathLabel).text(); });
    program->chooseFile("KONTOR.IND");
    expectSoon(*program, program->field(Field::rubrik), [&] { return program->focused(); });
    program->typeInto({Field::rubrik}, "I den andra mappen");
    expectRescued("rubrik=I den andra mappen\r\n");
    kill();

    start(true);
    EXPECT_TRUE(holds(answerOffer(IDYES).text, "Fil: " + other + "\\KONTOR.IND"));
    expectCaption(*program, "KONTOR.IND");
    program->command(idSave);
    expectSoon(*program, Bytes("I den andra mappen"),
               [&] { return linesOf(readFile(other + "\\KONTOR.IND")).at(1); });
    EXPECT_FALSE(program->shows(messageBoxClass)) << "it is the case's own file";
    EXPECT_EQ(scene.read("KONTOR.IND"), readFile(samplesFolder() + "\\KONTOR.IND"));
    expectNoRescue();
}

TEST_F(Rescues, NoThrowsItAway) {
    program->typeInto({Field::rubrik}, "Bort");
    expectRescued("rubrik=Bort\r\n");
    kill();
    start(true);
    answerOffer(IDNO);
    expectNoRescue();
    EXPECT_EQ(program->field(Field::rubrik).text(), "Nytt bjälklag");
    kill();
    start(false);
}

TEST_F(Rescues, CancelAsksAgainAtTheNextStart) {
    program->typeInto({Field::rubrik}, "Senare");
    expectRescued("rubrik=Senare\r\n");
    kill();
    start(true);
    answerOffer(IDCANCEL);
    EXPECT_EQ(program->field(Field::rubrik).text(), "Nytt bjälklag");
    EXPECT_EQ(rescueFiles().size(), 1u);
    kill();
    start(true);
    answerOffer(IDYES);
    expectSoon(*program, std::string("Senare"), [&] { return program->field(Field::rubrik).text(); });
}

TEST_F(Rescues, SavedOrGivenUpCaseIsNotKept) {
    program->typeInto({Field::rubrik}, "Sparas");
    expectRescued("rubrik=Sparas\r\n");
    program->saveAs("sparad");
    expectNoRescue();

    program->typeInto({Field::rubrik}, "Ges upp");
    expectRescued("rubrik=Ges upp\r\n");
    program->command(idNew);
    program->window(savePromptClass).item(idNoButton).click();
    expectCaption(*program, "NAMNLÖS.IND");
    expectNoRescue();

    program->typeInto({Field::rubrik}, "Ges upp också");
    expectSoon(*program, std::size_t{1}, [&] { return rescueFiles().size(); });
    exitWithoutSaving();
    EXPECT_TRUE(rescueFiles().empty());
}

TEST_F(Rescues, ProgramsSideBySideKeepTheirOwn) {
    program->typeInto({Field::rubrik}, "Det första");
    expectRescued("rubrik=Det första\r\n");
    const auto first = rescueFiles();

    StartOptions options;
    options.localData = local;
    Program second(scene, options);
    second.passStartUp();
    EXPECT_FALSE(second.shows(messageBoxClass)) << "the first one is running";
    second.typeInto({Field::rubrik}, "Det andra");
    expectSoon(second, std::size_t{2}, [&] { return rescueFiles().size(); });
    second.command(idExit);
    second.window(savePromptClass).item(idNoButton).click();
    EXPECT_EQ(second.exitCode(), 0u);
    EXPECT_EQ(rescueFiles(), first);
}

TEST_F(Rescues, FaultWritesAtOnce) {
    typeAndLeave({Field::spv, 1}, "6,5");
    expectRescued("spv=0 6.5 6.5");
    // Within the pause that follows a write.
    typeAndLeave({Field::spv, 1}, "8,75");
    try {
        constexpr DWORD accessViolation = 0xC0000005;
        callIn(program->process(), L"kernel32.dll", "RaiseException", {accessViolation, 0, 0, 0});
    } catch (const GuiError&) {
        // Nobody is left to answer.
    }
    EXPECT_NE(program->exitCode(), 0u);
    EXPECT_TRUE(holds(rescued(), "spv=0 8.75 8.75")) << rescued();
    kill();
    start(true);
    answerOffer(IDYES);
    expectSoon(*program, std::string("8,75"), [&] { return program->field(Field::spv, 1).text(); });
}

} // namespace
} // namespace varno::gui
