#include <gtest/gtest.h>

#include "input/input_rig.h"

namespace varno {
namespace {

using varno::testing::errorOf;
using varno::testing::InputRig;
using varno::testing::Texts;

struct WholeCase {
    Field field;
    std::int16_t DesignCase::*value;
    bool marks;
    const char* typed;
    const char* shown;
    std::int16_t stored;
};

class WholeField : public ::testing::TestWithParam<WholeCase> {};

TEST_P(WholeField, IsShownInItsPatternAndStoredAsAWholeNumber) {
    const WholeCase& row = GetParam();
    InputRig rig;
    rig.edit({row.field}, row.typed);
    EXPECT_EQ(rig.text({row.field}), row.shown);
    EXPECT_EQ(rig.designCase.*row.value, row.stored);
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_TRUE(rig.sketch.asked.empty());
    // Going through it again changes nothing more.
    rig.visit({row.field});
    EXPECT_EQ(rig.text({row.field}), row.shown);
    EXPECT_EQ(rig.designCase.*row.value, row.stored);
}

TEST_P(WholeField, LeavingItUntouchedMarksTheCaseWhereTheTableSaysSo) {
    const WholeCase& row = GetParam();
    InputRig rig;
    rig.visit({row.field}); // the text is in the field's own pattern now
    rig.calm();
    const DesignCase before = rig.designCase;
    rig.visit({row.field});
    EXPECT_EQ(rig.document.dataChanged, row.marks);
    EXPECT_TRUE(rig.window.diagram);
    EXPECT_EQ(rig.designCase, before);
}

TEST_P(WholeField, JunkIsZero) {
    InputRig rig;
    rig.edit({GetParam().field}, "abc");
    EXPECT_EQ(rig.designCase.*GetParam().value, 0);
    EXPECT_EQ(rig.text({GetParam().field}).front(), '0');
}

TEST_P(WholeField, BeyondSixteenBitsTheEventStops) {
    const WholeCase& row = GetParam();
    InputRig rig;
    rig.edit({row.field}, "77");
    const std::string stored = rig.text({row.field});
    for (const char* text : {"32768", "-32769", "1e10", "1e999"}) {
        rig.type({row.field}, text);
        EXPECT_EQ(errorOf([&] { rig.input.lostFocus({row.field}); }), errOverflow) << text;
        EXPECT_EQ(rig.designCase.*row.value, 77);
        EXPECT_EQ(rig.text({row.field}), stored) << "screen and record agree";
        EXPECT_EQ(rig.form.returnedTo, Control{row.field});
    }
    rig.edit({row.field}, "-32768");
    EXPECT_EQ(rig.designCase.*row.value, -32768);
}

TEST(InputForm, AnErrorNamesItsField) {
    InputRig rig;
    const auto messageOf = [&](Control box, const char* text) {
        rig.type(box, text);
        try {
            rig.input.lostFocus(box);
        } catch (const RunTimeError& error) {
            return error.message();
        }
        return std::string();
    };
    EXPECT_EQ(messageOf({Field::overhojning}, "40000"),
              "Talet i fältet \"Överhöjning (mm)\" är för stort.\n"
              "Fältet behåller sitt förra värde.\n"
              "Ange ett mindre tal; heltal får vara mellan -32768 och 32767.\n\n"
              "Run-time error '6': Overflow");
    EXPECT_TRUE(messageOf({Field::spv, 2}, "1e999").starts_with("Talet i fältet \"Spännvidd (m), fack 2\" "));
}

TEST(InputForm, ACommaInTheTitleIsHintedAtUntilItIsGoneOrTheTitleIsLeft) {
    InputRig rig;
    const Control title{Field::rubrik};
    rig.type(title, "Hus");
    EXPECT_EQ(rig.form.hint, "");
    rig.type(title, "Hus,");
    EXPECT_EQ(rig.form.hint, commaHint);
    rig.type(title, "Hus 4");
    EXPECT_EQ(rig.form.hint, "");
    rig.type(title, "Hus, 4");
    rig.input.lostFocus(title);
    EXPECT_EQ(rig.form.hint, "");
}

INSTANTIATE_TEST_SUITE_P(
    Input, WholeField,
    ::testing::Values(WholeCase{Field::overhojning, &DesignCase::overhojning, true, "12abc", "12", 12},
                      WholeCase{Field::initiell, &DesignCase::initiell, true, "350,4", "350", 350},
                      WholeCase{Field::tillkommande, &DesignCase::tillkommande, true, "2.5", "3", 3},
                      WholeCase{Field::duarm, &DesignCase::duarm, false, " 7.6", "8", 8},
                      WholeCase{Field::duarm, &DesignCase::duarm, false, "42,7", "43", 43},
                      WholeCase{Field::ktack, &DesignCase::ktack, false, "25,4", "25.40", 25},
                      WholeCase{Field::ktack, &DesignCase::ktack, false, "22.5", "22.50", 22},
                      WholeCase{Field::ktack, &DesignCase::ktack, false, "23.5", "23.50", 24},
                      WholeCase{Field::ktack, &DesignCase::ktack, false, "22.499", "22.50", 22}));

TEST(WholeFields, ALimitOfZeroIsEmptyUntilItIsLeft) {
    InputRig rig;
    rig.designCase.initiell = 0;
    rig.show();
    EXPECT_EQ(rig.text({Field::initiell}), "");
    rig.visit({Field::initiell});
    EXPECT_EQ(rig.text({Field::initiell}), "0");
    EXPECT_EQ(rig.designCase.initiell, 0);
}

TEST(WholeFields, TheCoverIsReadOnceHoweverItIsShown) {
    // With a sign that the number reader does not know, reading 23'50 again would make it 23.
    InputRig rig(3, NumberLocale{"'", "."});
    rig.edit({Field::ktack}, "23.5");
    EXPECT_EQ(rig.text({Field::ktack}), "23'50");
    EXPECT_EQ(rig.designCase.ktack, 24);
    rig.visit({Field::ktack});
    EXPECT_EQ(rig.designCase.ktack, 24);
    EXPECT_EQ(rig.text({Field::ktack}), "23'50");
    // In another case the same text is the user's.
    rig.designCase.ktack = 15;
    rig.show();
    rig.edit({Field::ktack}, "23.50");
    EXPECT_EQ(rig.designCase.ktack, 24);
}

TEST(WholeFields, TheSameTextInAnotherCaseIsReadAgain) {
    InputRig rig;
    rig.edit({Field::ktack}, "22.50");
    rig.designCase.ktack = 15;
    rig.show();
    rig.edit({Field::ktack}, "22.50");
    EXPECT_EQ(rig.designCase.ktack, 22);
}

TEST(WholeFields, TheDesignTextsAreReadWhenNoCaseWasShown) {
    InputRig rig;
    for (const TextField& row : textFields) {
        if (row.designText.empty()) continue;
        std::int16_t& stored = rig.designCase.*std::get<std::int16_t DesignCase::*>(row.place);
        stored = 0;
        rig.form.type({row.field}, std::string(row.designText));
        rig.visit({row.field});
        EXPECT_EQ(std::to_string(stored), row.designText) << row.name;
    }
}

struct FactorCase {
    Field field;
    FactorPerRuleSet DesignCase::*perRuleSet;
    FactorPerCategory DesignCase::*perCategory;
};

class FactorField : public ::testing::TestWithParam<FactorCase> {
  public:
    static Factor& cell(DesignCase& designCase, int ruleSet, int category) {
        const FactorCase& row = GetParam();
        return row.perRuleSet != nullptr ? (designCase.*row.perRuleSet)(ruleSet)
                                         : (designCase.*row.perCategory)(ruleSet, category);
    }
};

TEST_P(FactorField, BelongsToTheCurrentRuleSetAndCategory) {
    InputRig rig;
    rig.choose(Field::lokt, 4);
    const DesignCase before = rig.designCase;
    rig.calm();
    rig.edit({GetParam().field}, "2,5");
    EXPECT_EQ(rig.text({GetParam().field}), "2.50");
    EXPECT_EQ(cell(rig.designCase, 6, 4), 2.5);
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_TRUE(rig.sketch.asked.empty());
    // No other cell and no other field.
    DesignCase expected = before;
    cell(expected, 6, 4) = 2.5;
    EXPECT_EQ(rig.designCase, expected);
}

TEST_P(FactorField, JunkIsZeroAndTheShownDigitsAreStored) {
    InputRig rig;
    rig.edit({GetParam().field}, "abc");
    EXPECT_EQ(rig.text({GetParam().field}), "0.00");
    EXPECT_EQ(cell(rig.designCase, 6, 0), 0.0);
    rig.edit({GetParam().field}, "1.2345");
    EXPECT_EQ(cell(rig.designCase, 6, 0), 1.23);
    rig.edit({GetParam().field}, "1,234,5");
    EXPECT_EQ(cell(rig.designCase, 6, 0), 1.23);
    rig.edit({GetParam().field}, "12345,678");
    EXPECT_EQ(rig.text({GetParam().field}), "12345.68");
    EXPECT_EQ(cell(rig.designCase, 6, 0), 12345.68);
}

TEST_P(FactorField, AVisitMarksTheCaseButKeepsTheFactor) {
    InputRig rig;
    cell(rig.designCase, 6, 0) = 1.3546; // as a file may hold it
    rig.show();
    rig.visit({GetParam().field});
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_TRUE(rig.window.diagram);
    EXPECT_EQ(cell(rig.designCase, 6, 0), 1.3546);
    EXPECT_EQ(rig.text({GetParam().field}), "1.35");
}

TEST_P(FactorField, AnInfiniteTextStopsTheEvent) {
    InputRig rig;
    const DesignCase before = rig.designCase;
    const std::string text = rig.text({GetParam().field});
    rig.type({GetParam().field}, "1e999");
    EXPECT_EQ(errorOf([&] { rig.input.lostFocus({GetParam().field}); }), errOverflow);
    EXPECT_EQ(rig.designCase, before);
    EXPECT_EQ(rig.text({GetParam().field}), text);
}

TEST_P(FactorField, IsEmptyWithoutARuleSet) {
    InputRig rig;
    rig.designCase.loadCode = 0;
    rig.show();
    EXPECT_EQ(rig.text({GetParam().field}), "");
    rig.visit({GetParam().field});
    EXPECT_EQ(cell(rig.designCase, 0, 0), Factor());
    rig.edit({GetParam().field}, "1.1");
    EXPECT_EQ(cell(rig.designCase, 0, 0), 1.1);
}

INSTANTIATE_TEST_SUITE_P(Input, FactorField,
                         ::testing::Values(FactorCase{Field::lambdaG, &DesignCase::lambdaG, nullptr},
                                           FactorCase{Field::lambdaQ, &DesignCase::lambdaQ, nullptr},
                                           FactorCase{Field::ksi, &DesignCase::ksi, nullptr},
                                           FactorCase{Field::psi0, nullptr, &DesignCase::psi0},
                                           FactorCase{Field::psi1, nullptr, &DesignCase::psi1},
                                           FactorCase{Field::psi2, nullptr, &DesignCase::psi2}));

TEST(ChangeRule, EveryFieldAndListOfTheTablesMarksAndDisablesTheDiagram) {
    for (const TextField& row : textFields) {
        InputRig rig;
        rig.input.changed({row.field, 1});
        EXPECT_TRUE(rig.document.dataChanged) << row.name;
        EXPECT_FALSE(rig.window.diagram) << row.name;
    }
    for (const ChoiceField& row : choiceFields) {
        InputRig rig;
        rig.input.changed({row.field});
        EXPECT_EQ(rig.document.dataChanged, row.kind == ChoiceKind::list) << row.name;
        EXPECT_EQ(rig.window.diagram, row.kind != ChoiceKind::list) << row.name;
    }
}

TEST(ChangeRule, TheTitleMarksTheCaseButLeavesTheDiagram) {
    InputRig rig;
    rig.edit({Field::rubrik}, "Hus 1");
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_TRUE(rig.window.diagram);
}

TEST(ChangeRule, TheCountBoxHasNone) {
    InputRig rig;
    const DesignCase before = rig.designCase;
    rig.edit({Field::nfack}, "5");
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_TRUE(rig.window.diagram);
    EXPECT_EQ(rig.designCase, before);
}

} // namespace
} // namespace varno
