// The file-name dialog that Open and Save as share.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

class FileDialogs : public ::testing::Test {
  protected:
    FileDialogs() {
        scene.makeFolder("Bygge å");
        scene.write("Bygge å\\HUS9.IND", withLine(scene.read("BOSTAD.IND"), 1, "HUS9"));
        scene.write("gammal.res", "");
        program.passStartUp();
    }

    Control opened(int command) {
        program.command(command);
        return program.window(fileDialogClass);
    }
    // "OK" with a text that moves the lists: the dialog stays, the text is selected again.
    void move(const Control& dialog, const std::string& text) {
        dialog.item(idFileName).setText(text);
        dialog.item(idOkButton).click();
        const int length = static_cast<int>(utf16FromUtf8(text).size());
        expectSoon(program, std::pair(0, length), [&] { return dialog.item(idFileName).selection(); });
        EXPECT_TRUE(dialog.visible()) << text;
    }
    std::string path(const Control& dialog) const { return dialog.item(idPathLabel).text(); }
    std::vector<std::string> files(const Control& dialog) const { return dialog.item(idFileList).rows(); }
    void cancel(const Control& dialog) {
        dialog.item(idCancelButton).click();
        program.waitGone(dialog);
    }

    Scene scene;
    Program program{scene};
    const std::vector<std::string> cases{"BOSTAD.IND", "KONTOR.IND", "TIOFACK.IND"};
};

TEST_F(FileDialogs, ShowsTheCasesOfTheCurrentDirectory) {
    const Control dialog = opened(idOpen);
    EXPECT_EQ(dialog.text(), "Välj Indatafil");
    EXPECT_EQ(dialog.item(idFileNameLabel).text(), "FILNAMN:");
    EXPECT_EQ(dialog.item(idOkButton).text(), "OK");
    EXPECT_EQ(dialog.item(idCancelButton).text(), "Avbryt");
    EXPECT_EQ(path(dialog), scene.folder());
    EXPECT_EQ(files(dialog), cases);
    EXPECT_EQ(dialog.item(idDriveList).selectedText(), scene.folder().substr(0, 2));
    EXPECT_EQ(dialog.item(idFileName).text(), "");
    EXPECT_EQ(dialog.item(idNote).text(), "");
    EXPECT_FALSE(program.main().enabled());
    EXPECT_EQ(program.focused(), dialog.item(idFileName));
}

TEST_F(FileDialogs, TellsOfTheChosenCaseBeforeItIsOpened) {
    scene.write("RECEPT.IND", "3 ägg\r\n");
    const Control dialog = opened(idOpen);
    const Control note = dialog.item(idNote);
    const auto expectNote = [&](const std::string& begin) {
        expectSoon(program, begin, [&] { return note.text().substr(0, begin.size()); });
    };
    dialog.item(idFileList).choose("BOSTAD.IND");
    expectNote("Bostäder i Ängsgården hus Å väster om ån\r\n3 fack: ");
    EXPECT_NE(note.text().find("\r\nSvenska byggregler (BKR), ändrad 20"), std::string::npos) << note.text();
    dialog.item(idFileList).choose("RECEPT.IND");
    expectNote("Filen är inte som en indatafil ska vara.");
    // The longest has room in its label.
    dialog.item(idFileName).setText("tiofack.ind");
    expectNote("Tio");
    RECT label{};
    RECT client{};
    GetWindowRect(note.handle(), &label);
    GetClientRect(dialog.handle(), &client);
    MapWindowPoints(nullptr, dialog.handle(), reinterpret_cast<POINT*>(&label), 2);
    EXPECT_LE(label.bottom, client.bottom);
    EXPECT_FALSE(program.shows(messageBoxClass));
    dialog.item(idFileName).setText("finnsinte.ind");
    expectSoon(program, std::string(), [&] { return note.text(); });
    cancel(dialog);
}

TEST_F(FileDialogs, ForSavingProposesANameAndSaysTheRule) {
    const Control dialog = opened(idSaveAs);
    EXPECT_EQ(dialog.text(), "Spara som..");
    const Control name = dialog.item(idFileName);
    expectSoon(program, name, [&] { return program.focused(); });
    EXPECT_EQ(name.text(), "test");
    EXPECT_EQ(name.selection(), std::pair(0, 4));
    EXPECT_EQ(path(dialog), scene.folder());
    EXPECT_EQ(dialog.item(idNote).text(),
              "OBS! Filnamnet får innehålla max åtta tecken och inga mellanslag, komma, punkt eller å, ä, ö");
    cancel(dialog);

    // The lists are fresh each time.
    scene.write("NYTT.IND", "");
    const auto rows = files(opened(idSaveAs));
    EXPECT_EQ(rows, (std::vector<std::string>{"BOSTAD.IND", "KONTOR.IND", "NYTT.IND", "TIOFACK.IND"}));
}

TEST_F(FileDialogs, DriveKeepsTheDialogOpen) {
    const Control dialog = opened(idOpen);
    const std::string drive = scene.folder().substr(0, 2);
    move(dialog, "Bygge å\\");
    EXPECT_EQ(path(dialog), scene.path("Bygge å"));
    // The drive's own current directory is that of the program.
    move(dialog, drive == "C:" ? "c:" : drive);
    EXPECT_EQ(path(dialog), scene.folder());
    EXPECT_EQ(dialog.item(idDriveList).selectedText(), drive);
    EXPECT_EQ(files(dialog), cases);
}

TEST_F(FileDialogs, DriveThatIsNotThereIsReported) {
    const Control dialog = opened(idOpen);
    dialog.item(idFileName).setText("1:");
    dialog.item(idOkButton).click();
    EXPECT_EQ(program.answerError().text, "Run-time error '68': Device unavailable");
    EXPECT_TRUE(dialog.visible());
    EXPECT_EQ(path(dialog), scene.folder());
    dialog.item(idFileName).setText("finnsinte\\");
    dialog.item(idOkButton).click();
    EXPECT_EQ(program.answerError().text, "Run-time error '76': Path not found");
    EXPECT_EQ(path(dialog), scene.folder());
    cancel(dialog);
    EXPECT_EQ(program.caption(), "NAMNLÖS.IND");
}

TEST_F(FileDialogs, PatternChangesTheFileList) {
    const Control dialog = opened(idOpen);
    move(dialog, "*.res");
    EXPECT_EQ(files(dialog), std::vector<std::string>{"gammal.res"});
    move(dialog, "?O*.ind");
    EXPECT_EQ(files(dialog), (std::vector<std::string>{"BOSTAD.IND", "KONTOR.IND"}));
    cancel(dialog);
    EXPECT_EQ(files(opened(idOpen)), cases) << "the next Open asks for cases again";
}

TEST_F(FileDialogs, FolderIsKeptForTheNextSaveButIsNeverMadeCurrent) {
    const Control dialog = opened(idOpen);
    move(dialog, scene.path("Bygge å") + "\\");
    EXPECT_EQ(files(dialog), std::vector<std::string>{"HUS9.IND"});
    dialog.item(idFileList).choose("HUS9.IND");
    expectSoon(program, std::string("HUS9.IND"), [&] { return dialog.item(idFileName).text(); });
    dialog.item(idOkButton).click();
    expectCaption(program, "HUS9.IND");
    EXPECT_EQ(program.currentDirectory(), scene.folder());

    program.saveAs("hus10");
    expectCaption(program, "HUS10.IND");
    EXPECT_TRUE(scene.has("Bygge å\\HUS10.IND"));
    EXPECT_FALSE(scene.has("HUS10.IND"));
    EXPECT_EQ(program.currentDirectory(), scene.folder());
}

TEST_F(FileDialogs, DoubleClickOpensFoldersAndFiles) {
    const Control dialog = opened(idOpen);
    const auto folders = dialog.item(idDirectoryList).rows();
    for (std::size_t i = 0; i < folders.size(); ++i) {
        if (!folders[i].ends_with("Bygge å")) continue;
        dialog.item(idDirectoryList).doubleClick(folders[i]);
    }
    expectSoon(program, scene.path("Bygge å"), [&] { return path(dialog); });
    dialog.item(idFileList).doubleClick("HUS9.IND");
    expectCaption(program, "HUS9.IND");
    EXPECT_FALSE(program.shows(fileDialogClass));
}

TEST_F(FileDialogs, DriveListSwitchesTheDrive) {
    const Control dialog = opened(idOpen);
    const Control drives = dialog.item(idDriveList);
    move(dialog, "Bygge å\\");
    drives.choose(scene.folder().substr(0, 2));
    expectSoon(program, scene.folder(), [&] { return path(dialog); });
}

TEST_F(FileDialogs, ReplacingAFileIsAskedFirst) {
    const Bytes before = scene.read("BOSTAD.IND");
    const Message question{"Spara som..", scene.path("BOSTAD.IND") + " finns redan. Vill Du ersätta filen ?"};
    program.command(idSaveAs);
    program.chooseFile("bostad");
    EXPECT_EQ(program.answer(IDNO), question);
    const Control dialog = program.window(fileDialogClass);
    EXPECT_EQ(dialog.item(idFileName).text(), "bostad");
    expectSoon(program, std::pair(0, 6), [&] { return dialog.item(idFileName).selection(); });
    EXPECT_EQ(scene.read("BOSTAD.IND"), before);
    EXPECT_EQ(program.caption(), "NAMNLÖS.IND");

    dialog.item(idOkButton).click();
    EXPECT_EQ(program.answer(IDYES), question);
    expectCaption(program, "BOSTAD.IND");
    EXPECT_EQ(scene.read("BOSTAD.IND"), withLine(scene.read("varno.def"), 1, "BOSTAD"));
}

TEST_F(FileDialogs, EnterReplacesNothingAndTheDialogIsBackInItsFolder) {
    const Bytes before = scene.read("Bygge å\\HUS9.IND");
    const Control dialog = opened(idSaveAs);
    move(dialog, "Bygge å\\");
    program.chooseFile("hus9");
    const Control question = program.window(messageBoxClass);
    expectSoon(program, question.item(IDNO), [&] { return program.focused(); });
    question.item(IDNO).key(VK_RETURN);
    program.waitGone(question);
    expectSoon(program, true, [&] { return program.shows(fileDialogClass); });
    EXPECT_EQ(path(dialog), scene.path("Bygge å"));
    EXPECT_EQ(dialog.item(idFileName).text(), "hus9");
    EXPECT_EQ(scene.read("Bygge å\\HUS9.IND"), before);
    program.chooseFile("hus10");
    expectCaption(program, "HUS10.IND");
    EXPECT_TRUE(scene.has("Bygge å\\HUS10.IND"));
}

TEST_F(FileDialogs, EmptyNameIsRefused) {
    const Control dialog = opened(idSaveAs);
    dialog.item(idFileName).setText(" ");
    dialog.item(idOkButton).click();
    EXPECT_EQ(program.answer().text, "Skriv ett filnamn först !");
    EXPECT_TRUE(dialog.visible());
    dialog.item(idFileName).key(VK_ESCAPE);
    program.waitGone(dialog);
    EXPECT_EQ(program.caption(), "NAMNLÖS.IND");
}

TEST_F(FileDialogs, EnterAcceptsTheName) {
    const Control dialog = opened(idOpen);
    dialog.item(idFileName).type("kontor.ind");
    dialog.item(idFileName).key(VK_RETURN);
    expectCaption(program, "KONTOR.IND");
}

} // namespace
} // namespace varno::gui
