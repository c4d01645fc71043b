// Ctrl+Z and Ctrl+Y.
#include <gtest/gtest.h>

#include "line_load_rig.h"

namespace varno::gui {
namespace {

class EditSteps : public LineLoads {
  protected:
    static void back() { keyboard::pressWith(VK_CONTROL, 'Z'); }
    static void forward() { keyboard::pressWith(VK_CONTROL, 'Y'); }
};

TEST_F(EditSteps, ANumberGoesBackWithTheCellsItWasCarriedTo) {
    open({{6, cells({"4.005", "5.000", "6.000"})}});
    const DesignCase before = saved();
    enter(Field::spv, 1, "7,5");
    expectText(Field::spv, 3, shown("7.50"));
    enter(Field::konsh, "1,25");
    back();
    expectText(Field::konsh, shown("0.00"));
    back();
    expectText(Field::spv, 1, shown("4.01"));
    expectText(Field::spv, 2, shown("5.00"));
    expectText(Field::spv, 3, shown("6.00"));
    EXPECT_TRUE(changed()) << "a step marks the case";
    EXPECT_FALSE(program().diagramEnabled());
    EXPECT_EQ(saved(), before);
    forward();
    expectText(Field::spv, 3, shown("7.50"));
    forward();
    expectText(Field::konsh, shown("1.25"));
    EXPECT_EQ(saved().spv(3), 7.5f);
}

TEST_F(EditSteps, InABoxThatIsBeingTypedInTheyAreTheBoxsOwn) {
    open();
    enter(Field::konsv, "1,5");
    const Control box = field(Field::konsh);
    type(box, "9");
    back();
    expectText(Field::konsh, shown("0.00"));
    EXPECT_EQ(text(Field::konsv), shown("1.50"));
    expectFocus(box);
    // Nothing of what was typed is left in it, so the next one is the case's.
    back();
    expectText(Field::konsv, shown("0.00"));
    expectFocus(box);
}

TEST_F(EditSteps, TheFocusLeavesABoxThatGoes) {
    open();
    spinTo(1, "4");
    clickInto(field(Field::spv, 4));
    back();
    expectText(Field::nfack, "3");
    expectSoon(program(), false, [] { return field(Field::spv, 4).visible(); });
    expectFocus(field(Field::rubrik));
    forward();
    expectText(Field::nfack, "4");
    expectSoon(program(), true, [] { return field(Field::spv, 4).visible(); });
}

TEST_F(EditSteps, ChoicesAndTheFlagGoBack) {
    open();
    const Control option = field(Field::lastkomb, 1);
    option.click();
    expectSoon(program(), true, [&] { return option.checked(); });
    clickInto(field(Field::aok));
    keyboard::press(VK_ESCAPE); // the click has opened it
    const int before = field(Field::aok).selectedRow();
    keyboard::press(before == 0 ? VK_DOWN : VK_UP);
    expectSoon(program(), true, [&] { return field(Field::aok).selectedRow() != before; });
    // The list keeps the focus: the row is the last edit all the same.
    back();
    expectSoon(program(), before, [] { return field(Field::aok).selectedRow(); });
    EXPECT_TRUE(option.checked());
    back();
    expectSoon(program(), false, [&] { return option.checked(); });
    EXPECT_TRUE(field(Field::lastkomb, 3).checked());
    clickInto(field(Field::rubrik));
    mainItem(idFlag + 2).click();
    expectSoon(program(), true, [] { return mainItem(idFlag + 3).visible(); });
    back();
    expectSoon(program(), true, [] { return mainItem(idFlag + 2).visible(); });
}

TEST_F(EditSteps, LineLoadsGoBackInTheirWindowAndFromTheForm) {
    open({{32, "1"}, {33, loadLine("1", "2.500", "8.500")}});
    const Editor editor = openEditor();
    enter(editor.box(LineLoadBox::lllast, 1), "77");
    count(editor, 1, "2");
    back();
    expectBox(editor, LineLoadBox::nllast, 0, "1");
    expectRow(editor, 2, "-");
    back();
    expectRow(editor, 1, "1 2.50 8.50");
    forward();
    expectRow(editor, 1, "1 2.50 77.00");
    close(editor);
    back();
    const Editor again = openEditor();
    expectRow(again, 1, "1 2.50 8.50");
    close(again);
    EXPECT_EQ(saved().lllast(1), 8.5f);
}

TEST_F(EditSteps, AnotherCaseHasNothingToTakeBack) {
    open();
    enter(Field::konsv, "1,5");
    saved(); // a case that is saved can still be taken back
    back();
    expectText(Field::konsv, shown("0.00"));
    forward();
    expectText(Field::konsv, shown("1.50"));
    open();
    back();
    move(VK_TAB);
    EXPECT_EQ(text(Field::konsv), shown("0.00"));
    EXPECT_FALSE(changed());
}

TEST_F(EditSteps, TheTitleGoesBack) {
    open();
    const std::string before = text(Field::rubrik);
    enter(Field::rubrik, "Hus 7");
    enter(Field::konsv, "1,5");
    back();
    back();
    expectText(Field::rubrik, before);
    forward();
    expectText(Field::rubrik, "Hus 7");
}

} // namespace
} // namespace varno::gui
