#include "shell/messages_in_turn.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace varno {
namespace {

struct CountedPosts : ErrorPost {
    void postRunTimeError() override { ++posts; }
    int posts = 0;
};

class MessagesInTurnTest : public ::testing::Test {
  protected:
    std::vector<std::string> shown() const {
        std::vector<std::string> texts;
        for (const auto& box : system.shown)
            texts.push_back(box.text);
        return texts;
    }

    testing::FakeMessageBoxes system;
    CountedPosts post;
    MessagesInTurn messages{system, post};
    const RunTimeError first{11};
    const RunTimeError second{62};
};

TEST_F(MessagesInTurnTest, ErrorWaitsForItsTurnOfTheMessageLoop) {
    messages.report(first);
    EXPECT_EQ(post.posts, 1);
    EXPECT_TRUE(system.shown.empty());
    messages.showNext();
    EXPECT_EQ(shown(), (std::vector{first.message()}));
    EXPECT_EQ(system.shown.at(0).style, msgError);
    messages.showNext();
    EXPECT_EQ(system.shown.size(), 1u) << "shown once";
}

TEST_F(MessagesInTurnTest, ErrorIsNotShownOverAnOpenBoxButAfterIt) {
    messages.report(first);
    std::size_t during = 0;
    system.whileShown = [&] {
        messages.showNext();
        during = system.shown.size();
        system.whileShown = nullptr;
    };
    messages.tell(second.message());
    EXPECT_EQ(during, 1u);
    EXPECT_EQ(post.posts, 2) << "the first post was spent in the box's own loop";
    messages.showNext();
    EXPECT_EQ(shown(), (std::vector{second.message(), first.message()}));
}

TEST_F(MessagesInTurnTest, ErrorsComeInTheOrderTheyWereReportedIn) {
    messages.report(first);
    messages.report(second);
    system.whileShown = [&] { messages.showNext(); };
    messages.showNext();
    messages.showNext();
    EXPECT_EQ(shown(), (std::vector{first.message(), second.message()}));
}

} // namespace
} // namespace varno
