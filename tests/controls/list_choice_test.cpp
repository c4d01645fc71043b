#include "controls/list_choice.h"

#include <gtest/gtest.h>

namespace varno {

void PrintTo(ListChoice::Outcome outcome, std::ostream* out) {
    *out << (outcome == ListChoice::Outcome::nothing  ? "nothing"
             : outcome == ListChoice::Outcome::chosen ? "chosen"
                                                      : "taken back");
}

namespace {

constexpr auto nothing = ListChoice::Outcome::nothing;
constexpr auto chosen = ListChoice::Outcome::chosen;
constexpr auto takenBack = ListChoice::Outcome::takenBack;

class Choices : public ::testing::Test {
  protected:
    Choices() { list.shown(2); }
    ListChoice list;
};

TEST_F(Choices, ArrowKeysInAClosedListChoose) {
    EXPECT_EQ(list.told(3), chosen);
    EXPECT_EQ(list.told(4), chosen);
    EXPECT_EQ(list.told(3), chosen);
    EXPECT_EQ(list.row(), 3);
}

TEST_F(Choices, SameRowIsNoChoice) {
    EXPECT_EQ(list.told(2), nothing);
    list.shown(3);
    EXPECT_EQ(list.told(3), nothing) << "the program selected it";
    EXPECT_EQ(list.told(2), chosen);
}

TEST_F(Choices, OpenListChoosesWhenItCloses) {
    list.opened();
    EXPECT_EQ(list.told(3), nothing);
    EXPECT_EQ(list.told(4), nothing);
    EXPECT_EQ(list.closed(4), chosen);
    EXPECT_EQ(list.told(4), nothing) << "told once more after it closed";
}

TEST_F(Choices, RowToldOnlyAfterTheListClosed) {
    list.opened();
    EXPECT_EQ(list.closed(2), nothing);
    EXPECT_EQ(list.told(5), chosen);
}

TEST_F(Choices, OpenedAndClosedOnTheSameRow) {
    list.opened();
    EXPECT_EQ(list.told(3), nothing);
    EXPECT_EQ(list.told(2), nothing);
    EXPECT_EQ(list.closed(2), nothing);
}

TEST_F(Choices, CancelledListGoesBack) {
    list.opened();
    EXPECT_EQ(list.told(4), nothing);
    list.cancelled();
    EXPECT_EQ(list.closed(4), takenBack);
    EXPECT_EQ(list.row(), 2);
    EXPECT_EQ(list.told(2), nothing);

    list.opened();
    list.cancelled();
    EXPECT_EQ(list.closed(2), nothing);
    EXPECT_EQ(list.told(3), chosen) << "a cancelled list is over";
}

TEST_F(Choices, ListWithNothingSelected) {
    list.shown(-1);
    list.opened();
    list.cancelled();
    EXPECT_EQ(list.closed(0), takenBack);
    EXPECT_EQ(list.row(), -1);
    EXPECT_EQ(list.told(0), chosen);
}

} // namespace
} // namespace varno
