// Run-time errors in an event: told once, and the program goes on with the case it has.
#include <gtest/gtest.h>

#include "edit_rig.h"

namespace varno::gui {
namespace {

const Message overflow{"Varno", "Run-time error '6': Overflow"};
const Message outOfRange{"Varno", "Run-time error '9': Subscript out of range"};
const Message divisionByZero{"Varno", "Run-time error '11': Division by zero"};

class EditErrors : public Editing {
  protected:
    static void expectOnce(const Message& message,
                           std::source_location place = std::source_location::current()) {
        const ::testing::ScopedTrace trace(place.file_name(), static_cast<int>(place.line()), "message");
        EXPECT_EQ(program().answerError(), message);
        expectSoon(program(), true, [] { return main().enabled(); });
        expectNone();
        EXPECT_TRUE(program().running());
    }
    static void expectNone() {
        settle();
        EXPECT_FALSE(program().shows(messageBoxClass));
    }
    // The next key goes where the focus was going when the message came.
    static void expectKeysGoOn() {
        tab();
        expectNone();
    }
};

TEST_F(EditErrors, LengthOfZeroIsHealedByTheNextLength) {
    open({{5, "1"}, {6, "4.000  "}});
    const Picture loads = grab(loadPicture());
    const Picture strip = grab(slabStrip());
    enter(Field::spv, 1, "0");
    expectOnce(divisionByZero);
    expectKeysGoOn();
    EXPECT_EQ(text(Field::spv, 1), shown("0.00"));
    EXPECT_EQ(saved().spv(1), 0.0f) << "it is stored, only not drawn";
    enter(Field::spv, 1, "6");
    expectNone();
    expectText(Field::spv, 1, shown("6.00"));
    EXPECT_EQ(grab(loadPicture()), loads) << "one span fills the picture, however long it is";
    EXPECT_EQ(grab(slabStrip()), strip);
    EXPECT_EQ(saved().spv(1), 6.0f);
}

TEST_F(EditErrors, EveryEditOfAnUndrawableCaseSaysSoOnce) {
    open({{5, "1"}, {6, "4.000  "}});
    enter(Field::spv, 1, "0");
    expectOnce(divisionByZero);
    enter(Field::plast, 1, "3");
    expectOnce(divisionByZero);
    enter(Field::konsh, "1");
    expectNone();
    const DesignCase stored = saved();
    EXPECT_EQ(stored.plast(1), 3.0f);
    EXPECT_EQ(stored.konsh, 1.0f);
}

TEST_F(EditErrors, SpanTooNarrowToDrawIsHealed) {
    open();
    const Picture loads = grab(loadPicture());
    const Picture strip = grab(slabStrip());
    enter(Field::spv, 3, "0,01");
    expectOnce(divisionByZero);
    enter(Field::spv, 3, "5,5");
    expectNone();
    EXPECT_EQ(grab(loadPicture()), loads);
    EXPECT_EQ(grab(slabStrip()), strip);
}

TEST_F(EditErrors, LengthBeyondTheNumberRangeIsHealed) {
    open();
    const Picture loads = grab(loadPicture());
    enter(Field::spv, 1, "2e38"); // carried to three spans, whose sum is no single
    expectOnce(overflow);
    enter(Field::spv, 1, "5.5");
    expectNone();
    EXPECT_EQ(grab(loadPicture()), loads);
    enter(Field::konsv, "1e39"); // no single itself
    expectOnce(overflow);
    EXPECT_EQ(text(Field::konsv), shown("0.00")) << "what is shown is what is stored";
    EXPECT_EQ(saved().konsv, 0.0f);
}

TEST_F(EditErrors, WholeNumberTooLargeKeepsTheStoredOne) {
    struct Row {
        Field field;
        std::int16_t DesignCase::*place;
    };
    const Row rows[] = {{Field::initiell, &DesignCase::initiell},
                        {Field::tillkommande, &DesignCase::tillkommande},
                        {Field::overhojning, &DesignCase::overhojning},
                        {Field::ktack, &DesignCase::ktack},
                        {Field::duarm, &DesignCase::duarm}};
    open();
    for (const Row& row : rows) {
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, static_cast<int>(row.field));
        const std::string stored = text(row.field);
        type(field(row.field), "99999");
        keyboard::press(VK_TAB);
        expectOnce(overflow);
        // The cover is read without decimals and shown with them once it was left.
        EXPECT_EQ(text(row.field), row.field == Field::ktack ? stored + shown(".00") : stored);
        expectFocus(field(row.field));
        keyboard::type("7");
        expectText(row.field, "7");
        tab();
        expectNone();
    }
    const DesignCase typed = saved();
    for (const Row& row : rows)
        EXPECT_EQ(typed.*row.place, 7) << "what is typed next replaces it";
    for (const Row& row : rows)
        enter(row.field, "31");
    expectNone();
    const DesignCase stored = saved();
    for (const Row& row : rows)
        EXPECT_EQ(stored.*row.place, 31);
}

TEST_F(EditErrors, SavingTellsOfTheTextItCannotStore) {
    open();
    saved();
    const Bytes name = program().caption();
    type(field(Field::duarm), "99999");
    program().command(idSave);
    expectOnce(overflow);
    EXPECT_EQ(text(Field::duarm), "40");
    EXPECT_EQ(linesOf(scene().read(name)).at(22), "40");
}

TEST_F(EditErrors, CountOutsideTheArraysChangesNothing) {
    open();
    enter(Field::nfack, "-5");
    field(Field::spin1).clickAt(5, 3);
    expectOnce(outOfRange);
    EXPECT_TRUE(field(Field::spv, 3).visible());
    EXPECT_EQ(text(Field::nfack), "3");
    EXPECT_EQ(saved().nfack, 3);
    spinTo(+1, "4");
    EXPECT_EQ(saved().nfack, 4);
}

TEST_F(EditErrors, KeyInTheCountBoxTellsItsError) {
    open();
    type(field(Field::nfack), "99");
    keyboard::press(VK_DOWN);
    expectOnce(outOfRange);
    expectFocus(field(Field::nfack));
    EXPECT_EQ(saved().nfack, 3);
}

} // namespace
} // namespace varno::gui
