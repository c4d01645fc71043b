#include "tool/engine_host.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/memory_files.h"
#include "support/temporary_folder.h"

// Real programs on a real system, here and on Windows.
namespace varno {

namespace {

using tool::EngineHost;
using tool::Milliseconds;
using Words = std::vector<std::string>;

#ifdef _WIN32
Words shell(const std::string& command) {
    return {"cmd", "/c", command};
}
const char* const sleeping = "ping -n 30 127.0.0.1";
#else
Words shell(const std::string& command) {
    return {"/bin/sh", "-c", command};
}
const char* const sleeping = "sleep 30; true"; // the shell stays, as the parent of another
#endif

class EngineHostTest : public ::testing::Test {
  protected:
    EngineHost::Ended startAndWait(const Words& words) {
        const int child = host.start(words, folder.path("."), "out.txt");
        while (true) {
            const auto ended = host.wait(Milliseconds(10000));
            if (!ended || ended->child != child) continue;
            return *ended;
        }
    }

    testing::TemporaryFolder folder;
    EngineHost& host = tool::systemEngines();
};

TEST_F(EngineHostTest, RunsAProgramInAFolder) {
    const EngineHost::Ended ended = startAndWait(shell("echo hej> fil.txt&& echo ut&& exit 5"));
    EXPECT_EQ(ended.code, 5);
    EXPECT_FALSE(ended.crashed);
    EXPECT_EQ(folder.read("fil.txt").substr(0, 3), "hej");
    EXPECT_EQ(folder.read("out.txt").substr(0, 2), "ut");
}

TEST_F(EngineHostTest, SaysThatAProgramCannotBeStarted) {
    EXPECT_EQ(testing::errorOf([&] { host.start({"det-finns-inte"}, folder.path("."), "out.txt"); }),
              errFileNotFound);
}

TEST_F(EngineHostTest, WaitsNoLongerThanItIsTold) {
    const int child = host.start(shell(sleeping), folder.path("."), "out.txt");
    EXPECT_FALSE(host.wait(Milliseconds(50)));
    host.end(child);
    EXPECT_FALSE(host.wait(Milliseconds(0))) << "nothing more is heard of it";
}

TEST_F(EngineHostTest, ALockIsHeldByOneAndFreeAfterwards) {
    const std::string path = folder.path("A.~lock");
    auto lock = host.tryLock(path);
    EXPECT_TRUE(lock);
    EXPECT_FALSE(host.tryLock(path));
    lock.reset();
    EXPECT_TRUE(host.tryLock(path));
    EXPECT_EQ(folder.count(), 0U) << "the file goes with the lock";
    EXPECT_NE(testing::errorOf([&] { host.tryLock(folder.path("saknas/A.~lock")); }), 0);
}

} // namespace

} // namespace varno
