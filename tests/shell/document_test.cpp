#include "shell/document.h"

#include <gtest/gtest.h>

#include "shell/shell_fixture.h"

namespace varno::testing {
namespace {

using Texts = std::vector<std::string>;

class DocumentTest : public ::testing::Test, public ShellFixture {
  protected:
    DocumentTest() {
        document.newCase(workFolder);
        prompts.clear();
    }
    /// The case is named and on the disk.
    void saveAsName(const std::string& name) {
        typed = name;
        document.saveAs();
    }
    const Bytes& onDisk(const std::string& name) const { return files.content.at("C:\\arbete\\" + name); }
};

TEST(CaseFileName, IsUpperCasedTrimmedAndCutAtTheFirstPoint) {
    struct Typed {
        const char* text;
        const char* saved;
        const char* current;
    };
    for (const Typed& typed : {Typed{"  kalk ", "KALK.IND", "KALK"}, Typed{"a.b.c", "A.IND", "A"},
                               Typed{"kalk.txt", "KALK.IND", "KALK"}, Typed{"hus1.ind", "HUS1.IND", "HUS1"},
                               Typed{"åäö", "ÅÄÖ.IND", "ÅÄÖ"}, Typed{"x .ind", "X .IND", "X "}}) {
        const CaseFileName name = caseFileName(typed.text);
        EXPECT_EQ(name.savedFileName, typed.saved);
        EXPECT_EQ(name.currentFileName, typed.current);
    }
}

TEST_F(DocumentTest, NewReadsTheDefaultCase) {
    EXPECT_EQ(state.currentFileName, "NAMNLÖS");
    EXPECT_EQ(window.caption, "NAMNLÖS.IND");
    EXPECT_FALSE(state.caseSaved);
    EXPECT_FALSE(state.dataChanged);
    EXPECT_FALSE(window.diagram);
    EXPECT_FALSE(window.busy);
    EXPECT_TRUE(window.wasBusy);
    EXPECT_EQ(form.focused(), Control{Field::rubrik});
    EXPECT_EQ(form.allSelected(), Control{Field::rubrik});
    EXPECT_EQ(title(), "Nytt");
    EXPECT_EQ(refreshes, 1);
    EXPECT_TRUE(prompts.empty());
}

TEST_F(DocumentTest, NewWithChangesAsksAndNoGoesOn) {
    edit(9);
    document.newCase(workFolder);
    EXPECT_EQ(prompts, std::vector<std::string>{"Ny|Vill Du spara ändringarna i NAMNLÖS.IND ?"});
    EXPECT_EQ(designCase.spv(1), 5.5f);
    EXPECT_FALSE(state.dataChanged);
}

TEST_F(DocumentTest, NewWithChangesAndYesFirstAsksForANameOfAnUnnamedCase) {
    edit(9);
    saveAnswer = SaveAnswer::yes;
    typed = "hus1";
    document.newCase(workFolder);
    EXPECT_EQ(dialogs, std::vector<std::string>{"Spara som..|*.IND|test"});
    EXPECT_EQ(onDisk("HUS1.IND"), caseFile("HUS1", "Nytt", 9));
    EXPECT_EQ(state.currentFileName, "NAMNLÖS");
    EXPECT_FALSE(state.caseSaved);
    EXPECT_EQ(designCase.spv(1), 5.5f);
}

TEST_F(DocumentTest, NewStopsWhenTheCaseWasToBeSavedButItsNameWasNotGiven) {
    edit(9);
    saveAnswer = SaveAnswer::yes;
    document.newCase(workFolder);
    EXPECT_EQ(designCase.spv(1), 9);
    EXPECT_TRUE(state.dataChanged);
    EXPECT_FALSE(window.busy);
}

TEST_F(DocumentTest, NewWithChangesSavesANamedCaseDirectly) {
    saveAsName("hus1");
    edit(9);
    saveAnswer = SaveAnswer::yes;
    dialogs.clear();
    document.newCase(workFolder);
    EXPECT_TRUE(dialogs.empty());
    EXPECT_EQ(onDisk("HUS1.IND"), caseFile("HUS1", "Nytt", 9));
}

TEST_F(DocumentTest, OpenReadsTheChosenFile) {
    files.content["C:\\arbete\\hus7.ind"] = caseFile("hus7", "Sju", 7);
    typed = "hus7.ind";
    document.open();
    EXPECT_EQ(dialogs, std::vector<std::string>{"Välj Indatafil|*.IND|"});
    EXPECT_EQ(window.caption, "HUS7.IND");
    EXPECT_EQ(state.currentFileName, "HUS7");
    EXPECT_EQ(designCase.spv(1), 7);
    EXPECT_EQ(title(), "Sju");
    EXPECT_TRUE(state.caseSaved);
    EXPECT_FALSE(state.dataChanged);
    EXPECT_FALSE(window.diagram);
}

TEST_F(DocumentTest, CancellingTheDialogLeavesTheDocumentAsItIs) {
    edit(9);
    window.diagram = true;
    document.open();
    document.saveAs();
    EXPECT_EQ(prompts, std::vector<std::string>{"Öppna|Vill Du spara ändringarna i NAMNLÖS.IND ?"});
    EXPECT_EQ(designCase.spv(1), 9);
    EXPECT_TRUE(state.dataChanged);
    EXPECT_FALSE(state.caseSaved);
    EXPECT_EQ(window.caption, "NAMNLÖS.IND");
    EXPECT_TRUE(window.diagram);
}

TEST_F(DocumentTest, OpeningAFileThatIsNotThereFailsAtTheFirstReadAndKeepsTheCase) {
    saveAsName("hus1");
    edit(9);
    form.setText({Field::rubrik}, "Min rubrik");
    window.diagram = true;
    typed = "finns inte.ind";
    EXPECT_EQ(errorOf([&] { document.open(); }), errBadFileNameOrNumber);
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(designCase.spv(1), 9);
    EXPECT_EQ(title(), "Min rubrik");
    EXPECT_TRUE(state.dataChanged);
    EXPECT_EQ(state.currentFileName, "HUS1");
    EXPECT_TRUE(window.diagram);
    EXPECT_FALSE(window.busy);
}

TEST_F(DocumentTest, ADamagedFileNeverCostsTheCase) {
    saveAsName("hus1");
    edit(9);
    form.setText({Field::spv, 1}, "9.00");
    const DesignCase before = designCase;
    Bytes damaged = caseFile("trasig", "Trasig", 3);
    damaged.resize(damaged.size() - 60);
    files.content["C:\\arbete\\TRASIG.IND"] = damaged;
    typed = "TRASIG.IND";
    EXPECT_EQ(errorOf([&] { document.open(); }), errInputPastEnd);
    EXPECT_EQ(designCase, before);
    EXPECT_EQ(title(), "Nytt");
    EXPECT_EQ(form.text({Field::spv, 1}), "9.00");
    EXPECT_EQ(state.currentFileName, "HUS1");
    EXPECT_EQ(window.caption, "HUS1.IND");
    EXPECT_TRUE(state.dataChanged);
    EXPECT_TRUE(state.caseSaved);
    document.save();
    EXPECT_EQ(onDisk("HUS1.IND"), caseFile("HUS1", "Nytt", 9));
}

TEST_F(DocumentTest, ACaseThatCannotBeDrawnIsOpenAllTheSame) {
    files.content["C:\\arbete\\und.ind"] = caseFile("und", "Undantag", 7);
    typed = "und.ind";
    drawingError = errDivisionByZero;
    edit(9);
    refreshes = 0;
    document.open();
    EXPECT_EQ(reported, std::vector<int>{errDivisionByZero});
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(opened, "UND.IND|Undantag|7.00") << "drawn last, when everything else is the new case's";
    EXPECT_EQ(window.caption, "UND.IND");
    EXPECT_EQ(state.currentFileName, "UND");
    EXPECT_EQ(designCase.spv(1), 7);
    EXPECT_TRUE(state.caseSaved);
    EXPECT_FALSE(state.dataChanged);
    EXPECT_FALSE(window.busy);
    EXPECT_EQ(form.allSelected(), Control{Field::rubrik});
    document.save();
    EXPECT_EQ(onDisk("UND.IND"), caseFile("UND", "Undantag", 7));
}

TEST_F(DocumentTest, ADamagedFileChangesNothingWhereTheCaseCannotBeDrawnEither) {
    drawingError = errDivisionByZero;
    files.content["C:\\arbete\\und.ind"] = caseFile("und", "Undantag", 7);
    typed = "und.ind";
    document.open();
    const DesignCase before = designCase;
    const Texts rows = form.rows(Field::lokt);
    window.diagram = true;
    reported.clear();
    files.content["C:\\arbete\\TRASIG.IND"] = "TRASIG\r\nTrasig\r\n3\r\n";
    typed = "TRASIG.IND";
    EXPECT_EQ(errorOf([&] { document.open(); }), errInputPastEnd);
    EXPECT_TRUE(reported.empty());
    EXPECT_EQ(designCase, before);
    EXPECT_EQ(title(), "Undantag");
    EXPECT_EQ(state.currentFileName, "UND");
    EXPECT_EQ(window.caption, "UND.IND");
    EXPECT_TRUE(state.caseSaved);
    EXPECT_TRUE(window.diagram);
    EXPECT_EQ(form.rows(Field::lokt), rows);
}

TEST_F(DocumentTest, SaveAsTrimsAndUpperCasesTheTypedName) {
    saveAsName(" kalk ");
    EXPECT_EQ(state.currentFileName, "KALK");
    EXPECT_EQ(state.savedFileName, "KALK.IND");
    EXPECT_EQ(window.caption, "KALK.IND");
    EXPECT_TRUE(state.caseSaved);
    EXPECT_FALSE(state.dataChanged);
    EXPECT_EQ(onDisk("KALK.IND"), caseFile("KALK", "Nytt", 5.5f));
    EXPECT_EQ(files.content.size(), 2u) << "no draft is left behind";
}

TEST_F(DocumentTest, SaveWithoutANameIsSaveAs) {
    edit(8);
    typed = "a.b.c";
    document.save();
    EXPECT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(state.currentFileName, "A");
    EXPECT_EQ(onDisk("A.IND"), caseFile("A", "Nytt", 8));
}

TEST_F(DocumentTest, SaveWritesToTheCaptionInTheDialogsDirectory) {
    files.content["C:\\arbete\\hus7.ind"] = caseFile("hus7", "Sju", 7);
    typed = "hus7.ind";
    document.open();
    dialog.changeDirectory("C:\\arbete\\gammalt");
    edit(6);
    document.save();
    EXPECT_EQ(files.content.at("C:\\arbete\\gammalt\\HUS7.IND"), caseFile("HUS7", "Sju", 6));
    EXPECT_FALSE(state.dataChanged);
    EXPECT_EQ(dialogs.size(), 1u);
}

TEST_F(DocumentTest, SaveAsAsksBeforeItReplacesAnotherFile) {
    files.content["C:\\arbete\\HUS2.IND"] = "another case";
    boxes.answers = {MessageAnswer::no};
    boxes.whileShown = [&] { typed.clear(); };
    saveAsName("hus2");
    EXPECT_EQ(boxes.shown, (std::vector<FakeMessageBoxes::Shown>{
                               {"C:\\arbete\\HUS2.IND finns redan. Vill Du ersätta filen ?",
                                msgYesNoDefaultNo, "Spara som.."}}));
    EXPECT_EQ(onDisk("HUS2.IND"), "another case");
    EXPECT_EQ(window.caption, "NAMNLÖS.IND");
    EXPECT_FALSE(state.caseSaved);

    boxes.answers = {MessageAnswer::yes};
    saveAsName("hus2");
    EXPECT_EQ(onDisk("HUS2.IND"), caseFile("HUS2", "Nytt", 5.5f));
    boxes.shown.clear();
    saveAsName("hus2");
    EXPECT_TRUE(boxes.shown.empty()) << "its own file is no other file";
}

TEST_F(DocumentTest, AfterNoTheDialogIsThereAgainWithTheNameAndTheFolder) {
    files.content["C:\\arbete\\gammalt\\HUS2.IND"] = "another case";
    boxes.answers = {MessageAnswer::no};
    boxes.whileShown = [&] { typed = "hus3"; };
    dialog.changeDirectory("C:\\arbete\\gammalt");
    saveAsName(" hus2.ind");
    EXPECT_EQ(dialogs, (std::vector<std::string>{"Spara som..|*.IND|test", "Spara som..|*.IND| hus2.ind"}));
    EXPECT_EQ(files.content.at("C:\\arbete\\gammalt\\HUS2.IND"), "another case");
    EXPECT_EQ(files.content.at("C:\\arbete\\gammalt\\HUS3.IND"), caseFile("HUS3", "Nytt", 5.5f));
    EXPECT_EQ(window.caption, "HUS3.IND");
    EXPECT_EQ(boxes.shown.size(), 1u);
}

TEST_F(DocumentTest, ASaveThatFailsKeepsTheOldFileTheNameAndTheChanges) {
    saveAsName("hus1");
    edit(9);
    const Bytes before = onDisk("HUS1.IND");
    for (const std::string failing : {"create", "write", "flush", "close", "replace"}) {
        files.fault = [failing](const std::string& call, const std::string&) {
            return call == failing ? errDeviceIo : 0;
        };
        boxes.answers = {MessageAnswer::no, MessageAnswer::no};
        EXPECT_NE(errorOf([&] { document.save(); }), 0) << failing;
        EXPECT_NE(errorOf([&] { saveAsName("hus9"); }), 0) << failing;
        EXPECT_EQ(onDisk("HUS1.IND"), before) << failing;
        EXPECT_TRUE(state.dataChanged) << failing;
        EXPECT_EQ(state.currentFileName, "HUS1") << failing;
        EXPECT_EQ(window.caption, "HUS1.IND") << failing;
        EXPECT_FALSE(window.busy) << failing;
    }
    files.fault = nullptr;
    document.save();
    EXPECT_EQ(onDisk("HUS1.IND"), caseFile("HUS1", "Nytt", 9));
}

TEST_F(DocumentTest, ExitOfAnUnchangedCaseDeletesTheTemporaryFileWithoutAsking) {
    files.content["~indata~.tmp"] = "x";
    document.exit();
    EXPECT_TRUE(ended);
    EXPECT_TRUE(prompts.empty());
    EXPECT_FALSE(files.content.contains("~indata~.tmp"));
}

TEST_F(DocumentTest, ExitWithoutATemporaryFileEndsAllTheSame) {
    document.exit();
    EXPECT_TRUE(ended);
}

TEST_F(DocumentTest, ExitWithChangesAsksAndKeepsTheTemporaryFile) {
    files.content["~indata~.tmp"] = "x";
    edit(9);
    saveAnswer = SaveAnswer::cancel;
    document.exit();
    EXPECT_FALSE(ended);
    EXPECT_EQ(prompts, std::vector<std::string>{"Avsluta|Vill Du spara ändringarna i NAMNLÖS.IND ?|Avbryt"});
    EXPECT_TRUE(state.dataChanged);

    saveAnswer = SaveAnswer::no;
    document.exit();
    EXPECT_TRUE(ended);
    EXPECT_TRUE(files.content.contains("~indata~.tmp"));
}

TEST_F(DocumentTest, ExitWithYesSavesFirst) {
    files.content["~indata~.tmp"] = "x";
    edit(9);
    saveAnswer = SaveAnswer::yes;
    document.exit();
    EXPECT_FALSE(ended) << "the name was not given, the case is not saved";

    typed = "hus1";
    document.exit();
    EXPECT_TRUE(ended);
    EXPECT_EQ(onDisk("HUS1.IND"), caseFile("HUS1", "Nytt", 9));
    EXPECT_TRUE(files.content.contains("~indata~.tmp"));
}

TEST_F(DocumentTest, TheSpansBehindACaseStartFromTheDefaultsAgain) {
    designCase.spv(4) = 9;
    document.newCase(workFolder);
    EXPECT_EQ(designCase.spv(4), 5.5f);
    designCase.nfack = 2;
    designCase.spv(4) = 9;
    saveAsName("hus1");
    EXPECT_EQ(designCase.spv(4), 9) << "an element above the count stays in memory and is not saved";
    EXPECT_EQ(onDisk("HUS1.IND"), caseFile("HUS1", "Nytt", 5.5f));
}

} // namespace
} // namespace varno::testing
