// Cases that are opened by their path: named on the command line, dropped on the window, chosen from the recent ones.
#include <gtest/gtest.h>

#include "shell/shell_fixture.h"

namespace varno::testing {
namespace {

using Texts = std::vector<std::string>;

class GivenFiles : public ::testing::Test, public ShellFixture {
  protected:
    GivenFiles() {
        document.newCase(workFolder);
        prompts.clear();
        files.content["C:\\arbete\\gammalt\\HUS1.IND"] = caseFile("HUS1", "Gammalt", 7);
    }
    std::string message() {
        try {
            document.openAt("C:\\arbete\\gammalt\\HUS1.IND");
        } catch (const RunTimeError& error) {
            return error.message();
        }
        return {};
    }
};

TEST_F(GivenFiles, AreOpenedAsOpenDoesAndTheDialogStandsInTheirFolder) {
    document.openGiven({"C:\\arbete\\gammalt\\HUS1.IND"});
    EXPECT_TRUE(dialogs.empty());
    EXPECT_TRUE(prompts.empty());
    EXPECT_EQ(opened, "HUS1.IND|Gammalt|7.00");
    EXPECT_TRUE(state.caseSaved);
    EXPECT_FALSE(state.dataChanged);
    EXPECT_EQ(dialog.directory(), "C:\\arbete\\gammalt");
    edit(8);
    document.save();
    EXPECT_TRUE(boxes.shown.empty()) << "it is the case's own file";
    EXPECT_EQ(files.content.at("C:\\arbete\\gammalt\\HUS1.IND"), caseFile("HUS1", "Gammalt", 8));
    EXPECT_EQ(used, (Texts{"C:\\arbete\\gammalt\\HUS1.IND", "C:\\arbete\\gammalt\\HUS1.IND"}));
}

TEST_F(GivenFiles, UnsavedChangesAreAskedAboutFirst) {
    edit(9);
    document.openAt("C:\\arbete\\gammalt\\HUS1.IND");
    EXPECT_EQ(prompts, Texts{"Öppna|Vill Du spara ändringarna i NAMNLÖS.IND ?"});
    EXPECT_EQ(designCase.spv(1), 7);

    edit(9);
    saveAnswer = SaveAnswer::yes;
    state.caseSaved = false;
    document.openAt("C:\\arbete\\gammalt\\HUS1.IND");
    EXPECT_EQ(designCase.spv(1), 9) << "it was to be saved and got no name";
}

TEST_F(GivenFiles, AMissingFileIsToldAndChangesNothing) {
    files.content.clear();
    edit(9);
    EXPECT_EQ(message(), "Filen C:\\arbete\\gammalt\\HUS1.IND finns inte.\n"
                         "Filen har inte lästs in; det som fanns i programmet är kvar.\n"
                         "Kontrollera namnet och mappen.\n\n"
                         "Run-time error '52': Bad file name or number");
    EXPECT_TRUE(prompts.empty());
    EXPECT_EQ(designCase.spv(1), 9);
    EXPECT_EQ(dialog.directory(), "C:\\arbete");
    EXPECT_TRUE(used.empty());
}

TEST_F(GivenFiles, ADamagedFileIsToldAndTheDialogStaysWhereItWas) {
    files.content["C:\\arbete\\gammalt\\HUS1.IND"] = "SKADAD\r\n";
    EXPECT_NE(message().find("tar slut"), std::string::npos);
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_NE(boxes.shown[0].text.find("är ingen indatafil"), std::string::npos) << boxes.shown[0].text;
    EXPECT_EQ(dialog.directory(), "C:\\arbete") << "Save writes there";
    EXPECT_TRUE(used.empty());
}

TEST_F(GivenFiles, SeveralAtOnceAreRefused) {
    document.openGiven({"C:\\arbete\\gammalt\\HUS1.IND", "C:\\arbete\\gammalt\\HUS2.IND"});
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, "Bara ett fall kan vara öppet. Öppna eller släpp en fil i taget !");
    EXPECT_EQ(state.currentFileName, "NAMNLÖS");
    document.openGiven({});
    EXPECT_EQ(boxes.shown.size(), 1u);
}

TEST_F(GivenFiles, FilesOfTheUserAreTold) {
    typed = "hus2";
    document.saveAs();
    document.newCase(workFolder);
    EXPECT_EQ(used, Texts{"C:\\arbete\\HUS2.IND"}) << "the default case is none of them";
}

TEST(FolderOf, IsWhatStandsBeforeTheName) {
    EXPECT_EQ(folderOf("C:\\jobb\\hus.ind"), "C:\\jobb");
    EXPECT_EQ(folderOf("C:\\hus.ind"), "C:\\");
    EXPECT_EQ(folderOf("\\\\server\\jobb\\hus.ind"), "\\\\server\\jobb");
    EXPECT_EQ(folderOf("hus.ind"), "");
}

} // namespace
} // namespace varno::testing
