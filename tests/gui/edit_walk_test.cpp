// A user who does anything the form lets one do, in any order, reproducibly.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "controls/rule_sets.h"
#include "edit_rig.h"
#include "input/field_table.h"
#include "input/form_layout.h"
#include "support/walk.h"

namespace varno::gui {
namespace {

int optionsOf(Field group) {
    const ChoiceField* choice = choiceField(group);
    return choice != nullptr ? choice->count() : 3;
}

class EditWalk : public Editing {
  protected:
    static constexpr int events = 500;

    int pick(int first, int last) { return dice_.pick(first, last); }
    template <typename Table>
    const auto& anyOf(const Table& table) {
        return dice_.anyOf(table);
    }

    void step();
    void typeSomewhere();
    void moveFocus();
    void spinSomehow();
    void clickFlag();
    void chooseRow();
    void clickOption();
    varno::Control anyBox();
    std::vector<varno::Control> options() const;
    void answerErrors();

    static int spans();
    static int shownFlag();
    static int chosen(Field group);
    static void check();
    static void checkRules();
    void checkSaved();
    static void checkText(const TextField& row, int index, const DesignCase& stored);
    static void checkChoices(const DesignCase& stored);

    testing::Dice dice_{20'240'611};
    std::map<std::string, int> done_;
    int errors_ = 0;
};

void EditWalk::step() {
    const int kind = pick(0, 99);
    if (kind < 38) {
        ++done_["type"];
        typeSomewhere();
    } else if (kind < 58) {
        ++done_["focus"];
        moveFocus();
    } else if (kind < 74) {
        ++done_["spin"];
        spinSomehow();
    } else if (kind < 81) {
        ++done_["flag"];
        clickFlag();
    } else if (kind < 89) {
        ++done_["list"];
        chooseRow();
    } else {
        ++done_["option"];
        clickOption();
    }
    answerErrors();
}

// Everything goes in by posting, so that it is dealt with in its order.
void EditWalk::answerErrors() {
    settle();
    while (program().shows(messageBoxClass)) {
        ++errors_;
        const Message said = program().answerError();
        EXPECT_EQ(said.title, "Varno");
        EXPECT_TRUE(said.text == "Run-time error '6': Overflow" ||
                    said.text == "Run-time error '9': Subscript out of range" ||
                    said.text == "Run-time error '11': Division by zero")
            << said.text;
        // One event can bring two: that of the field being left, and its own.
        EXPECT_TRUE(program().until([] {
            return program().shows(messageBoxClass) ||
                   (main().enabled() && IsChild(main().handle(), program().focused().handle()));
        })) << "the focus does not come back";
        settle();
    }
}

varno::Control EditWalk::anyBox() {
    if (pick(0, 15) == 0) return {Field::nfack};
    const TextField& row = anyOf(textFields);
    return {row.field, row.isPerSpan() ? pick(1, spans()) : 0};
}

void EditWalk::typeSomewhere() {
    const Control box = field(anyBox());
    if (!box.enabled()) return;
    box.clickInto();
    answerErrors();
    // A number that was refused has taken the focus back; nobody types into a box without it.
    if (program().focused() != box) {
        box.clickInto();
        answerErrors();
    }
    box.selectAll();
    const std::string text = dice_.text();
    if (text.empty()) box.key(VK_DELETE);
    box.type(text);
}

void EditWalk::moveFocus() {
    constexpr std::array<WORD, 5> keys{VK_TAB, VK_RETURN, VK_UP, VK_DOWN, VK_TAB};
    if (pick(0, 3) == 0) {
        const Control box = field(anyBox());
        if (box.enabled()) box.clickInto();
        return;
    }
    const Control focus = program().focused();
    if (focus.handle() != nullptr) focus.key(anyOf(keys));
}

void EditWalk::spinSomehow() {
    const int step = pick(0, 8) < 5 ? +1 : -1;
    if (pick(0, 2) == 0) {
        const Control count = field(Field::nfack);
        count.clickInto();
        answerErrors();
        count.key(step > 0 ? VK_UP : VK_DOWN);
    } else {
        const RECT box = field(Field::spin1).place();
        field(Field::spin1).clickAt(5, step > 0 ? 4 : box.bottom - box.top - 4);
    }
}

void EditWalk::clickFlag() {
    mainItem(idFlag + shownFlag()).clickInto();
}

void EditWalk::chooseRow() {
    constexpr std::array lists{Field::lokt, Field::btg, Field::aok,   Field::dok,
                               Field::auk,  Field::duk, Field::brandk};
    const Control list = field(anyOf(lists));
    list.clickInto(); // opens it
    answerErrors();
    for (int presses = pick(0, 4); presses > 0; --presses)
        list.key(pick(0, 1) == 0 ? VK_UP : VK_DOWN);
    list.key(pick(0, 3) == 0 ? VK_ESCAPE : VK_RETURN);
}

std::vector<varno::Control> EditWalk::options() const {
    std::vector<varno::Control> all{{Field::kavko}};
    for (const Field group : {Field::lastkomb, Field::brukskomb, Field::brandb, Field::kutak, Field::shkl,
                              Field::shklpl, Field::pkl, Field::shklfi, Field::shkldk, Field::shkleu}) {
        for (int option = 1; option <= optionsOf(group); ++option) {
            if (field(group, option).visible()) all.push_back({group, option});
        }
    }
    return all;
}

void EditWalk::clickOption() {
    const auto all = options();
    field(anyOf(all)).clickInto();
}

int EditWalk::spans() {
    int count = 0;
    while (count < 10 && field(Field::spv, count + 1).visible())
        ++count;
    return count;
}

int EditWalk::shownFlag() {
    int shown = -1;
    for (int flag = 0; flag <= 6; ++flag) {
        if (!mainItem(idFlag + flag).visible()) continue;
        EXPECT_EQ(shown, -1) << "one flag at a time";
        shown = flag;
    }
    return shown;
}

int EditWalk::chosen(Field group) {
    int option = 0;
    for (int i = 1; i <= optionsOf(group); ++i) {
        if (!field(group, i).checked()) continue;
        EXPECT_EQ(option, 0) << "one option of a group";
        option = i;
    }
    return option;
}

void EditWalk::check() {
    ASSERT_TRUE(program().running());
    const int n = spans();
    ASSERT_GE(n, 1);
    const bool ownLoad = field(Field::lokt).selectedRow() == 0;
    for (int i = 1; i <= 10; ++i) {
        for (const Field row : {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl})
            EXPECT_EQ(field(row, i).visible(), i <= n) << "cells of span " << i;
        EXPECT_EQ(formItem(spanHeadId(i)).visible(), i <= n);
        EXPECT_EQ(field(Field::flast, i).enabled(), ownLoad) << "load of span " << i;
        EXPECT_EQ(field(Field::upl, i).enabled(), i != n) << "support " << i;
    }
    for (const int end : {0, n}) {
        EXPECT_TRUE(field(Field::upl, end).visible());
        EXPECT_FALSE(field(Field::upl, end).enabled());
        EXPECT_EQ(text(Field::upl, end), shown("0.000"));
    }
    checkRules();
}

void EditWalk::checkRules() {
    constexpr std::array byFlag{0, 1, 3, 5, 4, 2, 6};
    const int ruleSet = byFlag[static_cast<std::size_t>(shownFlag())];
    for (const RuleSet& rules : ruleSets) {
        EXPECT_EQ(formItem(classFrameId(rules.number)).visible(), rules.number == ruleSet);
        EXPECT_TRUE(rules.number != ruleSet || chosen(rules.classGroup) != 0) << "a class is chosen";
    }
    for (const Field factor : {Field::lambdaG, Field::ksi, Field::lambdaQ, Field::psi0, Field::psi1})
        EXPECT_EQ(field(factor).enabled(), ruleSet == 6);
    EXPECT_EQ(text(Field::loadFrame), ruleSet == 1 ? "Laster enl. BKR" : "Laster enl. Eurokod");
}

// The file holds what the form shows.
void EditWalk::checkSaved() {
    // An error of the field being left would come before the dialog is closed.
    field(Field::rubrik).clickInto();
    answerErrors();
    const DesignCase stored = saved();
    EXPECT_EQ(stored.nfack, spans());
    EXPECT_EQ(stored.upl(0), 0.0f);
    EXPECT_EQ(stored.upl(stored.nfack), 0.0f);
    for (const TextField& row : textFields) {
        if (!row.isPerSpan()) {
            checkText(row, 0, stored);
            continue;
        }
        for (int i = 1; i <= stored.nfack; ++i)
            checkText(row, i, stored);
    }
    checkChoices(stored);
}

void EditWalk::checkText(const TextField& row, int index, const DesignCase& stored) {
    std::string text = Editing::text(row.field, index);
    const std::string sign = shown(".");
    const auto at = text.find(sign);
    if (at != std::string::npos) text.replace(at, sign.size(), ".");
    const double number = std::strtod(text.c_str(), nullptr);
    const std::string where = std::string(row.name) + "(" + std::to_string(index) + ") shows " + text;

    const int set = stored.loadCode;
    double saved = 0;
    double tolerance = 1e-6 * std::fabs(number);
    double limit = 1e38;
    std::size_t cell = 7;
    if (const auto* whole = std::get_if<std::int16_t DesignCase::*>(&row.place)) {
        saved = stored.**whole;
        // The cover shows decimals that are not stored.
        tolerance = row.field == Field::ktack ? 0.5 : 0;
        limit = 32767;
        cell = 99;
    } else if (const auto* single = std::get_if<float DesignCase::*>(&row.place)) {
        saved = stored.**single;
        tolerance += 0.005;
        cell = 99;
    } else if (const auto* spanCells = std::get_if<SpanArray DesignCase::*>(&row.place)) {
        saved = (stored.**spanCells)(index);
        if (row.field == Field::upl) cell = 6;
    } else if (const auto* factor = std::get_if<FactorPerRuleSet DesignCase::*>(&row.place)) {
        saved = (stored.**factor)(set).value_or(0);
    } else if (const auto* category = std::get_if<FactorPerCategory DesignCase::*>(&row.place)) {
        saved = (stored.**category)(set, stored.lokt).value_or(0);
    }
    // A number that its type cannot hold was refused; one that is wider than its cell is cut.
    if (std::fabs(number) > limit) return;
    char inFile[64];
    if (std::snprintf(inFile, sizeof inFile, "%.3f", number) > static_cast<int>(cell)) return;
    EXPECT_NEAR(saved, number, tolerance) << where;
}

void EditWalk::checkChoices(const DesignCase& stored) {
    constexpr std::array flags{0, 1, 5, 2, 4, 3, 6}; // by rule set
    EXPECT_EQ(shownFlag(), flags[static_cast<std::size_t>(stored.loadCode)]);
    for (const ChoiceField& row : choiceFields) {
        const int number = stored.*row.place;
        if (row.kind == ChoiceKind::checkBox) {
            EXPECT_EQ(field(row.field).checked(), number != 0) << row.name;
        } else if (row.kind == ChoiceKind::options) {
            EXPECT_EQ(chosen(row.field), number) << row.name;
        } else if (row.field != Field::btg || stored.loadCode == 1) {
            // The concrete class is dropped under the other rule sets.
            EXPECT_EQ(field(row.field).selectedRow() + row.firstNumber, number) << row.name;
        }
    }
    for (const RuleSet& rules : ruleSets) {
        if (rules.number != stored.loadCode) continue;
        // The classes of sets 2 and 6 are not stored under their own number.
        const bool own = rules.classWritten == rules.number;
        EXPECT_EQ(stored.safetyClass(rules.number), own ? chosen(rules.classGroup) : 1);
    }
}

TEST_F(EditWalk, KeepsWhatMustAlwaysHold) {
    open();
    for (int event = 1; event <= events && !HasFailure(); ++event) {
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, "event " + std::to_string(event));
        step();
        check();
        if (event % 25 == 0) checkSaved();
    }
    ASSERT_FALSE(HasFailure());
    EXPECT_EQ(done_.size(), 6u) << "it went everywhere";
    EXPECT_GT(errors_, 0) << "also where errors are";

    // However it ended, sound numbers make the picture whole again.
    for (const auto& [box, number] : {std::pair(Field::konsv, "0"),
                                      {Field::konsh, "0"},
                                      {Field::spv, "5"},
                                      {Field::plast, "1"},
                                      {Field::spv, "4"}}) {
        const Control control = field(box, box == Field::konsv || box == Field::konsh ? 0 : 1);
        control.clickInto();
        answerErrors();
        control.selectAll();
        control.type(number);
        control.key(VK_TAB);
        errors_ = 0;
        answerErrors();
    }
    EXPECT_EQ(errors_, 0) << "the last edit was drawn";
    EXPECT_GT(grab(slabStrip()).columns(4, RGB(0x80, 0, 0)).size(), 500u);
    checkSaved();
    EXPECT_FALSE(changed());
}

} // namespace
} // namespace varno::gui
