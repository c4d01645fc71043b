#include "results/calculation_run.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "support/fake_form.h"
#include "support/fake_viewer.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

class FakeProcesses : public ProcessStarter {
  public:
    std::uint32_t ExecCmd(const std::string& commandLine) override {
        started.push_back(commandLine);
        if (engine) engine();
        return exitCode;
    }
    std::vector<std::string> started;
    std::function<void()> engine;
    std::uint32_t exitCode = 0;
};

class CalculationRunTest : public ::testing::Test {
  protected:
    CalculationRunTest() {
        document.currentFileName = "HUS1";
        document.caseSaved = true;
        window.diagram = false;
        files.content["HUS1.ind"] = "indata";
    }
    void run() {
        FileOpener opener(files, boxes);
        CalculationRun(opener, boxes, processes, window, viewer)
            .run(document, "C:\\varnow\\run", "Courier New");
    }
    void engineWrites(const Bytes& result) {
        processes.engine = [this, result] { files.content["HUS1.res"] = result; };
    }

    MemoryFiles files;
    FakeMessageBoxes boxes;
    FakeProcesses processes;
    FakeMainWindow window;
    FakeViewer viewer;
    DocumentState document;
};

TEST_F(CalculationRunTest, HandsTheSavedFileOverAndShowsTheResult) {
    files.content["~indata~.tmp"] = "from the run before";
    engineWrites("Resultat\r\nST\x99"
                 "DMOMENT\r\n");
    run();
    EXPECT_EQ(files.content["~indata~.tmp"], "indata");
    EXPECT_EQ(processes.started, std::vector<std::string>{"C:\\varnow\\run\\varnowb.exe"});
    EXPECT_EQ(viewer.text, "\r\nResultat\r\nSTÖDMOMENT");
    EXPECT_EQ(viewer.font, "Courier New");
    EXPECT_EQ(viewer.timesShown, 1);
    EXPECT_TRUE(window.diagram);
    EXPECT_TRUE(window.wasBusy);
    EXPECT_FALSE(window.busy);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(CalculationRunTest, RefusesACaseWithoutAFileOrWithChanges) {
    const FakeMessageBoxes::Shown refusal{"Du måste spara Filen först !", msgOk, ""};
    document.caseSaved = false;
    run();
    EXPECT_EQ(boxes.shown, std::vector{refusal});
    document.caseSaved = true;
    document.dataChanged = true;
    run();
    EXPECT_EQ(boxes.shown.size(), 2u);
    EXPECT_EQ(boxes.shown.back(), refusal);
    EXPECT_TRUE(processes.started.empty());
    EXPECT_TRUE(files.calls.empty());
    EXPECT_FALSE(window.diagram);
}

TEST_F(CalculationRunTest, DeletesTheTemporaryFileBeforeEveryRun) {
    engineWrites("ok");
    run();
    run();
    const auto deletions = std::count(files.calls.begin(), files.calls.end(), "remove ~indata~.tmp");
    EXPECT_EQ(deletions, 2);
    EXPECT_EQ(files.content["~indata~.tmp"], "indata");
    EXPECT_EQ(viewer.timesShown, 2);
}

TEST_F(CalculationRunTest, ACaseOutsideTheCurrentDirectoryIsPassedOver) {
    files.content.erase("HUS1.ind");
    engineWrites("what the engine made of nothing");
    run();
    EXPECT_EQ(processes.started.size(), 1u);
    EXPECT_FALSE(files.content.contains("~indata~.tmp"));
    EXPECT_EQ(viewer.timesShown, 1);
}

TEST_F(CalculationRunTest, AMissingResultFileIsToldWithTheNameOfTheInput) {
    run();
    EXPECT_EQ(boxes.shown,
              (std::vector<FakeMessageBoxes::Shown>{{"Resultatfil till HUS1.IND saknas !", msgOk, ""}}));
    EXPECT_EQ(viewer.timesShown, 0);
    EXPECT_TRUE(window.diagram) << "the diagram is offered as soon as the engine has ended";
    EXPECT_FALSE(window.busy);
}

TEST_F(CalculationRunTest, AnEngineThatDidNotStartLeavesAnOlderResult) {
    processes.exitCode = 0xFFFFFFFF;
    files.content["HUS1.res"] = "gammalt";
    run();
    EXPECT_EQ(viewer.text, "\r\ngammalt");
}

TEST_F(CalculationRunTest, OtherErrorsOnTheWayEndInTheSameMessage) {
    files.fault = [](const std::string& call, const std::string& path) {
        return call == "remove" && path == "~indata~.tmp" ? errPathFileAccess : 0;
    };
    engineWrites("unseen");
    run();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, "Resultatfil till HUS1.IND saknas !");
    EXPECT_TRUE(processes.started.empty());
    EXPECT_FALSE(window.diagram);
    EXPECT_FALSE(window.busy);
}

TEST(EngineCommandLine, IsQuotedOnlyForABlank) {
    EXPECT_EQ(engineCommandLine("C:\\varnow\\run"), "C:\\varnow\\run\\varnowb.exe");
    EXPECT_EQ(engineCommandLine("C:\\Åäö prov"), "\"C:\\Åäö prov\\varnowb.exe\"");
}

TEST_F(CalculationRunTest, ResultOnScreenShowsTheFileOfTheCase) {
    FileOpener opener(files, boxes);
    files.content["HUS1.res"] = "rad";
    showResults(opener, boxes, window, viewer, document, "Arial");
    EXPECT_EQ(viewer.text, "\r\nrad");
    EXPECT_EQ(viewer.font, "Arial");
    EXPECT_EQ(viewer.timesShown, 1);

    files.content.clear();
    showResults(opener, boxes, window, viewer, document, "Arial");
    EXPECT_EQ(boxes.shown,
              (std::vector<FakeMessageBoxes::Shown>{{"Resultatfil till HUS1.IND saknas !", msgOk, ""}}));
    EXPECT_EQ(viewer.timesShown, 1);
    EXPECT_FALSE(window.busy);
}

} // namespace
} // namespace varno::testing
