// Cases that are opened without the file-name dialog: named on the command line, dropped on the window, chosen from the
// recent ones.
#include <gtest/gtest.h>

#include <memory>

#include "driver/keyboard.h"
#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

class GivenFiles : public ::testing::Test {
  protected:
    void start(const std::string& arguments = {}, bool asked = false) {
        StartOptions options;
        options.arguments = arguments;
        options.localData = local;
        program = std::make_unique<Program>(scene, options);
        program->passStartUp(asked);
    }
    // Where the file-name dialog stands, which is where "Spara" writes.
    std::string dialogFolder() {
        program->command(idOpen);
        const Control dialog = program->window(fileDialogClass);
        const std::string folder = dialog.item(idPathLabel).text();
        dialog.item(idCancelButton).click();
        program->waitGone(dialog);
        return folder;
    }
    std::vector<std::string> recent() {
        keyboard::pressWith({VK_CONTROL, VK_SHIFT}, 'O');
        std::vector<std::string> captions;
        for (const MenuLine& line : program->popupMenu())
            captions.push_back((line.enabled ? "" : "grå: ") + line.caption);
        return captions;
    }

    Scene scene;
    const std::string local = scene.beside("lokalt");
    std::unique_ptr<Program> program;
};

TEST_F(GivenFiles, CaseOnTheCommandLineIsOpenAfterStartUp) {
    const std::string folder = scene.beside("Fall å 東");
    const std::string odd = folder + "\\Hus å ☃.IND";
    writeFile(odd, withLine(scene.read("KONTOR.IND"), 2, "Full"));
    struct Given {
        std::string arguments;
        std::string caption;
        std::string folder;
    };
    for (const Given& given : {Given{"BOSTAD.IND", "BOSTAD.IND", scene.folder()},
                               Given{"..\\prov\\kontor.ind", "KONTOR.IND", scene.folder()},
                               Given{"\"" + odd + "\"", "KONTOR.IND", folder}}) {
        start(given.arguments);
        expectCaption(*program, given.caption);
        EXPECT_EQ(program->focused(), program->field(Field::rubrik));
        EXPECT_EQ(dialogFolder(), given.folder) << given.arguments;
        program->command(idExit);
        EXPECT_EQ(program->exitCode(), 0u) << "nothing is unsaved";
    }
}

TEST_F(GivenFiles, FileThatIsNotThereIsToldAndTheDefaultCaseStays) {
    start("\"finns inte.ind\"", true);
    const Message said = program->answer();
    EXPECT_TRUE(said.text.starts_with("Filen " + scene.path("finns inte.ind") + " finns inte.")) << said.text;
    expectCaption(*program, "NAMNLÖS.IND");
    EXPECT_EQ(dialogFolder(), scene.folder());
}

TEST_F(GivenFiles, FolderThatIsNotThereIsToldOnce) {
    start(scene.path("saknas") + "\\hus.ind", true);
    EXPECT_NE(program->answer().text.find("finns inte"), std::string::npos);
    expectCaption(*program, "NAMNLÖS.IND");
    program->command(idExit);
    EXPECT_EQ(program->exitCode(), 0u);
}

TEST_F(GivenFiles, SeveralAreRefused) {
    start("BOSTAD.IND KONTOR.IND", true);
    EXPECT_EQ(program->answer().text, "Bara ett fall kan vara öppet. Öppna eller släpp en fil i taget !");
    expectCaption(*program, "NAMNLÖS.IND");
}

TEST_F(GivenFiles, DropOpensAsOpenDoes) {
    start();
    program->typeInto({Field::rubrik}, "Ändrad");
    for (const Control& place :
         {program->field(Field::spv, 2), program->main().item(idLoadPicture), program->main()}) {
        program->drop({scene.path("KONTOR.IND")}, place);
        const Control prompt = program->window(savePromptClass);
        EXPECT_EQ(prompt.text(), "Öppna");
        // Nothing can be dropped while a question waits.
        program->drop({scene.path("BOSTAD.IND")}, place);
        prompt.item(idNoButton).click();
        program->waitGone(prompt);
        expectCaption(*program, "KONTOR.IND");
        program->main().send(WM_NULL);
        EXPECT_EQ(program->caption(), "KONTOR.IND");
        EXPECT_FALSE(program->shows(savePromptClass));
        program->typeInto({Field::spv, 1}, "5,1");
    }
    // What was typed and not left belongs to the case that is asked about.
    program->drop({scene.path("BOSTAD.IND")}, program->form());
    program->window(savePromptClass).item(idYesButton).click();
    expectCaption(*program, "BOSTAD.IND");
    EXPECT_TRUE(linesOf(scene.read("KONTOR.IND")).at(5).starts_with("5.100"))
        << linesOf(scene.read("KONTOR.IND")).at(5);
}

TEST_F(GivenFiles, DropOfSomethingElseIsToldAndChangesNothing) {
    start();
    program->open("kontor.ind");
    scene.write("SKADAD.IND", "SKADAD\r\nEn halv fil\r\n3\r\n2\r\n");
    program->drop({scene.path("SKADAD.IND")}, program->form());
    EXPECT_NE(program->answer().text.find("en indatafil"), std::string::npos);
    EXPECT_EQ(program->answerError().text, "Run-time error '62': Input past end of file");
    program->drop({scene.beside("mapp")}, program->form());
    EXPECT_NE(program->answer().text.find("det är en mapp"), std::string::npos);
    program->drop({scene.path("BOSTAD.IND"), scene.path("TIOFACK.IND")}, program->form());
    EXPECT_EQ(program->answer().text, "Bara ett fall kan vara öppet. Öppna eller släpp en fil i taget !");
    EXPECT_EQ(program->caption(), "KONTOR.IND");
    EXPECT_EQ(dialogFolder(), scene.folder());
}

TEST_F(GivenFiles, RecentCasesAreOfferedAtTheOpenButton) {
    start();
    EXPECT_EQ(recent(), std::vector<std::string>{"grå: Inget fall har öppnats"});
    program->keysInPopupMenu({VK_ESCAPE});
    program->open("bostad.ind");
    program->open("kontor.ind");
    program->saveAs("hus & ö");
    program->command(idExit);
    EXPECT_EQ(program->exitCode(), 0u);

    start();
    const std::string folder = scene.folder() + "\\";
    EXPECT_EQ(recent(),
              (std::vector<std::string>{"&1  " + folder + "HUS && Ö.IND", "&2  " + folder + "KONTOR.IND",
                                        "&3  " + folder + "BOSTAD.IND"}))
        << "not in the letters that were typed";
    program->keysInPopupMenu({'2'});
    expectCaption(*program, "KONTOR.IND");

    // With the mouse; a file that is gone is told and not offered again.
    scene.remove("bostad.ind");
    program->rightClickToolbar(idOpen);
    EXPECT_EQ(program->popupMenu().size(), 3u);
    program->keysInPopupMenu({'3'});
    EXPECT_NE(program->answer().text.find("BOSTAD.IND finns inte."), std::string::npos);
    EXPECT_EQ(program->caption(), "KONTOR.IND");
    EXPECT_EQ(recent(),
              (std::vector<std::string>{"&1  " + folder + "KONTOR.IND", "&2  " + folder + "HUS && Ö.IND"}));
    program->keysInPopupMenu({VK_ESCAPE});

    // Beside the button there is no menu.
    program->rightClickToolbar(idSave);
    program->main().send(WM_NULL);
    EXPECT_FALSE(program->shows(popupMenuClass));
}

} // namespace
} // namespace varno::gui
