// What the single number fields make of the texts typed into them.
#include <gtest/gtest.h>

#include "edit_rig.h"

namespace varno::gui {
namespace {

class EditFields : public Editing {
  protected:
    // The general Eurocode, whose factors can be edited; reading a case locks them, the flag unlocks them.
    static void openEditableFactors() {
        open({{3, "2"}});
        clickFlag(5);
    }
    static void clickFlag(int flag) {
        mainItem(idFlag + flag).click();
        const Control next = mainItem(idFlag + flag % 6 + 1);
        expectSoon(program(), true, [&] { return next.visible(); });
        settle();
    }
    static void leave(Field left) {
        clickInto(field(left));
        tab();
    }
};

TEST_F(EditFields, FactorBelongsToItsRuleSet) {
    openEditableFactors();
    enter(Field::lambdaG, "2,5");
    expectText(Field::lambdaG, shown("2.50"));
    for (const auto& [flag, factor] :
         {std::pair(6, "1.35"), {1, "1.35"}, {2, "1.20"}, {3, "1.35"}, {4, "1.35"}, {5, "2.50"}}) {
        clickFlag(flag);
        EXPECT_EQ(text(Field::lambdaG), shown(factor)) << "after flag " << flag;
    }
    EXPECT_EQ(saved().lambdaG(6), 2.5);
}

TEST_F(EditFields, TextWithoutANumberIsZeroForItsCategoryOnly) {
    openEditableFactors();
    enter(Field::psi1, "abc");
    expectText(Field::psi1, shown("0.00"));
    field(Field::lokt).choose(1);
    expectText(Field::psi1, shown("0.50"));
    field(Field::lokt).choose(0);
    expectText(Field::psi1, shown("0.00"));
    const DesignCase stored = saved();
    EXPECT_EQ(stored.psi1(6, 0), 0.0);
    EXPECT_EQ(stored.psi0(6, 0), 0.7);
}

TEST_F(EditFields, LeadingNumberCounts) {
    open();
    enter(Field::overhojning, "12abc");
    expectText(Field::overhojning, "12");
    enter(Field::duarm, " 7.6");
    expectText(Field::duarm, "8");
    enter(Field::konsv, "1,234,5");
    expectText(Field::konsv, shown("1.23"));
    enter(Field::konsh, "");
    expectText(Field::konsh, shown("0.00"));
    const DesignCase stored = saved();
    EXPECT_EQ(stored.overhojning, 12);
    EXPECT_EQ(stored.duarm, 8);
    EXPECT_EQ(stored.konsv, 1.234f);
    EXPECT_EQ(stored.konsh, 0.0f);
}

TEST_F(EditFields, CoverIsShownWithDecimalsAndStoredWhole) {
    struct Row {
        const char* typed;
        const char* shows;
        int stored;
    };
    for (const Row& row : {Row{"22,5", "22.50", 22}, {"23.5", "23.50", 24}, {"25,4", "25.40", 25}}) {
        open();
        enter(Field::ktack, row.typed);
        expectText(Field::ktack, shown(row.shows));
        EXPECT_EQ(saved().ktack, row.stored) << row.typed;
        clickInto(field(Field::ktack));
        tab();
        EXPECT_EQ(saved().ktack, row.stored) << "left again as it was";
    }
    enter(Field::duarm, "42,7");
    expectText(Field::duarm, "43");
    EXPECT_EQ(saved().duarm, 43);
}

TEST_F(EditFields, NumberTypedOverItsShownTextCounts) {
    open({{15, "2.345"}, {6, cells({"4.005", "5.000", "6.000"})}});
    expectText(Field::konsh, shown("2.35"));
    for (const Field left : {Field::konsh, Field::ktack})
        leave(left);
    clickInto(field(Field::spv, 1));
    tab();
    DesignCase stored = saved();
    EXPECT_EQ(stored.konsh, 2.345f) << "tabbing through stores nothing";
    EXPECT_EQ(stored.spv(1), 4.005f);
    EXPECT_EQ(stored.spv(2), 5.0f);
    enter(Field::konsh, shown("2.35"));
    enter(Field::spv, 1, shown("4.01"));
    stored = saved();
    EXPECT_EQ(stored.konsh, 2.35f);
    EXPECT_EQ(stored.spv(1), 4.01f);
    EXPECT_EQ(stored.spv(3), 4.01f) << "typed, so it is carried forward";
}

TEST_F(EditFields, LeavingMarksTheFieldsThatSaySo) {
    openEditableFactors();
    for (const Field marking : {Field::lambdaG, Field::lambdaQ, Field::ksi, Field::psi0, Field::psi1,
                                Field::initiell, Field::tillkommande, Field::overhojning}) {
        saved();
        leave(marking);
        EXPECT_TRUE(changed()) << static_cast<int>(marking);
    }
}

TEST_F(EditFields, LeavingTheOthersMarksNothing) {
    open();
    // A case shows its cover without decimals, and the first leaving adds them: a changed text marks.
    leave(Field::ktack);
    expectText(Field::ktack, shown("25.00"));
    EXPECT_TRUE(changed());
    const DesignCase before = saved();
    for (const Field row : {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl}) {
        clickInto(field(row, 1));
        tab();
        tab();
    }
    for (const Field single : {Field::rubrik, Field::nfack, Field::konsv, Field::konsh, Field::ktack,
                               Field::duarm, Field::lokt, Field::btg, Field::brandk}) {
        leave(single);
    }
    EXPECT_FALSE(changed());
    EXPECT_EQ(saved(), before);
}

TEST_F(EditFields, TypingDisablesTheDiagramAtOnce) {
    open();
    for (const Field edited : {Field::konsv, Field::ktack, Field::initiell}) {
        saved();
        EXPECT_FALSE(changed());
        EXPECT_TRUE(program().diagramEnabled()) << "the calculation enables it";
        type(field(edited), "3");
        EXPECT_FALSE(program().diagramEnabled()) << "before the field is left";
    }
}

class EditLocale : public EditFields {};

TEST_F(EditLocale, CommaAndPointMeanTheSameInEveryField) {
    openEditableFactors();
    struct Row {
        varno::Control box;
        const char* shows;
    };
    const Row rows[] = {
        {{Field::spv, 1}, "6.50"},   {{Field::ptjl, 2}, "6.500"},  {{Field::plast, 3}, "6.50"},
        {{Field::flast, 1}, "6.50"}, {{Field::upl, 1}, "6.500"},   {{Field::konsv}, "6.50"},
        {{Field::konsh}, "6.50"},    {{Field::lambdaG}, "6.50"},   {{Field::lambdaQ}, "6.50"},
        {{Field::ksi}, "6.50"},      {{Field::psi0}, "6.50"},      {{Field::psi1}, "6.50"},
        {{Field::initiell}, "7"},    {{Field::tillkommande}, "7"}, {{Field::overhojning}, "7"},
        {{Field::ktack}, "6.50"},    {{Field::duarm}, "7"},
    };
    for (const Row& row : rows) {
        for (const char* typed : {"6,5", "6.5"}) {
            enter(field(row.box), "1");
            enter(field(row.box), typed);
            expectText(row.box.field, row.box.index, shown(row.shows));
        }
    }
    const DesignCase stored = saved();
    EXPECT_EQ(stored.spv(3), 6.5f);
    EXPECT_EQ(stored.ptjl(2), 6.5f);
    EXPECT_EQ(stored.upl(2), 6.5f);
    EXPECT_EQ(stored.konsv, 6.5f);
    EXPECT_EQ(stored.lambdaQ(6), 6.5);
    EXPECT_EQ(stored.psi1(6, 0), 6.5);
    EXPECT_EQ(stored.ktack, 6) << "halves go to the even neighbour";
    EXPECT_EQ(stored.duarm, 7) << "its display has rounded already";
}

} // namespace
} // namespace varno::gui
