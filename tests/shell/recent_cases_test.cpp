#include "shell/recent_cases.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace varno::testing {
namespace {

using Paths = std::vector<std::string>;

class RecentCasesTest : public ::testing::Test {
  protected:
    RecentCasesTest() { recent.start("C:\\lokalt\\Varno"); }

    MemoryFiles files;
    RecentCases recent{files};
};

TEST_F(RecentCasesTest, TheLastUsedStandsFirstAndOnce) {
    EXPECT_EQ(recent.list(), Paths{});
    recent.add("C:\\jobb\\HUS1.IND");
    recent.add("C:\\jobb\\Ängsgården.IND");
    recent.add("c:\\JOBB\\hus1.ind");
    EXPECT_EQ(recent.list(), (Paths{"c:\\JOBB\\hus1.ind", "C:\\jobb\\Ängsgården.IND"}));
}

TEST_F(RecentCasesTest, EightAreKept) {
    for (int i = 1; i <= 9; ++i)
        recent.add("C:\\HUS" + std::to_string(i) + ".IND");
    const Paths paths = recent.list();
    ASSERT_EQ(paths.size(), 8u);
    EXPECT_EQ(paths.front(), "C:\\HUS9.IND");
    EXPECT_EQ(paths.back(), "C:\\HUS2.IND");
}

TEST_F(RecentCasesTest, TheNextRunAndAProgramBesideKnowThem) {
    RecentCases other(files);
    other.start("C:\\lokalt\\Varno");
    recent.add("C:\\HUS1.IND");
    other.add("C:\\HUS2.IND");
    EXPECT_EQ(recent.list(), (Paths{"C:\\HUS2.IND", "C:\\HUS1.IND"}));
}

TEST_F(RecentCasesTest, AFileThatIsGoneLeavesTheList) {
    recent.add("C:\\HUS1.IND");
    recent.add("C:\\HUS2.IND");
    files.content["C:\\HUS1.IND"] = "";
    recent.dropMissing("C:\\HUS1.IND");
    recent.dropMissing("C:\\HUS2.IND");
    EXPECT_EQ(recent.list(), Paths{"C:\\HUS1.IND"});
}

TEST_F(RecentCasesTest, WithoutAFolderOrADiskNothingIsKeptAndNothingStops) {
    RecentCases nowhere(files);
    nowhere.add("C:\\HUS1.IND");
    EXPECT_EQ(nowhere.list(), Paths{});
    EXPECT_TRUE(files.content.empty());

    recent.add("C:\\HUS1.IND");
    files.fault = [](const std::string& call, const std::string&) {
        return call == "write" ? int{errDiskFull} : 0;
    };
    recent.add("C:\\HUS2.IND");
    files.fault = nullptr;
    EXPECT_EQ(recent.list(), Paths{"C:\\HUS1.IND"});
    files.fault = [](const std::string&, const std::string&) { return int{errPermissionDenied}; };
    EXPECT_EQ(recent.list(), Paths{});
}

TEST(RecentCaptions, AreNumberedAndKeepTheirAmpersands) {
    EXPECT_EQ(recentCaptions({"C:\\A&B\\HUS1.IND", "\\\\server\\jobb\\Åsö.IND"}),
              (Paths{"&1  C:\\A&&B\\HUS1.IND", "&2  \\\\server\\jobb\\Åsö.IND"}));
}

} // namespace
} // namespace varno::testing
