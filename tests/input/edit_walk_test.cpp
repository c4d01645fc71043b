#include "input/edit_walk.h"

#include <gtest/gtest.h>

namespace varno {
namespace {

using varno::testing::EditWalk;

struct Walk {
    unsigned seed;
    NumberLocale locale;
};

class EditWalks : public ::testing::TestWithParam<Walk> {};

TEST_P(EditWalks, KeepWhatMustAlwaysHold) {
    EditWalk walk(GetParam().seed, GetParam().locale);
    walk.run(3000);
    EXPECT_EQ(walk.breach, "");
    // The walk went everywhere, also where errors are.
    EXPECT_EQ(walk.done.size(), 11u);
    EXPECT_GT(walk.errors[errOverflow], 0);
    EXPECT_GT(walk.errors[errSubscriptOutOfRange], 0);
    EXPECT_GT(walk.errors[errDivisionByZero], 0);

    // However it ended, a sound geometry makes the picture whole again.
    DesignCase& designCase = walk.rig.designCase;
    for (int span = 1; span <= 15; ++span)
        designCase.spv(span) = 4;
    designCase.konsv = designCase.konsh = 0;
    designCase.nllast = 0;
    walk.rig.sketch.fullRefresh();
    SketchPicture fresh;
    SlabSketch slab(designCase, fresh.loadPicture, fresh.slabStrip, fresh);
    slab.fullRefresh();
    EXPECT_TRUE(walk.rig.picture == fresh);
}

INSTANTIATE_TEST_SUITE_P(Input, EditWalks,
                         ::testing::Values(Walk{1, {".", ","}}, Walk{2, {",", " "}}, Walk{3, {",", "."}},
                                           Walk{4, {".", ","}}, Walk{5, {"'", "."}}, Walk{6, {",", " "}},
                                           Walk{7, {"\xD9\xAB", "."}}, Walk{20, {".", ","}}),
                         [](const auto& walk) { return "seed" + std::to_string(walk.param.seed); });

} // namespace
} // namespace varno
