#include "controls/activation.h"

#include <gtest/gtest.h>

#include <vector>

namespace varno {
namespace {

class Window : public FieldWindow {
  public:
    void leaveKept(int field) override { left.push_back(field); }
    std::vector<int> left;
};

using Fields = std::vector<int>;

class Activations : public ::testing::Test {
  protected:
    Activations() {
        activation.activated(&main);
        activation.enters(main, 1);
    }
    // What Windows tells of a click into another program, and of the way back.
    void goAway(Window& window, int field) {
        activation.deactivated(true);
        EXPECT_FALSE(activation.leaves(window, field)) << "the field is not left";
    }
    bool goTo(const Window& window) {
        activation.deactivated(false);
        return activation.activated(&window);
    }

    Window main;
    Window editor;
    Activation activation;
};

TEST_F(Activations, AnotherFieldOrWindowOfTheProgramLeavesTheField) {
    EXPECT_TRUE(activation.leaves(main, 1));
    EXPECT_TRUE(activation.enters(main, 2));
    activation.deactivated(false);
    EXPECT_TRUE(activation.leaves(main, 2));
    EXPECT_FALSE(activation.activated(&editor));
    EXPECT_EQ(main.left, Fields{}) << "told at once";
}

TEST_F(Activations, AnotherProgramLeavesNothing) {
    goAway(main, 1);
    EXPECT_TRUE(activation.activated(&main)) << "the window comes back";
    EXPECT_FALSE(activation.enters(main, 1)) << "the field was never left";
    EXPECT_TRUE(activation.leaves(main, 1)) << "now it is";
    EXPECT_EQ(main.left, Fields{});
}

TEST_F(Activations, ComingBackToAnotherFieldLeavesTheOneBefore) {
    goAway(main, 1);
    EXPECT_TRUE(activation.activated(&main));
    EXPECT_TRUE(activation.enters(main, 2));
    EXPECT_EQ(main.left, Fields{1});
    activation.enters(main, 3);
    EXPECT_EQ(main.left, Fields{1}) << "once";
}

TEST_F(Activations, ComingBackToAnotherWindowLeavesTheField) {
    goTo(editor);
    goTo(main);
    goAway(main, 1);
    EXPECT_FALSE(activation.activated(&editor));
    EXPECT_EQ(main.left, Fields{1});
    EXPECT_EQ(editor.left, Fields{});
}

TEST_F(Activations, TheSameNumberInAnotherWindowIsAnotherField) {
    goAway(main, 1);
    EXPECT_TRUE(activation.enters(editor, 1));
    EXPECT_EQ(main.left, Fields{1});
}

TEST_F(Activations, MainWindowComesAnewAfterAWindowOfTheProgram) {
    EXPECT_FALSE(goTo(editor));
    EXPECT_FALSE(goTo(main));
}

TEST_F(Activations, MessageBoxComesBetweenWithoutATrace) {
    activation.deactivated(false);
    EXPECT_TRUE(activation.activated(&main));
}

TEST_F(Activations, WayOverAnotherProgramIsAWayAllTheSame) {
    goTo(editor);
    activation.enters(editor, 4);
    goAway(editor, 4);
    EXPECT_FALSE(activation.activated(&main)) << "after the editor";
    EXPECT_EQ(editor.left, Fields{4});
}

TEST_F(Activations, WindowThatEndsIsNotToldAnyMore) {
    goAway(main, 1);
    activation.forget(editor);
    activation.forget(main);
    EXPECT_FALSE(activation.activated(&editor));
    EXPECT_EQ(main.left, Fields{});
}

} // namespace
} // namespace varno
