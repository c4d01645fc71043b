#include "shell/start_up.h"

#include <gtest/gtest.h>

#include "shell/shell_fixture.h"

namespace varno::testing {
namespace {

class StartUpTest : public ::testing::Test, public ShellFixture, public StartUpView {
  protected:
    StartUpTest() { files.content["varno.ini"] = "C:\\varnow\\run\r\n"; }

    void start() { startUp(settings, document, opener, window, *this); }

    void showMainWindow() override { steps.push_back("main"); }
    bool showVersionNotice() override {
        steps.push_back("notice");
        return tick;
    }
    void showDisclaimer() override { steps.push_back("disclaimer"); }
    void showInputForm() override { steps.push_back("form " + window.caption); }
    std::string printerFontName() override { return "Skrivarfont"; }
    void setResultFont(const std::string& face) override { font = face; }
    void report(const RunTimeError& error) override { ShellFixture::report(error); }

    Settings settings;
    std::vector<std::string> steps;
    std::string font;
    bool tick = false;
};

const Bytes seven("\x00\x00\xE0\x40", 4);         // 7.0
const Bytes sevenPointOne("\x33\x33\xE3\x40", 4); // 7.1
const Bytes eight("\x00\x00\x00\x41", 4);         // 8.0

TEST_F(StartUpTest, RunsItsStepsInOrder) {
    start();
    EXPECT_EQ(steps, (std::vector<std::string>{"main", "notice", "disclaimer", "form NAMNLÖS.IND", "main"}));
    EXPECT_EQ(settings.workFolder, "C:\\varnow\\run");
    EXPECT_EQ(form.focused(), Control{Field::rubrik});
    EXPECT_EQ(form.allSelected(), Control{Field::rubrik});
    EXPECT_EQ(form.rows(Field::dok).size(), 5u);
    EXPECT_FALSE(state.dataChanged);
    EXPECT_FALSE(state.caseSaved);
    EXPECT_FALSE(window.busy);
}

TEST_F(StartUpTest, TheNoticeShowsForAVersionBelowThis) {
    struct Version {
        Bytes stored;
        bool shown;
    };
    for (const Version& version :
         {Version{seven, true}, Version{Bytes(4, '\0'), true}, Version{"", true},
          Version{sevenPointOne, false}, Version{eight, false}, Version{sevenPointOne + "more", false},
          Version{seven.substr(0, 3), true}}) {
        files.content["varno.ver"] = version.stored;
        steps.clear();
        start();
        EXPECT_EQ(std::count(steps.begin(), steps.end(), "notice"), version.shown ? 1 : 0) << version.stored;
        EXPECT_EQ(std::count(steps.begin(), steps.end(), "disclaimer"), 1);
        EXPECT_EQ(files.content["varno.ver"], version.stored) << "not ticked: the file stays";
    }
}

TEST_F(StartUpTest, AMissingVersionFileIsCreatedEmpty) {
    start();
    EXPECT_EQ(files.content.at("varno.ver"), "");
    EXPECT_EQ(steps[1], "notice");
}

TEST_F(StartUpTest, TickingWritesFourBytesAndTheNoticeStaysAway) {
    tick = true;
    start();
    EXPECT_EQ(files.content.at("varno.ver"), sevenPointOne);
    steps.clear();
    start();
    EXPECT_EQ(std::count(steps.begin(), steps.end(), "notice"), 0);
}

TEST_F(StartUpTest, TickingTouchesTheFirstFourBytesOnly) {
    tick = true;
    files.content["varno.ver"] = Bytes(4, '\0') + "rest";
    start();
    EXPECT_EQ(files.content.at("varno.ver"), sevenPointOne + "rest");
}

TEST_F(StartUpTest, ATickThatCannotBeKeptIsToldAndStartUpGoesOn) {
    tick = true;
    files.fault = [](const std::string& call, const std::string& path) {
        return call == "replace" && path == "varno.ver" ? errPathFileAccess : 0;
    };
    start();
    EXPECT_EQ(reported, std::vector<int>{errPathFileAccess});
    EXPECT_EQ(window.caption, "NAMNLÖS.IND");
}

TEST_F(StartUpTest, TheWorkFolderIsTheFirstItemOfItsFile) {
    const auto folderOf = [&](const Bytes& content) {
        files.content["varno.ini"] = content;
        errorOf([&] { start(); });
        return settings.workFolder;
    };
    EXPECT_EQ(folderOf("C:\\a,b\r\n"), "C:\\a");
    EXPECT_EQ(folderOf("\"C:\\a,b\"\r\n"), "C:\\a,b");
    EXPECT_EQ(folderOf("  C:\\x y\r\nmore"), "C:\\x y");
    EXPECT_EQ(folderOf("C:\\\x8F\x84\x94 prov"), "C:\\Åäö prov") << "saved with the DOS code page";
    EXPECT_EQ(folderOf("C:\\\xC5\xE4\xF6 prov"), "C:\\Åäö prov");
}

TEST_F(StartUpTest, AMissingInstallationFileEndsItWithError52) {
    files.content.erase("varno.ini");
    EXPECT_EQ(errorOf([&] { start(); }), errBadFileNameOrNumber);
    EXPECT_TRUE(boxes.shown.empty()) << "a missing file is not reported at opening";

    files.content["varno.ini"] = "C:\\annan";
    EXPECT_EQ(errorOf([&] { start(); }), errBadFileNameOrNumber);
    EXPECT_FALSE(window.busy);

    files.content["varno.ini"] = "";
    EXPECT_EQ(errorOf([&] { start(); }), errInputPastEnd);
}

TEST_F(StartUpTest, ADefaultCaseThatCannotBeDrawnIsToldAndStartUpGoesOn) {
    drawingError = errDivisionByZero;
    start();
    EXPECT_EQ(reported, std::vector<int>{errDivisionByZero});
    EXPECT_EQ(steps.back(), "main");
    EXPECT_EQ(window.caption, "NAMNLÖS.IND");
    EXPECT_EQ(font, "Skrivarfont");
    EXPECT_FALSE(state.dataChanged);
}

TEST_F(StartUpTest, TheResultFontIsThePrintersUntilOneIsStored) {
    start();
    EXPECT_EQ(settings.resultFontName, "Skrivarfont");
    EXPECT_EQ(font, "Skrivarfont");
    files.content["Varnfnt.ini"] = "Lucida Console\r\n";
    start();
    EXPECT_EQ(settings.resultFontName, "Lucida Console");
    EXPECT_EQ(font, "Lucida Console");
    files.content["Varnfnt.ini"] = "";
    start();
    EXPECT_EQ(settings.resultFontName, "Skrivarfont");
}

TEST_F(StartUpTest, TheCaptionIsUpperCasedWhateverTheFileSays) {
    files.content["C:\\varnow\\run\\varno.def"] = caseFile("min fil", "x", 4);
    start();
    EXPECT_EQ(window.caption, "MIN FIL.IND");
}

} // namespace
} // namespace varno::testing
