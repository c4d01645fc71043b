#include <gtest/gtest.h>

#include "lineloads/line_load_rig.h"
#include "support/case_files.h"

namespace varno::testing {
namespace {

class BothEditors : public ::testing::TestWithParam<const LineLoadSet*> {
  protected:
    LineLoadRig rig{*GetParam()};
};

INSTANTIATE_TEST_SUITE_P(LineLoads, BothEditors, ::testing::Values(&caseLineLoads, &freeLineLoads),
                         [](const auto& tested) {
                             return std::string(tested.param == &caseLineLoads ? "Case" : "Free");
                         });

// The shaft of the last arrow drawn.
LineDrawn lastShaft(const LineLoadRig& rig) {
    const std::vector<Drawn>& drawn = rig.picture.loadPicture.drawn();
    return std::get<LineDrawn>(drawn.at(drawn.size() - 3));
}

TEST_P(BothEditors, OpenWithTheStoredLoads) {
    rig.editor.opened();
    EXPECT_EQ(rig.text(LineLoadBox::nllast), "2");
    EXPECT_EQ(rig.view.rows(), "1 2");
    EXPECT_EQ(rig.shownRow(1), "1/1.50/10.00");
    EXPECT_EQ(rig.shownRow(2), "3/2.25/1234.00");
    EXPECT_EQ(rig.view.shown, 1);
    EXPECT_TRUE(rig.window.wasBusy);
    EXPECT_FALSE(rig.window.busy);
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_EQ(rig.refreshes(), 0);
}

TEST_P(BothEditors, OpenWithoutARowWhenThereIsNoLoad) {
    for (const int none : {0, -3}) {
        LineLoadRig empty(*GetParam());
        empty.count() = static_cast<std::int16_t>(none);
        empty.open();
        EXPECT_EQ(empty.view.rows(), "");
        EXPECT_EQ(empty.text(LineLoadBox::nllast), std::to_string(none));
        EXPECT_EQ(empty.shownRow(1), "//");
    }
}

TEST_P(BothEditors, DoNotOpenWithMoreLoadsThanThereIsRoomFor) {
    for (const int tooMany : {6, 32767}) {
        rig.count() = static_cast<std::int16_t>(tooMany);
        EXPECT_EQ(errorOf([&] { rig.editor.opened(); }), errSubscriptOutOfRange);
        EXPECT_EQ(rig.view.shown, 0);
        EXPECT_FALSE(rig.window.busy);
    }
    rig.count() = 5;
    rig.open();
    EXPECT_EQ(rig.view.rows(), "1 2 3 4 5");
    EXPECT_EQ(rig.shownRow(5), "0/0.00/0.00");
}

TEST_P(BothEditors, CutASpanNumberAt15AndDrawItBeyondTheSlab) {
    for (int span = 4; span <= 15; ++span)
        rig.designCase.spv(span) = static_cast<float>(span);
    rig.count() = 1;
    rig.open();
    rig.edit(spanBox(1), "20");
    EXPECT_EQ(rig.text(LineLoadBox::llfnr, 1), "15");
    EXPECT_EQ(rig.span(1), 15);
    EXPECT_EQ(rig.refreshes(), 1);
    EXPECT_FALSE(rig.document.dataChanged);
    // 560 twips per metre; spans 4..14 add up to 99 m behind the slab's 15 m, the load stands 1.5 m further.
    const double x = (15 + 99 + 1.5) * 560;
    EXPECT_EQ(lastShaft(rig), (LineDrawn{{x, 800}, {x, 100}, rig.set.hasMultipliers ? green : red, 2}));
}

TEST_P(BothEditors, TakeAnySpanNumberUpTo15) {
    rig.open();
    const struct {
        const char* typed;
        const char* shown;
        std::int16_t stored;
    } rows[] = {{"15", "15", 15},    {"7", "7", 7},     {"2,5", "3", 3}, {"4.4", "4", 4},
                {"-2", "-2", -2},    {"-0.4", "0", 0},  {"abc", "0", 0}, {"15.2", "15", 15},
                {"1e999", "15", 15}, {"3 fack", "3", 3}};
    for (const auto& row : rows) {
        rig.edit(spanBox(2), row.typed);
        EXPECT_EQ(rig.span(2), row.stored) << row.typed;
        if (row.typed != std::string("abc")) { // reads as the 0 that is stored
            EXPECT_EQ(rig.text(LineLoadBox::llfnr, 2), row.shown) << row.typed;
        }
    }
}

TEST_P(BothEditors, CutASpanNumberThatIsStoredAs15WithoutDrawing) {
    rig.span(1) = 15;
    rig.open();
    rig.edit(spanBox(1), "99");
    EXPECT_EQ(rig.text(LineLoadBox::llfnr, 1), "15");
    EXPECT_EQ(rig.refreshes(), 0);
}

TEST_P(BothEditors, TakeADistanceWithAComma) {
    rig.open();
    rig.edit(distanceBox(1), "2,5");
    EXPECT_EQ(rig.distance(1), 2.5f);
    EXPECT_EQ(rig.text(LineLoadBox::avst, 1), "2.50");
    EXPECT_EQ(rig.refreshes(), 1);

    LineLoadRig swedish(*GetParam(), swedishSigns);
    swedish.open();
    EXPECT_EQ(swedish.shownRow(1), "1/1,50/10,00");
    swedish.edit(distanceBox(1), "2.5");
    EXPECT_EQ(swedish.text(LineLoadBox::avst, 1), "2,50");
    EXPECT_EQ(swedish.distance(1), 2.5f);
}

TEST_P(BothEditors, KeepTwoDecimalsOfADistanceAndCheckNoRange) {
    rig.open();
    rig.edit(distanceBox(1), "1.005");
    EXPECT_EQ(rig.text(LineLoadBox::avst, 1), "1.01");
    EXPECT_EQ(rig.distance(1), 1.01f);
    rig.edit(distanceBox(1), "-3");
    EXPECT_EQ(rig.distance(1), -3.0f);
    rig.edit(distanceBox(1), "1e6");
    EXPECT_EQ(rig.text(LineLoadBox::avst, 1), "1000000.00");
    EXPECT_EQ(rig.distance(1), 1e6f);
}

TEST_P(BothEditors, GroupTheThousandsOfALoad) {
    rig.open();
    rig.edit(loadBox(1), "1234,567");
    EXPECT_EQ(rig.text(LineLoadBox::lllast, 1), "1,234.57");
    EXPECT_EQ(rig.load(1), 1234.57f);
    rig.edit(loadBox(1), "-1234567");
    EXPECT_EQ(rig.text(LineLoadBox::lllast, 1), "-1,234,567.00");
    EXPECT_EQ(rig.load(1), -1234567.0f);
    rig.edit(loadBox(1), "12.5");
    EXPECT_EQ(rig.text(LineLoadBox::lllast, 1), "12.50");
}

TEST_P(BothEditors, DrawANegativeLoadUpwards) {
    rig.open();
    rig.edit(loadBox(2), "-5"); // half of the first load, the other way
    const double x = (5 + 5 + 2.25) * 560;
    EXPECT_EQ(lastShaft(rig), (LineDrawn{{x, 800}, {x, 1150}, rig.set.hasMultipliers ? green : red, 2}));
}

TEST_P(BothEditors, DoNotReadAGroupedLoadAgain) {
    for (const NumberLocale& locale : {NumberLocale{}, swedishSigns, NumberLocale{",", "."}}) {
        LineLoadRig r(*GetParam(), locale);
        r.open();
        r.edit(loadBox(1), "1234");
        EXPECT_EQ(r.load(1), 1234.0f);
        r.visit(loadBox(1));
        r.visit(loadBox(1));
        EXPECT_EQ(r.load(1), 1234.0f);
        EXPECT_EQ(r.refreshes(), 1);
    }
}

TEST_P(BothEditors, ShowALoadWithoutGroupingWhileItHasTheFocus) {
    for (const NumberLocale& locale : {NumberLocale{}, swedishSigns, NumberLocale{",", "."}}) {
        LineLoadRig r(*GetParam(), locale);
        r.open();
        r.edit(loadBox(1), "1234567");
        const std::string grouped = r.text(LineLoadBox::lllast, 1);
        r.view.focus(loadBox(1));
        const std::string plain = r.text(LineLoadBox::lllast, 1);
        EXPECT_EQ(plain, "1234567" + locale.decimal + "00");
        r.view.focus(loadCountBox);
        EXPECT_EQ(r.text(LineLoadBox::lllast, 1), grouped) << "left alone";
        r.edit(loadBox(1), plain.substr(0, plain.size() - 2) + "25");
        EXPECT_EQ(r.load(1), 1234567.25f);
    }
}

TEST_P(BothEditors, ReadANumberTypedOverItsOwnText) {
    rig.setRow(1, 2, 1.125f, 9.876f); // shown as 1.13 and 9.88
    rig.open();
    rig.edit(distanceBox(1), "1.13");
    rig.edit(loadBox(1), "9.88");
    EXPECT_EQ(rig.distance(1), 1.13f);
    EXPECT_EQ(rig.load(1), 9.88f);
    EXPECT_EQ(rig.refreshes(), 2);
}

TEST_P(BothEditors, DoNothingForAFieldThatIsOnlyVisited) {
    rig.setRow(1, 2, 1.125f, 9.876f); // more decimals than are shown
    rig.open();
    const DesignCase before = rig.designCase;
    for (int row = 1; row <= 5; ++row) {
        rig.visit(spanBox(row));
        rig.visit(distanceBox(row));
        rig.visit(loadBox(row));
    }
    EXPECT_EQ(rig.designCase, before);
    EXPECT_EQ(rig.refreshes(), 0);
    EXPECT_FALSE(rig.document.dataChanged);
}

TEST_P(BothEditors, DoNothingForTheSameNumberInOtherWords) {
    rig.open();
    rig.edit(distanceBox(1), "1,5");
    rig.edit(loadBox(1), "+1e1 kN");
    rig.edit(spanBox(1), "1.0");
    EXPECT_EQ(rig.refreshes(), 0);
    EXPECT_EQ(rig.shownRow(1), "1.0/1,5/+1e1 kN");
    // 5.3 is no single: typed again it is the stored one all the same.
    rig.edit(distanceBox(1), "5.3");
    rig.edit(distanceBox(1), "5,3");
    EXPECT_EQ(rig.refreshes(), 1);
}

TEST_P(BothEditors, DoNotMarkTheCaseWhenARowIsEdited) {
    rig.open();
    rig.edit(spanBox(1), "2");
    rig.edit(distanceBox(1), "2");
    rig.edit(loadBox(1), "2");
    EXPECT_EQ(rig.refreshes(), 3);
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_TRUE(rig.window.diagram);
}

TEST_P(BothEditors, StoreNothingOfANumberThatNoTypeHolds) {
    rig.open();
    const DesignCase before = rig.designCase;
    const std::pair<LineLoadControl, const char*> overflows[] = {
        {spanBox(1), "-40000"}, {spanBox(1), "-1e999"},    {distanceBox(1), "1e39"},
        {loadBox(1), "-1e39"},  {distanceBox(1), "1e999"}, {loadBox(1), "3.41e38"}};
    for (const auto& [control, typed] : overflows) {
        rig.view.focused = loadCountBox;
        const std::string stored = rig.view.text(control);
        rig.type(control, typed);
        EXPECT_EQ(errorOf([&] { rig.editor.left(control); }), errOverflow) << typed;
        EXPECT_EQ(rig.view.text(control), stored) << "screen and record agree";
        EXPECT_EQ(rig.view.returnedTo, control);
    }
    EXPECT_EQ(rig.designCase, before);
    EXPECT_EQ(rig.refreshes(), 0);
}

TEST_P(BothEditors, StoreAndShowBeforeTheSketchFails) {
    rig.open();
    rig.designCase.nfack = 16;
    EXPECT_EQ(errorOf([&] { rig.edit(loadBox(1), "1500"); }), errSubscriptOutOfRange);
    EXPECT_EQ(rig.load(1), 1500.0f);
    EXPECT_EQ(rig.text(LineLoadBox::lllast, 1), "1,500.00");
}

TEST_P(BothEditors, FocusTheFirstSpanNumberOnABackgroundClick) {
    rig.open();
    rig.editor.backgroundClicked();
    EXPECT_EQ(rig.view.focused, spanBox(1));
    rig.view.focused = loadCountBox;
    rig.count() = 0;
    rig.editor.caseRead();
    rig.editor.backgroundClicked();
    EXPECT_EQ(rig.view.focused, loadCountBox) << "the row is hidden";
}

TEST_P(BothEditors, LayoutStoresWhatIsBeingTypedAndCloses) {
    rig.open();
    rig.type(distanceBox(1), "4");
    rig.editor.layout();
    EXPECT_EQ(rig.distance(1), 4.0f);
    EXPECT_EQ(rig.view.closed, 1);
    rig.editor.opened();
    EXPECT_EQ(rig.shownRow(1), "1/4.00/10.00");
}

TEST_P(BothEditors, OpenedTwiceComesForwardAsItStands) {
    rig.open();
    rig.type(distanceBox(1), "4");
    rig.editor.opened();
    EXPECT_EQ(rig.text(LineLoadBox::avst, 1), "4");
    EXPECT_EQ(rig.view.shown, 2);
}

TEST_P(BothEditors, ShowAnotherCaseWhenItIsRead) {
    rig.editor.caseRead();
    EXPECT_EQ(rig.text(LineLoadBox::nllast), "") << "a closed window shows nothing";
    rig.open();
    rig.count() = 3;
    rig.distance(1) = 9;
    rig.editor.caseRead();
    EXPECT_EQ(rig.view.rows(), "1 2 3");
    EXPECT_EQ(rig.shownRow(1), "1/9.00/10.00");
    EXPECT_EQ(rig.shownRow(3), "2/0.50/-4.00");
    EXPECT_EQ(rig.refreshes(), 0);
}

TEST_P(BothEditors, ShowWhatTheyCanOfADamagedCaseAndLeaveTheErrorToTheSketch) {
    rig.open();
    rig.count() = 7;
    rig.distance(5) = 9;
    EXPECT_EQ(errorOf([&] { rig.editor.caseRead(); }), 0) << "the sketch is still to be drawn";
    EXPECT_EQ(rig.text(LineLoadBox::nllast), "7");
    EXPECT_EQ(rig.view.rows(), "1 2 3 4 5");
    EXPECT_TRUE(rig.shownRow(5).find("/9.00/") != std::string::npos) << rig.shownRow(5);
    EXPECT_EQ(errorOf([&] { rig.slab.fullRefresh(); }), errSubscriptOutOfRange);
}

TEST_P(BothEditors, RefuseARowThatTheyDoNotHave) {
    rig.open();
    for (const int row : {-1, 6}) {
        EXPECT_EQ(errorOf([&] { rig.editor.left({LineLoadBox::avst, row}); }), errSubscriptOutOfRange);
    }
}

TEST(FreeLineLoads, FormatTheirMultipliersAndKeepNone) {
    LineLoadRig rig(freeLineLoads, swedishSigns);
    rig.open();
    const DesignCase before = rig.designCase;
    for (int k = 1; k <= 4; ++k)
        EXPECT_EQ(rig.text(LineLoadBox::multiplier, k), "");
    rig.visit(multiplierBox(1));
    EXPECT_EQ(rig.text(LineLoadBox::multiplier, 1), "") << "left empty as it was shown";
    rig.edit(multiplierBox(1), "1.355");
    EXPECT_EQ(rig.text(LineLoadBox::multiplier, 1), "1,36");
    rig.edit(multiplierBox(4), "x");
    EXPECT_EQ(rig.text(LineLoadBox::multiplier, 4), "0,00");
    rig.edit(multiplierBox(4), "");
    EXPECT_EQ(rig.text(LineLoadBox::multiplier, 4), "0,00");
    rig.type(multiplierBox(2), "1e999");
    EXPECT_EQ(errorOf([&] { rig.editor.left(multiplierBox(2)); }), errOverflow);
    EXPECT_EQ(rig.text(LineLoadBox::multiplier, 2), "");
    EXPECT_EQ(rig.designCase, before);
    EXPECT_EQ(rig.refreshes(), 0);
    EXPECT_FALSE(rig.document.dataChanged);

    rig.view.focused = loadCountBox;
    rig.editor.caseRead();
    EXPECT_EQ(rig.text(LineLoadBox::multiplier, 1), "1,36") << "they do not belong to the case";
    rig.editor.layout();
    rig.editor.opened();
    for (int k = 1; k <= 4; ++k)
        EXPECT_EQ(rig.text(LineLoadBox::multiplier, k), "");
}

TEST(FreeLineLoads, ShowInTheSketchButNotInTheFile) {
    LineLoadRig rig(freeLineLoads);
    rig.open();
    const auto saved = [&] { return writtenCase({rig.designCase, "HUS1", "Hus"}); };
    const Bytes before = saved();
    const RecordingCanvas drawnBefore = rig.picture.loadPicture;
    rig.edit(loadBox(1), "77");
    rig.editor.spinUp();
    EXPECT_EQ(saved(), before);
    EXPECT_FALSE(rig.picture.loadPicture == drawnBefore);
    EXPECT_EQ(rig.designCase.lllastf(1), 77.0f);
    EXPECT_EQ(rig.designCase.nllastf, 3);
}

TEST(LineLoads, GoIntoTheFileOfTheCase) {
    LineLoadRig rig;
    rig.open();
    const Bytes before = writtenCase({rig.designCase, "HUS1", "Hus"});
    rig.edit(loadBox(1), "77");
    EXPECT_NE(writtenCase({rig.designCase, "HUS1", "Hus"}), before);
    EXPECT_EQ(rig.designCase.nllastf, 0);
}

TEST(LineLoads, TheEditorsAreNamed) {
    EXPECT_STREQ(caseLineLoads.caption, "Linjelaster");
    EXPECT_STREQ(freeLineLoads.caption, "Fria linjelaster");
    EXPECT_FALSE(caseLineLoads.hasMultipliers);
    EXPECT_TRUE(freeLineLoads.hasMultipliers);
}

} // namespace
} // namespace varno::testing
