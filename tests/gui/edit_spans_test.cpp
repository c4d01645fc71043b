// The number of spans and the grid, edited with keys and the spin button.
#include <gtest/gtest.h>

#include "edit_rig.h"

namespace varno::gui {
namespace {

class EditSpans : public Editing {
  protected:
    static constexpr Field rows[] = {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl};

    static void expectSpans(int count) {
        for (int span = 1; span <= 10; ++span) {
            for (const Field row : rows)
                EXPECT_EQ(field(row, span).visible(), span <= count) << "span " << span;
        }
        EXPECT_TRUE(field(Field::upl, 0).visible());
        EXPECT_FALSE(field(Field::upl, count).enabled()) << "the right end support";
        EXPECT_EQ(text(Field::upl, count), shown("0.000"));
        for (int support = 1; support < count; ++support)
            EXPECT_TRUE(field(Field::upl, support).enabled()) << "inner support " << support;
    }
    // Loads that are all the same now, while the sketch shows the three of the file: choosing a category does
    // not redraw it.
    static Picture staleLoads() {
        open({{13, cells({"1.000", "2.000", "4.000"})}});
        const Picture before = grab(loadPicture());
        field(Field::lokt).choose(3);
        expectText(Field::flast, 1, shown("3.00"));
        EXPECT_EQ(grab(loadPicture()), before) << "a category alone redraws nothing";
        return before;
    }
    static void expectRedrawn(const Picture& before) {
        EXPECT_TRUE(program().until([&] { return !(grab(loadPicture()) == before); }))
            << "the sketch is redrawn";
    }
};

TEST_F(EditSpans, TenAreTheMost) {
    open({}, "TIOFACK.IND");
    spinTo(+1, "10");
    clickInto(field(Field::nfack));
    keyboard::press(VK_UP);
    tab();
    EXPECT_EQ(text(Field::nfack), "10");
    expectSpans(10);
    EXPECT_FALSE(changed());
}

TEST_F(EditSpans, OneIsTheLeast) {
    open({{5, "1"}, {6, "5.500  "}});
    spinTo(-1, "1");
    clickInto(field(Field::nfack));
    keyboard::press(VK_DOWN);
    tab();
    EXPECT_EQ(text(Field::nfack), "1");
    expectSpans(1);
    EXPECT_FALSE(changed());
    spinTo(+1, "2");
    expectSpans(2);
    EXPECT_TRUE(changed());
}

TEST_F(EditSpans, ValueIsCarriedToTheSpansBehind) {
    open();
    enter(Field::spv, 2, "6,5");
    expectText(Field::spv, 2, shown("6.50"));
    EXPECT_EQ(text(Field::spv, 3), shown("6.50"));
    EXPECT_EQ(text(Field::spv, 1), shown("5.50"));
    enter(Field::plast, 3, "1.25");
    expectText(Field::plast, 3, shown("1.25"));
    EXPECT_EQ(text(Field::plast, 2), shown("0.50"));
    const DesignCase stored = saved();
    EXPECT_EQ(stored.spv(1), 5.5f);
    EXPECT_EQ(stored.spv(2), 6.5f);
    EXPECT_EQ(stored.spv(3), 6.5f);
    EXPECT_EQ(stored.plast(2), 0.5f);
    EXPECT_EQ(stored.plast(3), 1.25f);
}

TEST_F(EditSpans, StoredValueAgainIsOnlyNormalised) {
    const Picture before = staleLoads();
    enter(Field::spv, 3, "4");
    expectRedrawn(before);

    const Picture again = staleLoads();
    enter(Field::spv, 2, "5,5");
    expectText(Field::spv, 2, shown("5.50"));
    enter(Field::plast, 1, ".5");
    expectText(Field::plast, 1, shown("0.50"));
    EXPECT_EQ(grab(loadPicture()), again) << "no refresh";
    EXPECT_TRUE(changed()) << "typing marks, whatever comes of it";
}

TEST_F(EditSpans, StoredValueAgainIsNotCarried) {
    open({{6, cells({"4.000", "4.000", "6.000"})}});
    enter(Field::spv, 2, "4");
    expectText(Field::spv, 2, shown("4.00"));
    EXPECT_EQ(text(Field::spv, 3), shown("6.00"));
    EXPECT_EQ(saved().spv(3), 6.0f);
}

TEST_F(EditSpans, RemovedSpansComeBackWithoutTheirSupports) {
    open({{5, "4"},
          {6, cells({"4.000", "5.000", "6.000", "7.000"})},
          {7, cells({"0.150", "0.160", "0.170", "0.180"})},
          {8, cells({"0.000", "0.100", "0.200", "0.300", "0.000"}, 6)},
          {12, cells({"1.000", "1.100", "1.200", "1.300"})},
          {13, cells({"2.000", "2.100", "2.200", "2.300"})}});
    spinTo(-1, "3");
    expectSpans(3);
    spinTo(-1, "2");
    expectSpans(2);
    spinTo(+1, "3");
    spinTo(+1, "4");
    expectSpans(4);
    EXPECT_EQ(text(Field::spv, 3), shown("6.00"));
    EXPECT_EQ(text(Field::spv, 4), shown("7.00"));
    EXPECT_EQ(text(Field::ptjl, 4), shown("0.180"));
    EXPECT_EQ(text(Field::plast, 3), shown("1.20"));
    EXPECT_EQ(text(Field::flast, 4), shown("2.30"));
    EXPECT_EQ(text(Field::upl, 1), shown("0.100"));
    for (int support = 2; support <= 4; ++support)
        EXPECT_EQ(text(Field::upl, support), shown("0.000")) << support;
    const DesignCase stored = saved();
    EXPECT_EQ(stored.spv(4), 7.0f);
    EXPECT_EQ(stored.upl(1), 0.1f);
    EXPECT_EQ(stored.upl(2), 0.0f);
    EXPECT_EQ(stored.upl(3), 0.0f);
}

TEST_F(EditSpans, SupportWidthIsCarriedToTheInnerSupports) {
    open({}, "KONTOR.IND");
    enter(Field::upl, 2, "0,3");
    expectText(Field::upl, 2, shown("0.300"));
    EXPECT_EQ(text(Field::upl, 1), shown("0.150"));
    EXPECT_EQ(text(Field::upl, 3), shown("0.300"));
    EXPECT_EQ(text(Field::upl, 4), shown("0.300"));
    expectSpans(5);
    const DesignCase stored = saved();
    EXPECT_EQ(stored.upl(4), 0.3f);
    EXPECT_EQ(stored.upl(5), 0.0f);
}

TEST_F(EditSpans, ThicknessLeavesTheLoadsOfTheSketch) {
    const Picture before = staleLoads();
    enter(Field::ptjl, 1, "0,25");
    expectText(Field::ptjl, 1, shown("0.250"));
    EXPECT_EQ(text(Field::ptjl, 3), shown("0.250"));
    EXPECT_EQ(grab(loadPicture()), before);
    EXPECT_EQ(saved().ptjl(3), 0.25f);
    enter(Field::konsh, "1");
    expectRedrawn(before);
}

TEST_F(EditSpans, CountTextWaitsForTheNextStep) {
    open();
    enter(Field::nfack, "5");
    expectSpans(3);
    EXPECT_FALSE(changed()) << "the count box has no rule of its own";
    spinTo(+1, "6");
    expectSpans(6);
    EXPECT_EQ(saved().nfack, 6);
}

TEST_F(EditSpans, ArrowKeysStepTheCount) {
    open();
    clickInto(field(Field::nfack));
    keyboard::press(VK_UP);
    expectText(Field::nfack, "4");
    keyboard::press(VK_UP);
    expectText(Field::nfack, "5");
    expectFocus(field(Field::nfack));
    keyboard::press(VK_DOWN);
    expectText(Field::nfack, "4");
    expectFocus(field(Field::nfack));
    expectSpans(4);
    EXPECT_EQ(saved().nfack, 4);
}

TEST_F(EditSpans, StepStoresWhatIsBeingTyped) {
    open();
    type(field(Field::spv, 3), "7,5");
    spinTo(+1, "4");
    expectText(Field::spv, 3, shown("7.50"));
    expectFocus(field(Field::rubrik));
    EXPECT_EQ(saved().spv(3), 7.5f);
}

} // namespace
} // namespace varno::gui
