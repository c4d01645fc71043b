#include "files/file_dialog.h"

#include <gtest/gtest.h>

#include "support/case_files.h"
#include "support/fake_file_dialog.h"
#include "support/fake_folders.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

class FileDialogTest : public ::testing::Test {
  protected:
    void ok(const std::string& text) {
        view.text = text;
        dialog.accepted();
    }
    FakeFolders folders;
    FakeMessageBoxes boxes;
    FakeFileDialog view;
    MemoryFiles files;
    NumberLocale locale;
    FileDialog dialog{folders, files, boxes, view, locale};
};

TEST_F(FileDialogTest, ForSavingItProposesATestNameAndShowsTheRule) {
    EXPECT_FALSE(dialog.ask(savingCase));
    EXPECT_EQ(view.caption, "Spara som..");
    EXPECT_EQ(dialog.pattern(), "*.IND");
    EXPECT_EQ(view.text, "test");
    EXPECT_EQ(view.selected, 1);
    EXPECT_EQ(view.note,
              "OBS! Filnamnet får innehålla max åtta tecken och inga mellanslag, komma, punkt eller å, ä, ö");
}

TEST_F(FileDialogTest, ForChoosingThereIsNoNameAndNoRule) {
    dialog.ask(savingCase);
    dialog.ask(choosingResult);
    EXPECT_EQ(view.caption, "Välj Resultatfil");
    EXPECT_EQ(dialog.pattern(), "*.RES");
    EXPECT_EQ(view.text, "");
    EXPECT_EQ(view.note, "");
    EXPECT_EQ(view.refreshed, 2) << "the files are fresh each time";
    dialog.ask(choosingCase);
    EXPECT_EQ(view.caption, "Välj Indatafil");
    EXPECT_EQ(dialog.pattern(), "*.IND");
}

TEST_F(FileDialogTest, TheNoteTellsOfTheCaseThatIsNamed) {
    files.content["C:\\arbete\\HUS1.IND"] = sampleFile();
    view.whileShown = [&] {
        EXPECT_EQ(view.noteLines, 4);
        const auto noteOf = [&](const std::string& name) {
            view.text = name;
            dialog.nameChanged();
            return view.note;
        };
        EXPECT_TRUE(noteOf("HUS1.IND").starts_with(sampleCase().title)) << view.note;
        for (const char* name : {"HUS", "", " ", "gammalt\\HUS1.IND", "*.IND", "C:"})
            EXPECT_EQ(noteOf(name), "") << name;
        noteOf("HUS1.IND");
        dialog.folderChosen("C:\\arbete\\gammalt");
        EXPECT_EQ(view.note, "") << "there is no such file";
    };
    dialog.ask(choosingCase);
    EXPECT_EQ(view.timesShown, 1);

    dialog.changeDirectory("C:\\arbete");
    for (const FileDialogUse& use : {savingCase, choosingResult}) {
        view.whileShown = [&] {
            const std::string before = view.note;
            view.text = "HUS1.IND";
            dialog.nameChanged();
            EXPECT_EQ(view.note, before) << use.caption;
        };
        dialog.ask(use);
    }
}

TEST_F(FileDialogTest, ANameIsAcceptedAsItStands) {
    view.whileShown = [&] { ok(" kalk "); };
    EXPECT_TRUE(dialog.ask(savingCase));
    EXPECT_EQ(dialog.typedName, " kalk ");
    EXPECT_TRUE(view.closed);
    EXPECT_EQ(dialog.path("KALK.IND"), "C:\\arbete\\KALK.IND");
}

TEST_F(FileDialogTest, AskedAgainItBeginsWithTheTypedNameInTheSameFolder) {
    dialog.folderChosen("C:\\arbete\\gammalt");
    view.whileShown = [&] { ok(" kalk "); };
    dialog.ask(savingCase);
    view.whileShown = [&] { dialog.cancelled(); };
    EXPECT_FALSE(dialog.askAgain(savingCase));
    EXPECT_EQ(view.text, " kalk ");
    EXPECT_EQ(view.selected, 2) << "selected, to be typed over";
    EXPECT_EQ(dialog.directory(), "C:\\arbete\\gammalt");
}

TEST_F(FileDialogTest, AClickedFileIsPutIntoTheTextBox) {
    dialog.fileClicked("HUS2.IND");
    EXPECT_EQ(view.text, "HUS2.IND");
    EXPECT_FALSE(view.closed);
}

TEST_F(FileDialogTest, ADriveIsSwitchedToAndTheDialogStaysOpen) {
    ok("a:");
    EXPECT_FALSE(view.closed);
    EXPECT_EQ(dialog.directory(), "A:\\");
    EXPECT_EQ(dialog.drive(), "A:");
    EXPECT_EQ(view.selected, 1);
    ok("c:");
    EXPECT_EQ(dialog.directory(), "C:\\arbete");
}

TEST_F(FileDialogTest, AFolderIsEnteredAndTheDialogStaysOpen) {
    ok("C:\\arbete\\gammalt");
    EXPECT_EQ(dialog.directory(), "C:\\arbete\\gammalt");
    EXPECT_FALSE(view.closed);
}

TEST_F(FileDialogTest, APatternIsTakenForTheFileList) {
    ok("H*.IND");
    EXPECT_EQ(dialog.pattern(), "H*.IND");
    EXPECT_EQ(view.refreshed, 1);
    dialog.files();
    EXPECT_EQ(folders.asked, "C:\\arbete H*.IND");
    ok("HUS?");
    EXPECT_EQ(dialog.pattern(), "HUS?");
    ok("C:\\arbete\\gammalt\\*.RES");
    EXPECT_EQ(dialog.directory(), "C:\\arbete\\gammalt");
    EXPECT_EQ(dialog.pattern(), "*.RES");
    EXPECT_FALSE(view.closed);
}

TEST_F(FileDialogTest, ADriveOrFolderThatIsNotThereIsAnErrorAndNothingMoves) {
    EXPECT_EQ(errorOf([&] { ok("q:"); }), errDeviceUnavailable);
    EXPECT_EQ(errorOf([&] { ok("C:\\finns inte"); }), errPathNotFound);
    EXPECT_EQ(errorOf([&] { dialog.driveChosen("Q:"); }), errDeviceUnavailable);
    EXPECT_EQ(dialog.directory(), "C:\\arbete");
    EXPECT_FALSE(view.closed);
    EXPECT_EQ(view.selected, 2) << "the text is there to be mended";
}

TEST_F(FileDialogTest, BlanksAreNoName) {
    ok("   ");
    EXPECT_FALSE(view.closed);
    EXPECT_EQ(boxes.shown.size(), 1u);
}

TEST_F(FileDialogTest, CancelIsNoAnswerWhateverTheLastOneWas) {
    view.whileShown = [&] { ok("hus1"); };
    EXPECT_TRUE(dialog.ask(choosingCase));
    view.whileShown = [&] { dialog.cancelled(); };
    EXPECT_FALSE(dialog.ask(choosingCase));
    EXPECT_TRUE(view.closed);
}

TEST_F(FileDialogTest, TheListsStayWhereTheyWereLeft) {
    dialog.folderChosen("C:\\arbete\\gammalt");
    dialog.ask(choosingCase);
    EXPECT_EQ(dialog.directory(), "C:\\arbete\\gammalt");
    dialog.driveChosen("A:");
    EXPECT_EQ(dialog.path("X"), "A:\\\\X");
}

TEST_F(FileDialogTest, TheDirectoryListLeadsFromTheRootToTheFolderAndItsSubfolders) {
    const auto rows = dialog.folderRows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].name, "C:\\");
    EXPECT_EQ(rows[0].path, "C:\\");
    EXPECT_EQ(rows[1].name, "arbete");
    EXPECT_EQ(rows[1].path, "C:\\arbete");
    EXPECT_TRUE(rows[1].open);
    EXPECT_EQ(rows[2].name, "gammalt");
    EXPECT_EQ(rows[2].path, "C:\\arbete\\gammalt");
    EXPECT_EQ(rows[2].depth, 2);
    EXPECT_FALSE(rows[2].open);
}

TEST_F(FileDialogTest, ARootIsOneRow) {
    dialog.changeDrive("A:");
    const auto rows = dialog.folderRows();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].path, "A:\\");
    EXPECT_EQ(dialog.pathOf("X.IND"), "A:\\X.IND");
}

} // namespace
} // namespace varno::testing
