// Whose file a save replaces, what is told about a file, and what a rescue keeps of the document.
#include <gtest/gtest.h>

#include "shell/shell_fixture.h"

namespace varno::testing {
namespace {

constexpr const char* here = "C:\\arbete\\";
constexpr const char* elsewhere = "C:\\arbete\\gammalt\\";

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

class DocumentData : public ::testing::Test, public ShellFixture {
  protected:
    DocumentData() {
        put(here, "HUS1");
        document.newCase(workFolder);
        prompts.clear();
    }
    void put(const std::string& folder, const std::string& name) {
        files.content[folder + name + ".IND"] = caseFile(name, "Ett hus", 6);
    }
    void open(const std::string& fileName) {
        typed = fileName;
        document.open();
        boxes.shown.clear();
    }
    void save(MessageAnswer answer = MessageAnswer::no) {
        boxes.shown.clear();
        boxes.answers = {answer};
        document.save();
    }
    std::string question(const std::string& path) { return path + " finns redan. Vill Du ersätta filen ?"; }
};

TEST_F(DocumentData, FileThatTheCaseWasReadFromIsSavedUnasked) {
    open("HUS1.IND");
    edit(7);
    save();
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_FALSE(state.dataChanged);
}

TEST_F(DocumentData, FileThatTheFirstLineNamesIsReplacedAfterAQuestion) {
    files.content[std::string(here) + "KOPIA.IND"] = caseFile("HUS1", "En kopia", 6);
    const Bytes original = files.content[std::string(here) + "HUS1.IND"];
    open("KOPIA.IND");
    edit(7);
    save(MessageAnswer::no);
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, question(std::string(here) + "HUS1.IND"));
    EXPECT_EQ(boxes.shown[0].title, "Spara");
    EXPECT_EQ(files.content[std::string(here) + "HUS1.IND"], original);
    EXPECT_TRUE(state.dataChanged);

    save(MessageAnswer::yes);
    EXPECT_NE(files.content[std::string(here) + "HUS1.IND"], original);
    edit(8);
    save();
    EXPECT_TRUE(boxes.shown.empty()) << "the file that it was last saved to";
}

TEST_F(DocumentData, FileOfAnotherFolderIsReplacedAfterAQuestion) {
    put(elsewhere, "HUS1");
    open("HUS1.IND");
    edit(7);
    dialog.changeDirectory("C:\\arbete\\gammalt");
    save(MessageAnswer::no);
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, question(std::string(elsewhere) + "HUS1.IND"));
    EXPECT_TRUE(state.dataChanged);
    dialog.changeDirectory("C:\\arbete");
    save();
    EXPECT_TRUE(boxes.shown.empty()) << "the file that it was read from";
}

TEST_F(DocumentData, NewFileNeedsNoQuestion) {
    open("HUS1.IND");
    edit(7);
    dialog.changeDirectory("C:\\arbete\\gammalt");
    save();
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_TRUE(files.content.contains(std::string(elsewhere) + "HUS1.IND"));
}

TEST_F(DocumentData, SaveAsAsksUnlessItIsTheCasesOwnFile) {
    put(elsewhere, "HUS1");
    open("HUS1.IND");
    typed = "hus1";
    document.saveAs();
    EXPECT_TRUE(boxes.shown.empty());
    // The same name in another folder is another file.
    dialog.changeDirectory("C:\\arbete\\gammalt");
    boxes.answers = {MessageAnswer::no};
    boxes.whileShown = [&] { typed.clear(); };
    document.saveAs();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, question(std::string(elsewhere) + "HUS1.IND"));
}

TEST_F(DocumentData, DefaultCaseOwnsNoFile) {
    open("HUS1.IND");
    document.newCase(workFolder);
    typed = "hus1";
    boxes.answers = {MessageAnswer::no};
    boxes.whileShown = [&] { typed.clear(); };
    document.saveAs();
    ASSERT_EQ(boxes.shown.size(), 1u) << "what was open before belongs to no new case";
}

TEST_F(DocumentData, LostValuesAreToldAfterTheSave) {
    form.setText({Field::rubrik}, "Hus, 4 plan");
    designCase.ptjl(1) = 12345678;
    typed = "hus2";
    document.saveAs();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_TRUE(holds(boxes.shown[0].text, "Rubrik: \"Hus, 4 plan\" blir \"Hus\"")) << boxes.shown[0].text;
    EXPECT_TRUE(holds(boxes.shown[0].text, "fack 1: 12345678 blir 1234567")) << boxes.shown[0].text;
    EXPECT_EQ(window.caption, "HUS2.IND");
    EXPECT_FALSE(state.dataChanged);
    save();
    EXPECT_EQ(boxes.shown.size(), 1u);
    form.setText({Field::rubrik}, "Hus 4 plan");
    designCase.ptjl(1) = 0.2f;
    save();
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(DocumentData, FaultsOfAnOpenedFileAreTold) {
    Bytes file = caseFile("HUS3", "Hus, 4 plan", 6);
    files.content[std::string(here) + "HUS3.IND"] = file;
    typed = "HUS3.IND";
    document.open();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_TRUE(holds(boxes.shown[0].text, "Rad 2 (Rubrik)")) << boxes.shown[0].text;
    EXPECT_EQ(state.currentFileName, "HUS3") << "open all the same";
}

TEST_F(DocumentData, FaultsOfAFileThatCannotBeReadAreToldBesidesTheError) {
    files.content[std::string(here) + "KORT.IND"] = "KORT\r\n";
    typed = "KORT.IND";
    EXPECT_EQ(errorOf([&] { document.open(); }), 62);
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_TRUE(holds(boxes.shown[0].text, "Filen har bara 1 rader.")) << boxes.shown[0].text;
    EXPECT_EQ(state.currentFileName, "NAMNLÖS");
    boxes.shown.clear();
    typed = "SAKNAS.IND";
    EXPECT_EQ(errorOf([&] { document.open(); }), 52);
    EXPECT_TRUE(boxes.shown.empty()) << "there is no file to say anything about";
}

// Rescue

TEST_F(DocumentData, UnsavedCaseIsChanged) {
    EXPECT_FALSE(document.changed());
    edit(7);
    EXPECT_TRUE(document.changed());
    typed = "hus4";
    document.saveAs();
    EXPECT_FALSE(document.changed());
    // A row of the line load editor changes the record and marks nothing.
    designCase.lllastf(1) = 5;
    EXPECT_TRUE(document.changed());
    EXPECT_FALSE(state.dataChanged);
}

TEST_F(DocumentData, RestoredCaseIsWhatWasKept) {
    open("HUS1.IND");
    dialog.changeDirectory("C:\\arbete\\gammalt");
    edit(7);
    designCase.lllastf(1) = 5;
    designCase.psi0(5, 3) = 0.25;
    RescuedCase kept = document.toKeep();
    kept.title = "Hus, 4 plan";

    ShellFixture next;
    next.document.newCase(workFolder);
    next.files.content = files.content;
    next.document.restore(kept);
    EXPECT_EQ(next.designCase, designCase);
    EXPECT_EQ(next.title(), "Hus, 4 plan");
    EXPECT_EQ(next.window.caption, "HUS1.IND");
    EXPECT_TRUE(next.state.dataChanged);
    EXPECT_TRUE(next.state.caseSaved);
    EXPECT_EQ(next.opened.substr(0, 9), "HUS1.IND|") << "the sketch follows";
    // Save goes where it would have gone, and knows its own file.
    next.document.save();
    EXPECT_TRUE(next.files.content.contains(std::string(elsewhere) + "HUS1.IND"));
    next.dialog.changeDirectory("C:\\arbete");
    next.edit(8);
    next.boxes.shown.clear();
    next.form.setText({Field::rubrik}, "Hus");
    next.document.save();
    EXPECT_TRUE(next.boxes.shown.empty());
}

TEST_F(DocumentData, RestoredCaseWhoseFolderIsGoneAsksForAName) {
    open("HUS1.IND");
    edit(7);
    RescuedCase kept = document.toKeep();
    kept.directory = "A:\\borta";
    ShellFixture next;
    next.document.newCase(workFolder);
    next.document.restore(kept);
    EXPECT_FALSE(next.state.caseSaved);
    next.document.save();
    EXPECT_EQ(next.dialogs.size(), 1u);
}

TEST_F(DocumentData, RestoredCaseThatCannotBeDrawnIsOpenAllTheSame) {
    edit(7);
    const RescuedCase kept = document.toKeep();
    ShellFixture next;
    next.document.newCase(workFolder);
    next.drawingError = 11;
    next.document.restore(kept);
    EXPECT_EQ(next.designCase.spv(1), 7);
    EXPECT_EQ(next.reported, std::vector<int>{11});
}

} // namespace
} // namespace varno::testing
