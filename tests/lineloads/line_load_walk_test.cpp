#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "lineloads/line_load_rig.h"
#include "support/walk.h"

// Long random use of an editor. After every step, whatever it was: the record is what a plain reckoning of
// the edits says, the rows seen are the counted ones, and the sketch shows what a fresh one would.
namespace varno::testing {
namespace {

struct Edited {
    std::int16_t count = 2;
    float distance[6] = {0, 1.5f, 2.25f, 0.5f, -1, 0};
    float load[6] = {0, 10, 1234, -4, 0.25f, 0};
    std::int16_t span[6] = {0, 1, 3, 2, 9, 0};
    bool changed = false;
};

class Walk {
  public:
    Walk(const LineLoadSet& set, const NumberLocale& locale, unsigned seed) : rig_(set, locale), dice_(seed) {
        rig_.open();
    }

    void step() {
        switch (pick(6)) {
        case 0:
            return count(+1);
        case 1:
            return count(-1);
        case 2:
            return editSpan();
        case 3:
            return editReal(LineLoadBox::avst, expected_.distance);
        case 4:
            return editReal(LineLoadBox::lllast, expected_.load);
        default:
            return visitAll();
        }
    }

    void check() {
        ASSERT_EQ(rig_.count(), expected_.count);
        for (int row = 1; row <= 5; ++row) {
            ASSERT_EQ(rig_.span(row), expected_.span[row]) << row;
            ASSERT_EQ(rig_.distance(row), expected_.distance[row]) << row;
            ASSERT_EQ(rig_.load(row), expected_.load[row]) << row;
        }
        std::string rows = "1";
        for (int row = 2; row <= expected_.count; ++row)
            rows += " " + std::to_string(row);
        ASSERT_EQ(rig_.view.rows(), rows);
        ASSERT_EQ(rig_.document.dataChanged, expected_.changed);

        SketchPicture fresh;
        SlabSketch(rig_.designCase, fresh.loadPicture, fresh.slabStrip, fresh).fullRefresh();
        ASSERT_TRUE(fresh == rig_.picture);
    }

  private:
    int pick(int choices) { return dice_.pick(0, choices - 1); }

    void count(int by) {
        by > 0 ? rig_.editor.spinUp() : rig_.editor.spinDown();
        const int wanted = expected_.count + by;
        if (wanted < 0 || wanted > 5) return;
        expected_.count = static_cast<std::int16_t>(wanted);
        expected_.changed = true;
    }

    int seenRow() { return 1 + pick(std::max<int>(expected_.count, 1)); }

    void editSpan() {
        const int row = seenRow();
        const int span = 1 + pick(20);
        rig_.edit(spanBox(row), std::to_string(span));
        expected_.span[row] = static_cast<std::int16_t>(std::min(span, 15));
    }

    // Never 0: over the zeros of the row that was counted away that is no edit.
    void editReal(LineLoadBox box, float* values) {
        const int row = seenRow();
        const int hundredths = 1 + pick(200000) - (pick(2) == 0 ? 200001 : 0);
        std::string text = std::to_string(hundredths / 100);
        if (hundredths < 0 && hundredths > -100) text = "-0";
        const int rest = std::abs(hundredths % 100);
        text += (pick(2) == 0 ? "," : ".") + std::to_string(rest / 10) + std::to_string(rest % 10);
        rig_.edit({box, row}, text);
        values[row] = static_cast<float>(hundredths / 100.0);
    }

    void visitAll() {
        for (int row = 1; row <= std::max<int>(expected_.count, 1); ++row) {
            rig_.visit(spanBox(row));
            rig_.visit(distanceBox(row));
            rig_.visit(loadBox(row));
        }
    }

    LineLoadRig rig_;
    Dice dice_;
    Edited expected_;
};

TEST(LineLoadWalk, RecordBoxesAndSketchStayTogether) {
    const NumberLocale locales[] = {{}, swedishSigns, {",", "."}};
    unsigned seed = 71;
    for (const LineLoadSet* set : {&caseLineLoads, &freeLineLoads}) {
        for (const NumberLocale& locale : locales) {
            Walk walk(*set, locale, ++seed);
            for (int i = 0; i < 400; ++i) {
                walk.step();
                walk.check();
                ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "seed " << seed << " step " << i;
            }
        }
    }
}

} // namespace
} // namespace varno::testing
