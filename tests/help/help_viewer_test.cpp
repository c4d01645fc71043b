#include "help/help_viewer.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "help/help_topics.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

class FakeHelpSystem : public HelpSystem {
  public:
    bool exists(const std::string& path) override { return files.contains(path); }
    std::string programFolder() override { return "C:\\Program\\Varno"; }
    bool winHelp(const std::string& file, unsigned context) override {
        if (hasViewer) calls.push_back("show " + file + " " + std::to_string(context));
        return hasViewer;
    }
    void quitWinHelp(const std::string& file) override { calls.push_back("quit " + file); }
    bool openDocument(const std::string& path) override {
        calls.push_back("open " + path);
        return hasBrowser;
    }

    std::set<std::string> files;
    bool hasViewer = true;
    bool hasBrowser = true;
    std::vector<std::string> calls;
};

using Calls = std::vector<std::string>;

class HelpViewerTest : public ::testing::Test {
  protected:
    const std::string work = "D:\\arbete";
    const std::string number = std::to_string(helpContext("falt-spv"));
    FakeHelpSystem system;
    FakeMessageBoxes boxes;
    HelpViewer viewer{system, boxes};
};

TEST_F(HelpViewerTest, LooksWhereTheHelpIsRegisteredThenInTheWorkFolderThenBesideTheProgram) {
    const std::vector<std::string> places{"c:\\varnow\\run\\Varno.HLP", "D:\\arbete\\Varno.HLP",
                                          "C:\\Program\\Varno\\Varno.HLP"};
    system.files.insert(places.begin(), places.end());
    for (const std::string& place : places) {
        system.calls.clear();
        viewer.show("falt-spv", work);
        EXPECT_EQ(system.calls, Calls{"show " + place + " " + number});
        system.files.erase(place);
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(HelpViewerTest, WithoutAViewerTheTwinOpensAtTheSameTopic) {
    system.hasViewer = false;
    system.files = {"c:\\varnow\\run\\Varno.HLP", "D:\\arbete\\help\\amnen\\falt-spv.html",
                    "C:\\Program\\Varno\\help\\amnen\\falt-spv.html"};
    viewer.show("falt-spv", work);
    EXPECT_EQ(system.calls, Calls{"open D:\\arbete\\help\\amnen\\falt-spv.html"});
    system.calls.clear();
    system.files.insert("c:\\varnow\\run\\help\\amnen\\falt-spv.html");
    viewer.show("falt-spv", work);
    EXPECT_EQ(system.calls, Calls{"open c:\\varnow\\run\\help\\amnen\\falt-spv.html"});
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(HelpViewerTest, WithoutTheFileTheTwinOpensToo) {
    system.files = {"C:\\Program\\Varno\\help\\amnen\\meny-start.html"};
    viewer.show("meny-start", work);
    EXPECT_EQ(system.calls, Calls{"open C:\\Program\\Varno\\help\\amnen\\meny-start.html"});
}

TEST_F(HelpViewerTest, BeforeTheWorkFolderIsKnownNothingIsLookedForAtTheRoot) {
    system.files = {"\\Varno.HLP", "\\help\\amnen\\oversikt.html", "C:\\Program\\Varno\\Varno.HLP"};
    viewer.show("oversikt", "");
    EXPECT_EQ(system.calls,
              Calls{"show C:\\Program\\Varno\\Varno.HLP " + std::to_string(helpContext("oversikt"))});
}

TEST_F(HelpViewerTest, NoHelpAtAllIsSaid) {
    viewer.show("falt-spv", work);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, helpMissing);
    EXPECT_TRUE(system.calls.empty());
}

TEST_F(HelpViewerTest, APageThatNothingOpensIsNamed) {
    system.hasBrowser = false;
    system.files = {"D:\\arbete\\help\\amnen\\falt-spv.html"};
    viewer.show("falt-spv", work);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, std::string(helpNotOpened) + "D:\\arbete\\help\\amnen\\falt-spv.html");
}

TEST_F(HelpViewerTest, TheViewerIsClosedWhenItWasUsedAndOnlyOnce) {
    viewer.close();
    EXPECT_TRUE(system.calls.empty());
    system.files = {"D:\\arbete\\Varno.HLP"};
    viewer.show("falt-spv", work);
    system.calls.clear();
    viewer.close();
    viewer.close();
    EXPECT_EQ(system.calls, Calls{"quit D:\\arbete\\Varno.HLP"});
}

} // namespace
} // namespace varno::testing
