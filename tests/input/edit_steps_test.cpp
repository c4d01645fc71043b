// Steps back and forward through the edits of a case.
#include <gtest/gtest.h>

#include "input/input_rig.h"

namespace varno {
namespace {

using varno::testing::InputRig;
using varno::testing::Texts;

TEST(EditSteps, ANumberGoesBackWithTheCellsItWasCarriedTo) {
    InputRig rig(4);
    rig.designCase.spv(3) = 6.125f;
    rig.show();
    const DesignCase before = rig.designCase;
    rig.edit({Field::spv, 2}, "7,5");
    const DesignCase after = rig.designCase;
    rig.calm();

    rig.steps.back();
    EXPECT_EQ(rig.designCase, before);
    EXPECT_EQ(rig.form.text({Field::spv, 2}), "5.00");
    EXPECT_EQ(rig.texts(Field::spv, 1, 4), (Texts{"5.00", "5.00", "6.13", "5.00"}));
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_EQ(rig.beside.shown, 1);

    rig.steps.forward();
    EXPECT_EQ(rig.designCase, after);
    EXPECT_EQ(rig.texts(Field::spv, 1, 4), (Texts{"5.00", "7.50", "7.50", "7.50"}));
    EXPECT_EQ(rig.beside.shown, 2);
}

TEST(EditSteps, WithNothingToTakeBackNothingHappens) {
    InputRig rig;
    rig.steps.back();
    rig.steps.forward();
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_EQ(rig.beside.shown, 0);
}

TEST(EditSteps, GoingThroughAFieldIsNoEdit) {
    InputRig rig;
    rig.edit({Field::konsv}, "1");
    rig.visit({Field::konsh});
    rig.visit({Field::initiell});
    rig.steps.back();
    EXPECT_EQ(rig.designCase.konsv, 0.0f);
}

TEST(EditSteps, EveryKindOfEditIsOne) {
    InputRig rig;
    rig.edit({Field::rubrik}, "Hus 1");
    rig.form.focus({Field::konsv});
    rig.input.spinUp();
    rig.choose(Field::lokt, 3);
    rig.form.selectOption(Field::lastkomb, 2);
    rig.input.clicked({Field::lastkomb, 2});
    rig.input.clicked({Field::kavko, 1});
    rig.choose(Field::aok, 2);
    rig.form.focus({Field::rubrik}); // the row is stored when the list is left
    rig.input.flagClicked(flagCount - 1);
    const DesignCase& now = rig.designCase;
    EXPECT_EQ(now.loadCode, 1);

    rig.steps.back();
    EXPECT_EQ(now.loadCode, 6);
    EXPECT_EQ(rig.window.flag, 6);
    EXPECT_TRUE(rig.form.groupVisible(Field::shkleu));
    rig.steps.back();
    EXPECT_EQ(now.aok, 2);
    EXPECT_EQ(rig.form.selectedRow(Field::aok), 1);
    rig.steps.back();
    EXPECT_EQ(now.kavko, 0);
    EXPECT_FALSE(rig.form.checked(Field::kavko));
    rig.steps.back();
    EXPECT_EQ(now.lastkomb, 1);
    EXPECT_EQ(rig.form.option(Field::lastkomb), 1);
    rig.steps.back();
    EXPECT_EQ(now.lokt, 0);
    EXPECT_TRUE(rig.form.state({Field::flast, 1}).enabled);
    rig.steps.back();
    EXPECT_EQ(now.nfack, 3);
    EXPECT_EQ(rig.text({Field::nfack}), "3");
    EXPECT_FALSE(rig.form.state({Field::spv, 4}).visible);
    rig.steps.back();
    EXPECT_EQ(rig.text({Field::rubrik}), "");
    for (int i = 0; i < 7; ++i)
        rig.steps.forward();
    EXPECT_EQ(now.loadCode, 1);
    EXPECT_EQ(now.nfack, 4);
    EXPECT_EQ(rig.text({Field::rubrik}), "Hus 1");
}

TEST(EditSteps, AFieldEndedByAnotherEditIsAStepOfItsOwn) {
    InputRig rig;
    rig.type({Field::spv, 3}, "8");
    rig.input.spinUp();
    EXPECT_EQ(rig.designCase.spv(3), 8.0f);
    rig.steps.back();
    EXPECT_EQ(rig.designCase.nfack, 3);
    EXPECT_EQ(rig.designCase.spv(3), 8.0f);
    rig.steps.back();
    EXPECT_EQ(rig.designCase.spv(3), 5.0f);
}

TEST(EditSteps, ATitleThatIsBeingTypedIsTheLastEdit) {
    InputRig rig;
    rig.edit({Field::konsv}, "1");
    rig.form.type({Field::rubrik}, "Hus 2");
    rig.steps.back();
    EXPECT_EQ(rig.text({Field::rubrik}), "");
    EXPECT_EQ(rig.designCase.konsv, 1.0f);
}

TEST(EditSteps, FactorsAreLockedAsTheyWere) {
    InputRig rig;
    EXPECT_FALSE(rig.form.state({Field::lambdaG}).enabled) << "a case that was opened";
    rig.input.flagClicked(6); // rule set 1
    rig.input.flagClicked(5); // and 6 again, by a switch: opened
    EXPECT_TRUE(rig.form.state({Field::lambdaG}).enabled);
    rig.edit({Field::lambdaG}, "1,4");
    rig.steps.back();
    EXPECT_TRUE(rig.form.state({Field::lambdaG}).enabled);
    EXPECT_NE(rig.designCase.lambdaG(6), 1.4);
    rig.steps.back();
    EXPECT_FALSE(rig.form.state({Field::lambdaG}).enabled);
    rig.steps.back();
    EXPECT_EQ(rig.designCase.loadCode, 6);
    EXPECT_FALSE(rig.form.state({Field::lambdaG}).enabled) << "as opened";
    EXPECT_FALSE(rig.form.state({Field::psi2}).enabled);
}

TEST(EditSteps, AnEditThatEndsInAnErrorIsAStepToo) {
    InputRig rig;
    rig.type({Field::spv, 1}, "0"); // a slab without length cannot be drawn
    EXPECT_NE(varno::testing::errorOf([&] { rig.input.lostFocus({Field::spv, 1}); }), 0);
    EXPECT_EQ(rig.designCase.spv(1), 0.0f);
    rig.steps.back();
    EXPECT_EQ(rig.designCase.spv(1), 5.0f);
}

TEST(EditSteps, AnotherCaseHasNothingToTakeBack) {
    InputRig rig;
    rig.edit({Field::konsv}, "1");
    rig.steps.start();
    rig.calm();
    rig.steps.back();
    EXPECT_EQ(rig.designCase.konsv, 1.0f);
    EXPECT_FALSE(rig.document.dataChanged);
}

} // namespace
} // namespace varno
