// Lists, option groups and the check box, from the keyboard.
#include <gtest/gtest.h>

#include "edit_rig.h"

namespace varno::gui {
namespace {

class EditChoices : public Editing {
  protected:
    static int chosen(Field group, int options) {
        int option = 0;
        for (int i = 1; i <= options; ++i) {
            if (field(group, i).checked()) option = option == 0 ? i : -1;
        }
        return option;
    }
    static void expectChosen(Field group, int options, int expected,
                             std::source_location place = std::source_location::current()) {
        expectSoon(
            program(), expected, [&] { return chosen(group, options); }, place);
    }
    static void expectRow(Field list, int row, std::source_location place = std::source_location::current()) {
        expectSoon(
            program(), row, [&] { return field(list).selectedRow(); }, place);
    }
    // Comes to a control with Tab, as the keyboard does.
    static void tabTo(Field wanted, int index) {
        for (int presses = 0; presses < 60 && program().focused() != field(wanted, index); ++presses)
            tab();
        ASSERT_EQ(program().focused(), field(wanted, index));
    }
    static void expectPassingChangesNothing() {
        // The first time the cover gets its decimals.
        clickInto(field(Field::ktack));
        tab();
        const DesignCase before = saved();
        tabTo(Field::lokt, 0);
        tabTo(Field::initiell, 0);
        EXPECT_FALSE(changed());
        EXPECT_EQ(saved(), before);
    }
    static void expectFireOptions(std::initializer_list<const char*> captions) {
        int i = 0;
        for (const char* caption : captions)
            EXPECT_EQ(text(Field::brandb, ++i), caption);
        for (int option = 1; option <= 4; ++option)
            EXPECT_EQ(field(Field::brandb, option).visible(), option <= i) << option;
    }
};

TEST_F(EditChoices, ListsTakeTheArrowKeysAndAreStoredWhenLeft) {
    open({{17, "1"}, {18, "2"}, {21, "1"}, {22, "2"}});
    struct Row {
        Field list;
        int row;
        std::int16_t DesignCase::*place;
    };
    const Row rows[] = {{Field::aok, 0, &DesignCase::aok},
                        {Field::dok, 1, &DesignCase::dok},
                        {Field::auk, 0, &DesignCase::auk},
                        {Field::duk, 1, &DesignCase::duk}};
    for (const Row& row : rows) {
        clickInto(field(row.list));
        keyboard::press(VK_ESCAPE); // the click has opened it
        keyboard::press(VK_DOWN);
        expectRow(row.list, row.row + 1);
        keyboard::press(VK_DOWN);
        expectRow(row.list, row.row + 2);
        keyboard::press(VK_UP);
        expectRow(row.list, row.row + 1);
        tab();
    }
    const DesignCase stored = saved();
    for (const Row& row : rows)
        EXPECT_EQ(stored.*row.place, row.row + 2);
}

TEST_F(EditChoices, CategoryFollowsTheArrowKeys) {
    open();
    tabTo(Field::lokt, 0);
    keyboard::press(VK_DOWN);
    expectRow(Field::lokt, 1);
    expectText(Field::flast, 1, shown("2.00"));
    keyboard::press(VK_DOWN);
    expectText(Field::flast, 1, shown("3.00"));
    EXPECT_EQ(saved().lokt, 2);
}

TEST_F(EditChoices, EnterClosesAnOpenListAndStays) {
    open({}, "KONTOR.IND");
    tabTo(Field::dok, 0);
    const Control list = field(Field::dok);
    keyboard::press(VK_F4);
    expectSoon(program(), LRESULT{1}, [&] { return list.send(CB_GETDROPPEDSTATE); });
    keyboard::press(VK_UP);
    keyboard::press(VK_RETURN);
    expectSoon(program(), LRESULT{0}, [&] { return list.send(CB_GETDROPPEDSTATE); });
    expectFocus(list);
    expectRow(Field::dok, 2);
    EXPECT_EQ(saved().dok, 3);
}

TEST_F(EditChoices, ConcreteClassIsStoredUnderTheSwedishRulesOnly) {
    open({{16, "4"}});
    clickInto(field(Field::btg));
    field(Field::btg).choose(7);
    tab();
    EXPECT_EQ(saved().btg, 4);
    EXPECT_EQ(field(Field::btg).selectedRow(), 7) << "shown, and dropped";

    open({{3, "1"}, {16, "4"}});
    clickInto(field(Field::btg));
    field(Field::btg).choose(7);
    tab();
    EXPECT_EQ(saved().btg, 8);
}

TEST_F(EditChoices, OptionsTakeTheArrowKeys) {
    open({{11, "1"}, {26, "1"}, {31, "1"}});
    tabTo(Field::lastkomb, 1);
    keyboard::press(VK_DOWN);
    expectChosen(Field::lastkomb, 3, 2);
    expectFocus(field(Field::lastkomb, 2));
    keyboard::press(VK_DOWN);
    expectChosen(Field::lastkomb, 3, 3);
    keyboard::press(VK_UP);
    expectChosen(Field::lastkomb, 3, 2);
    tabTo(Field::kutak, 1);
    keyboard::press(VK_RIGHT);
    expectChosen(Field::kutak, 2, 2);
    tabTo(Field::brukskomb, 1);
    keyboard::press(VK_DOWN);
    expectChosen(Field::brukskomb, 2, 2);
    tab();
    const DesignCase stored = saved();
    EXPECT_EQ(stored.lastkomb, 2);
    EXPECT_EQ(stored.kutak, 2);
    EXPECT_EQ(stored.brukskomb, 2);
}

TEST_F(EditChoices, ClassTakesTheArrowKeys) {
    open({{4, "1"}});
    tabTo(Field::pkl, 1);
    keyboard::press(VK_DOWN);
    expectChosen(Field::pkl, 3, 2);
    keyboard::press(VK_DOWN);
    expectChosen(Field::pkl, 3, 3);
    EXPECT_TRUE(changed());
    EXPECT_EQ(saved().safetyClass(3), 3);
}

TEST_F(EditChoices, PassingThroughChoosesNothing) {
    open({}, "KONTOR.IND");
    expectPassingChangesNothing();
}

TEST_F(EditChoices, PassingThroughKeepsNumbersWithoutARowOrOption) {
    open({{11, "0"}, {17, "9"}, {22, "6"}, {25, "0"}, {26, "7"}, {31, "0"}});
    EXPECT_EQ(chosen(Field::lastkomb, 3), 0);
    EXPECT_EQ(field(Field::aok).selectedRow(), -1);
    expectPassingChangesNothing();
    const DesignCase after = saved();
    EXPECT_EQ(after.lastkomb, 0);
    EXPECT_EQ(after.aok, 9);
    EXPECT_EQ(after.kutak, 7);
    EXPECT_EQ(after.duk, 6);
    EXPECT_EQ(after.brandb, 0);
    EXPECT_EQ(after.brukskomb, 0);
}

// Windows tells of an option that merely gets the focus, and of the one that the arrow keys leave, as of a click.
TEST_F(EditChoices, OptionWithoutATickWasNotChosen) {
    open();
    const DesignCase before = saved();
    for (const auto& [group, option] : {std::pair(Field::lastkomb, 1), {Field::pkl, 3}, {Field::kutak, 2}}) {
        const Control button = field(group, option);
        ASSERT_FALSE(button.checked());
        form().post(WM_COMMAND, MAKEWPARAM(button.id(), BN_CLICKED),
                    reinterpret_cast<LPARAM>(button.handle()));
    }
    settle();
    EXPECT_FALSE(changed());
    EXPECT_EQ(saved(), before);
}

TEST_F(EditChoices, EveryOptionIsStoredAndDisablesTheDiagram) {
    open();
    EXPECT_FALSE(changed());
    EXPECT_TRUE(program().diagramEnabled());
    field(Field::brandb, 3).click();
    expectSoon(program(), false, [] { return program().diagramEnabled(); });
    field(Field::kutak, 2).click();
    field(Field::brukskomb, 2).click();
    field(Field::lastkomb, 1).click();
    settle();
    const DesignCase stored = saved();
    EXPECT_EQ(stored.brandb, 3);
    EXPECT_EQ(stored.kutak, 2);
    EXPECT_EQ(stored.brukskomb, 2);
    EXPECT_EQ(stored.lastkomb, 1);
}

TEST_F(EditChoices, SpaceTicksTheCheckBox) {
    open({{19, "0"}});
    tabTo(Field::kavko, 0);
    keyboard::press(VK_SPACE);
    expectSoon(program(), true, [] { return field(Field::kavko).checked(); });
    EXPECT_TRUE(changed());
    EXPECT_EQ(saved().kavko, 1);
    tabTo(Field::kavko, 0);
    keyboard::press(VK_SPACE);
    expectSoon(program(), false, [] { return field(Field::kavko).checked(); });
    EXPECT_EQ(saved().kavko, 0);
}

TEST_F(EditChoices, FireClassSetsTheCaptionsAndKeepsTheOption) {
    open({{24, "2"}, {25, "4"}});
    expectFireOptions({"100 MJ/m2", "150 MJ/m2", "200 MJ/m2", "250 MJ/m2"});
    expectChosen(Field::brandb, 4, 4);
    field(Field::brandk).choose("Brandteknisk klass");
    expectSoon(program(), std::string(" REI  30 "), [] { return text(Field::brandb, 1); });
    settle();
    expectFireOptions({" REI  30 ", " REI  60 ", " REI  90 "});
    EXPECT_EQ(text(Field::brandb, 4), " REI 120 ");
    EXPECT_TRUE(changed());
    const DesignCase stored = saved();
    EXPECT_EQ(stored.brandk, 1);
    EXPECT_EQ(stored.brandb, 4) << "it stays while its option is hidden";
}

} // namespace
} // namespace varno::gui
