// A user who does anything the form lets one do, in any order, reproducibly.
#include <gtest/gtest.h>

#include "form_walk.h"

namespace varno::gui {
namespace {

class EditWalk : public FormWalk {
  protected:
    static constexpr int events = 500;

    EditWalk() : FormWalk(20'240'611) {}

    void step();
    void answer() override;
    void checkSaved();

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
    answer();
}

void EditWalk::answer() {
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

// The file holds what the form shows.
void EditWalk::checkSaved() {
    // An error of the field being left would come before the dialog is closed.
    leaveField();
    checkShown(saved());
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
        answer();
        control.selectAll();
        control.type(number);
        control.key(VK_TAB);
        errors_ = 0;
        answer();
    }
    EXPECT_EQ(errors_, 0) << "the last edit was drawn";
    EXPECT_GT(grab(slabStrip()).columns(4, RGB(0x80, 0, 0)).size(), 500u);
    checkSaved();
    EXPECT_FALSE(changed());
}

} // namespace
} // namespace varno::gui
