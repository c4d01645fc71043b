// Load rule sets, their classes and factors, and the load category.
#include <gtest/gtest.h>

#include <array>

#include "edit_rig.h"
#include "input/form_layout.h"

namespace varno::gui {
namespace {

struct RuleSet {
    int flag;
    int number;
    const char* name;
    Field group;
    const char* frame;
    std::array<const char*, 3> options;
};

// In the order in which the flags follow each other.
constexpr std::array ruleSets{
    RuleSet{1, 1, "Svenska byggregler (BKR)", Field::shkl, "Säkerhetsklass", {"1", "2", "3"}},
    RuleSet{2, 3, "Eurokod, Sverige", Field::pkl, "Pålitlighetsklass", {"1", "2", "3"}},
    RuleSet{3, 5, "Eurokod, Danmark", Field::shkldk, "Konstruktionssklasse", {"1", "2", "3"}},
    RuleSet{4, 4, "Eurokod, Finland", Field::shklfi, "Säkerhetsklass", {"RC1", "RC2", "RC3"}},
    RuleSet{5, 2, "Eurokod, Polen", Field::shklpl, "Säkerhetsklass", {"RC1", "RC2", "RC3"}},
    RuleSet{6, 6, "Eurokod, allmänt", Field::shkleu, "Säkerhetsklass", {"RC1", "RC2", "RC3"}},
};

constexpr int lastFlag = static_cast<int>(ruleSets.size());
constexpr int nextFlag(int number) {
    return number % lastFlag + 1;
}

class EditRules : public Editing {
  protected:
    static Control flag(int number) { return mainItem(idFlag + number); }
    // With the mouse; the flag that is shown takes it.
    static void clickFlag(int number) {
        ASSERT_TRUE(flag(number).visible()) << number;
        flag(number).clickInto();
        expectSoon(program(), true, [&] { return flag(nextFlag(number)).visible(); });
        settle();
    }
    // All of them, round the last one if need be.
    static void clickFlags(int first, int last) {
        for (int number = first; number != nextFlag(last); number = nextFlag(number))
            clickFlag(number);
    }
    static int chosen(Field group) {
        int option = 0;
        for (int i = 1; i <= 3; ++i) {
            if (field(group, i).checked()) option = option == 0 ? i : -1;
        }
        return option;
    }
    static void expectShown(const RuleSet& set);
    static void expectFlag(int number) {
        for (int other = 0; other <= lastFlag; ++other)
            EXPECT_EQ(flag(other).visible(), other == number) << "flag " << other;
    }
    static void chooseInMenu(std::initializer_list<WORD> keys);
};

void EditRules::expectShown(const RuleSet& set) {
    const ::testing::ScopedTrace trace(__FILE__, __LINE__, set.name);
    expectFlag(set.flag);
    EXPECT_EQ(flag(set.flag).text(), set.name);
    for (const RuleSet& other : ruleSets) {
        const bool visible = other.number == set.number;
        EXPECT_EQ(formItem(classFrameId(other.number)).visible(), visible) << other.name;
        for (int i = 1; i <= 3; ++i)
            EXPECT_EQ(field(other.group, i).visible(), visible) << other.name;
    }
    EXPECT_EQ(formItem(classFrameId(set.number)).text(), set.frame);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(text(set.group, i), set.options[static_cast<std::size_t>(i - 1)]);
    for (const Field factor : {Field::lambdaG, Field::ksi, Field::lambdaQ, Field::psi0, Field::psi1})
        EXPECT_EQ(field(factor).enabled(), set.number == 6);
    EXPECT_FALSE(field(Field::psi2).enabled()) << "it keeps its state";
    EXPECT_EQ(text(Field::loadFrame), set.number == 1 ? "Laster enl. BKR" : "Laster enl. Eurokod");
}

TEST_F(EditRules, TheFlagsGoRound) {
    open({{3, "1"}});
    const DesignCase before = saved();
    EXPECT_FALSE(changed());
    for (std::size_t i = 0; i < ruleSets.size(); ++i) {
        expectShown(ruleSets[i]);
        clickFlag(ruleSets[i].flag);
    }
    expectShown(ruleSets[0]);
    EXPECT_TRUE(changed());
    EXPECT_EQ(saved(), before) << "once round changes nothing";
}

TEST_F(EditRules, FactorsFollowTheRuleSet) {
    open({{3, "1"}, {9, "3"}});
    struct Row {
        int flag;
        std::array<const char*, 6> factors; // lambdaG, ksi, lambdaQ, psi0, psi1, psi2
    };
    const Row rows[] = {{2, {"1.35", "0.89", "1.50", "0.70", "0.70", "0.60"}},
                        {3, {"1.20", "1.00", "1.50", "0.60", "0.60", "0.50"}},
                        {4, {"1.35", "0.85", "1.50", "0.70", "0.70", "0.30"}},
                        {5, {"1.35", "0.85", "1.50", "0.70", "0.70", "0.60"}}};
    constexpr std::array boxes{Field::lambdaG, Field::ksi,  Field::lambdaQ,
                               Field::psi0,    Field::psi1, Field::psi2};
    for (const Row& row : rows) {
        clickFlag(row.flag - 1);
        for (std::size_t i = 0; i < boxes.size(); ++i)
            EXPECT_EQ(text(boxes[i]), shown(row.factors[i])) << "flag " << row.flag;
    }
}

TEST_F(EditRules, FlagClickStoresTheFactorBeingTyped) {
    open({{3, "2"}});
    clickFlag(5);
    type(field(Field::ksi), "0,5");
    clickFlag(6);
    EXPECT_EQ(text(Field::ksi), shown("0.89")) << "that of the next rule set";
    clickFlags(nextFlag(6), 5);
    EXPECT_EQ(text(Field::ksi), shown("0.50"));
    EXPECT_EQ(saved().ksi(6), 0.5);
}

TEST_F(EditRules, SetTwoStartsFromItsFirstClassAndWritesThatOfSetFive) {
    restart();
    open({{3, "4"}, {4, "3"}});
    for (const int choice : {3, 2}) {
        clickFlag(4);
        EXPECT_EQ(chosen(Field::shklpl), 1) << "whatever was chosen before";
        field(Field::shklpl, choice).click();
        expectSoon(program(), choice, [] { return chosen(Field::shklpl); });
        EXPECT_EQ(saved().safetyClass(2), 1);
        clickFlag(5);
        EXPECT_EQ(chosen(Field::shkleu), 1);
        clickFlags(6, 2);
        EXPECT_EQ(chosen(Field::shkldk), choice);
        EXPECT_EQ(saved().safetyClass(5), choice);
        clickFlag(3);
        EXPECT_EQ(chosen(Field::shklfi), 3);
    }
}

TEST_F(EditRules, SetSixKeepsNoClass) {
    open({{3, "2"}});
    clickFlag(5);
    saved();
    field(Field::shkleu, 3).click();
    expectSoon(program(), 3, [] { return chosen(Field::shkleu); });
    EXPECT_FALSE(changed()) << "its options have no rule";
    EXPECT_EQ(saved().safetyClass(6), 1);
}

TEST_F(EditRules, ClassWithoutAChoiceIsTheSecond) {
    restart({{3, "1"}, {4, "1"}});
    clickFlag(1);
    EXPECT_EQ(chosen(Field::pkl), 2);
    clickFlag(2);
    EXPECT_EQ(chosen(Field::shkldk), 2);
    clickFlag(3);
    EXPECT_EQ(chosen(Field::shklfi), 2);
    EXPECT_EQ(saved().safetyClass(4), 2);
}

TEST_F(EditRules, CategoryFixesTheLoadsOfAllTenSpans) {
    open({{5, "2"}, {6, cells({"5.500", "5.500"})}, {13, cells({"1.000", "1.500"})}});
    field(Field::lokt).choose(5);
    expectText(Field::flast, 1, shown("5.00"));
    settle();
    for (int span = 1; span <= 10; ++span) {
        EXPECT_EQ(text(Field::flast, span), shown("5.00"));
        EXPECT_FALSE(field(Field::flast, span).enabled()) << span;
    }
    field(Field::lokt).choose(3);
    expectText(Field::flast, 1, shown("3.00"));
    settle();
    for (int span = 1; span <= 10; ++span)
        EXPECT_EQ(text(Field::flast, span), shown("3.00"));
    EXPECT_TRUE(changed());
    for (int spans = 3; spans <= 10; ++spans)
        spinTo(+1, std::to_string(spans));
    const DesignCase stored = saved();
    EXPECT_EQ(stored.lokt, 3);
    for (int span = 1; span <= 10; ++span) {
        EXPECT_EQ(stored.flast(span), 3.0f) << span;
        EXPECT_FALSE(field(Field::flast, span).enabled()) << span;
    }
}

TEST_F(EditRules, OwnLoadStartsFromTheTable) {
    open({{9, "3"}, {13, cells({"1.000", "1.500", "1.700"})}});
    EXPECT_EQ(text(Field::flast, 2), shown("1.50")) << "reading a case leaves its loads alone";
    EXPECT_FALSE(field(Field::flast, 1).enabled());
    field(Field::lokt).choose(0);
    expectText(Field::flast, 2, shown("2.00"));
    settle();
    for (int span = 1; span <= 10; ++span)
        EXPECT_EQ(text(Field::flast, span), shown("2.00"));
    EXPECT_TRUE(field(Field::flast, 1).enabled());
    enter(Field::flast, 2, "2,75");
    expectText(Field::flast, 3, shown("2.75"));
    EXPECT_EQ(text(Field::flast, 1), shown("2.00"));
}

// A key at a time: the menu must be there before it can take one.
void EditRules::chooseInMenu(std::initializer_list<WORD> keys) {
    constexpr const char* menuClass = "#32768";
    const Control menu = program().window(menuClass);
    for (const WORD key : keys)
        keyboard::press(key);
    program().waitGone(menu);
    settle();
}

TEST_F(EditRules, MenuOfTheFlagLeadsToTheSwedishRules) {
    open({{3, "4"}});
    const auto ask = [](int number) {
        main().post(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(flag(number).handle()), -1);
    };
    ask(4);
    chooseInMenu({VK_ESCAPE});
    expectFlag(4);
    EXPECT_FALSE(changed());
    ask(4);
    chooseInMenu({VK_DOWN, VK_RETURN});
    expectShown(ruleSets[0]);
    EXPECT_EQ(field(Field::btg).selectedText(), "C25/30");
    EXPECT_EQ(field(Field::lokt).selectedRow(), 0);
    EXPECT_TRUE(changed());
    EXPECT_EQ(saved().loadCode, 1);
}

} // namespace
} // namespace varno::gui
