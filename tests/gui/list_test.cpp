// Drop-down lists: what chooses a row, and what only looks like it.
#include <gtest/gtest.h>

#include "driver/mouse.h"
#include "edit_rig.h"

namespace varno::gui {
namespace {

constexpr Field lists[] = {Field::lokt, Field::btg, Field::aok,   Field::dok,
                           Field::auk,  Field::duk, Field::brandk};

class Lists : public Editing {
  protected:
    // A case that was calculated, so that a change shows in the diagram's menu too.
    static DesignCase openCalculated() {
        open({{9, "1"}});
        // The first time the cover gets its decimals.
        clickInto(field(Field::ktack));
        tab();
        const DesignCase before = saved();
        EXPECT_FALSE(changed());
        EXPECT_TRUE(program().diagramEnabled());
        return before;
    }
    static void expectUnchanged(const DesignCase& before) {
        settle();
        EXPECT_TRUE(program().diagramEnabled());
        EXPECT_FALSE(changed());
        EXPECT_EQ(saved(), before);
    }
    // With Tab: a click would open the list.
    static void enterList(const Control& list) {
        for (int presses = 0; presses < 60 && program().focused() != list; ++presses)
            tab();
        ASSERT_EQ(program().focused(), list);
    }
    static bool isOpen(const Control& list) { return list.send(CB_GETDROPPEDSTATE) != 0; }
    static void press(WORD key, const Control& list, bool opened) {
        keyboard::press(key);
        expectSoon(program(), opened, [&] { return isOpen(list); });
    }
};

TEST_F(Lists, WheelOverAClosedListChangesNothing) {
    const DesignCase before = openCalculated();
    for (const Field name : lists) {
        const Control list = field(name);
        const int row = list.selectedRow();
        for (const int notches : {-1, 2}) {
            mouse::wheel(list, notches);
            // Windows sends it to the list below the pointer, others to the one with the focus.
            list.post(WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA), 0);
            settle();
            EXPECT_EQ(list.selectedRow(), row) << static_cast<int>(name);
        }
    }
    expectUnchanged(before);
}

TEST_F(Lists, WheelOverAListWithTheFocusChangesNothing) {
    const DesignCase before = openCalculated();
    for (const Field name : {Field::lokt, Field::aok}) {
        const Control list = field(name);
        enterList(list);
        const int row = list.selectedRow();
        mouse::wheel(list, -1);
        list.post(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        settle();
        EXPECT_EQ(list.selectedRow(), row);
    }
    expectUnchanged(before);
}

TEST_F(Lists, OpenedAndLeftWithEscapeChangesNothing) {
    const DesignCase before = openCalculated();
    for (const Field name : lists) {
        const Control list = field(name);
        const int row = list.selectedRow();
        enterList(list);
        press(VK_F4, list, true);
        keyboard::press(VK_DOWN);
        keyboard::press(VK_DOWN);
        press(VK_ESCAPE, list, false);
        EXPECT_EQ(program().focused(), list);
        EXPECT_EQ(list.selectedRow(), row) << static_cast<int>(name);
    }
    expectUnchanged(before);
}

TEST_F(Lists, OpenedAndClosedOnTheSameRowChangesNothing) {
    const DesignCase before = openCalculated();
    for (const Field name : lists) {
        const Control list = field(name);
        enterList(list);
        press(VK_F4, list, true);
        press(VK_RETURN, list, false);
        press(VK_F4, list, true);
        keyboard::press(VK_DOWN);
        keyboard::press(VK_UP);
        if (list.rows().size() > 1)
            press(VK_F4, list, false);
        else
            press(VK_RETURN, list, false);
    }
    expectUnchanged(before);
}

TEST_F(Lists, ArrowKeyInAListOfOneRowChangesNothing) {
    const DesignCase before = openCalculated();
    const Control list = field(Field::brandk);
    ASSERT_EQ(list.rows().size(), 1u);
    enterList(list);
    keyboard::press(VK_DOWN);
    keyboard::press(VK_UP);
    expectUnchanged(before);
}

TEST_F(Lists, RowChosenInAnOpenListCountsWhenTheListCloses) {
    openCalculated();
    const Control list = field(Field::lokt);
    enterList(list);
    keyboard::pressWith(VK_MENU, VK_DOWN);
    expectSoon(program(), true, [&] { return isOpen(list); });
    keyboard::press(VK_DOWN);
    expectSoon(program(), 2, [&] { return list.selectedRow(); });
    settle();
    EXPECT_TRUE(program().diagramEnabled()) << "nothing is chosen yet";
    press(VK_RETURN, list, false);
    expectText(Field::flast, 1, shown("3.00"));
    EXPECT_FALSE(program().diagramEnabled());
    EXPECT_EQ(saved().lokt, 2);
}

TEST_F(Lists, TabOutOfAnOpenListChooses) {
    openCalculated();
    const Control list = field(Field::lokt);
    enterList(list);
    press(VK_F4, list, true);
    keyboard::press(VK_DOWN);
    tab();
    expectText(Field::flast, 1, shown("3.00"));
    EXPECT_EQ(list.selectedRow(), 2);
    EXPECT_EQ(saved().lokt, 2);
}

TEST_F(Lists, ClickElsewhereTakesTheChoiceBack) {
    const DesignCase before = openCalculated();
    const Control list = field(Field::lokt);
    enterList(list);
    press(VK_F4, list, true);
    keyboard::press(VK_DOWN);
    expectSoon(program(), 2, [&] { return list.selectedRow(); });
    field(Field::konsh).clickInto();
    expectFocus(field(Field::konsh));
    EXPECT_EQ(list.selectedRow(), 1);
    expectUnchanged(before);
}

} // namespace
} // namespace varno::gui
