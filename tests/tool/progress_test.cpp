#include "tool/progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace varno {

namespace {

using tool::Milliseconds;

TEST(Progress, ShowsABarAndWhatIsLeft) {
    std::ostringstream out;
    tool::Progress progress(out, true, 100);
    progress.show(0, 0, Milliseconds(0));
    EXPECT_EQ(out.str(), "\r[------------------------------] 0 av 100");
    out.str("");
    progress.show(48, 2, Milliseconds(10000));
    EXPECT_EQ(out.str(), "\r[###############---------------] 50 av 100, 2 misslyckade, 10 s kvar");
    out.str("");
    progress.show(98, 2, Milliseconds(20000));
    EXPECT_EQ(out.str(), "\r[##############################] 100 av 100, 2 misslyckade          ")
        << "what stood there is wiped out";
}

TEST(Progress, CountsMinutesAndHours) {
    std::ostringstream out;
    tool::Progress progress(out, true, 100000);
    progress.show(0, 0, Milliseconds(0));
    progress.show(1000, 0, Milliseconds(10000));
    EXPECT_TRUE(out.str().ends_with(", 17 min kvar")) << out.str();
    progress.show(1001, 0, Milliseconds(1000000));
    EXPECT_NE(out.str().find(", 27 h kvar"), std::string::npos) << out.str();
}

TEST(Progress, IsNotDrawnForEveryStep) {
    std::ostringstream out;
    tool::Progress progress(out, true, 100);
    progress.show(1, 0, Milliseconds(1000));
    out.str("");
    progress.show(2, 0, Milliseconds(1050));
    EXPECT_EQ(out.str(), "");
    progress.show(3, 0, Milliseconds(1100));
    EXPECT_NE(out.str(), "");
}

TEST(Progress, LeavesItsLine) {
    std::ostringstream out;
    {
        tool::Progress progress(out, true, 3);
        progress.show(1, 0, Milliseconds(0));
    }
    EXPECT_TRUE(out.str().ends_with("\r" + std::string(39, ' ') + "\r")) << out.str();
}

TEST(Progress, ShowsNothingWhereNobodyWatches) {
    std::ostringstream out;
    {
        tool::Progress progress(out, false, 3);
        progress.show(1, 0, Milliseconds(0));
        progress.show(3, 0, Milliseconds(9000));
    }
    EXPECT_EQ(out.str(), "");
}

} // namespace

} // namespace varno
