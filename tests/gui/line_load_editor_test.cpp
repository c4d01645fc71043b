// The editor of the line loads that belong to the case.
#include <gtest/gtest.h>

#include "line_load_rig.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

using enum LineLoadBox;

constexpr COLORREF red = RGB(0x80, 0, 0);

class LineLoadEditing : public LineLoads {
  protected:
    static Lines threeLoads() {
        return {{32, "3"},
                {33, loadLine("1", "2.500", "8.500")},
                {34, loadLine("2", "1.250", "6.000")},
                {35, loadLine("3", "0.500", "-4.000")}};
    }
    static std::string thousands() {
        wchar_t sign[16] = L"";
        GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_STHOUSAND, sign, 16);
        return win32::narrow(sign);
    }
};

class LineLoadLocale : public LineLoadEditing {};

TEST_F(LineLoadEditing, ShowsTheLoadsOfTheCase) {
    open(threeLoads());
    const Editor editor = openEditor();
    EXPECT_EQ(editor.window().text(), "Linjelaster");
    EXPECT_TRUE(main().enabled()) << "it is modeless";
    EXPECT_EQ(editor.text(nllast), "3");
    expectSoon(program(), std::pair(0, 1), [&] { return editor.box(nllast).selection(); });
    expectRow(editor, 1, "1 2.50 8.50");
    expectRow(editor, 2, "2 1.25 6.00");
    expectRow(editor, 3, "3 0.50 -4.00");
    expectRow(editor, 4, "-");
    expectRow(editor, 5, "-");
    const auto menu = program().menuOf(editor.window());
    EXPECT_EQ(menu, (std::vector<MenuLine>{{0, "Återgå till...", 0, true}, {1, "Layout", idLayout, true}}));
    std::vector<std::string> captions;
    for (const Control& part : editor.window().children()) {
        if (part.className() != "Edit" && !part.text().empty()) captions.push_back(part.text());
    }
    EXPECT_EQ(captions, (std::vector<std::string>{"Linjelaster", "Antal linjelaster:", "Fack nr",
                                                  "Avstånd från vänster stöd", "(m)", "Last", "(kN/m)"}));
    close(editor);
}

TEST_F(LineLoadEditing, SpanNumberEndsAtFifteenAndIsDrawnBeyondTheSlab) {
    // Three spans of 4 m; spans 4 to 10 have 5.5 m, those behind them nothing.
    open({{6, cells({"4.000", "4.000", "4.000"})}, {32, "1"}, {33, loadLine("1", "0.000", "5.000")}});
    const Editor editor = openEditor();
    enter(editor.box(llfnr, 1), "20");
    expectBox(editor, llfnr, 1, "15");
    EXPECT_EQ(grab(loadPicture()).count(red), 0) << "it stands far behind the slab";
    enter(editor.box(avst, 1), "-44,5");
    // 12 + 7 * 5.5 - 44.5 = 6 m of 12.
    const auto columns = grab(loadPicture()).columns(20, red);
    ASSERT_FALSE(columns.empty());
    EXPECT_NEAR(columns.front(), 280, 2);
    const DesignCase stored = saved();
    EXPECT_EQ(stored.llfnr(1), 15);
    EXPECT_EQ(stored.avst(1), -44.5f);
    close(editor);
}

TEST_F(LineLoadEditing, OddSpanNumbersAreTaken) {
    open(threeLoads());
    const Editor editor = openEditor();
    enter(editor.box(llfnr, 1), "2,5");
    expectBox(editor, llfnr, 1, "3");
    enter(editor.box(llfnr, 2), "abc");
    expectBox(editor, llfnr, 2, "0");
    enter(editor.box(llfnr, 3), "-7");
    expectBox(editor, llfnr, 3, "-7");
    const DesignCase stored = saved();
    EXPECT_EQ(stored.llfnr(1), 3);
    EXPECT_EQ(stored.llfnr(2), 0);
    EXPECT_EQ(stored.llfnr(3), -7);
    close(editor);
}

TEST_F(LineLoadEditing, DistanceKeepsTwoDecimals) {
    open(threeLoads());
    const Editor editor = openEditor();
    enter(editor.box(avst, 2), "2,5");
    expectBox(editor, avst, 2, shown("2.50"));
    enter(editor.box(avst, 3), "1.236");
    expectBox(editor, avst, 3, shown("1.24"));
    const DesignCase stored = saved();
    EXPECT_EQ(stored.avst(2), 2.5f);
    EXPECT_EQ(stored.avst(3), 1.24f);
    close(editor);
}

TEST_F(LineLoadEditing, ThousandsAreGroupedAndStayThousands) {
    open(threeLoads());
    const Editor editor = openEditor();
    enter(editor.box(lllast, 1), "1234,5");
    const std::string grouped = "1" + thousands() + shown("234.50");
    expectBox(editor, lllast, 1, grouped);
    clickInto(editor.box(lllast, 1));
    expectBox(editor, lllast, 1, shown("1234.50"));
    tab();
    expectBox(editor, lllast, 1, grouped);
    EXPECT_EQ(saved().lllast(1), 1234.5f);
    close(editor);
}

TEST_F(LineLoadLocale, AThousandStaysAThousandWhenItsEndIsEdited) {
    open(threeLoads());
    const Editor editor = openEditor();
    enter(editor.box(lllast, 1), "1234");
    clickInto(editor.box(lllast, 1));
    keyboard::press(VK_END);
    keyboard::press(VK_BACK);
    keyboard::type("5");
    tab();
    expectBox(editor, lllast, 1, "1" + thousands() + shown("234.05"));
    EXPECT_EQ(saved().lllast(1), 1234.05f);
    // As copied from a text, with no-break spaces.
    for (const char* typed : {"2\u00A0345,5", "2\u202F345,5"}) {
        enter(editor.box(lllast, 1), "0");
        enter(editor.box(lllast, 1), typed);
        expectBox(editor, lllast, 1, "2" + thousands() + shown("345.50"));
    }
    close(editor);
}

TEST_F(LineLoadEditing, NumberTypedOverItsShownTextCounts) {
    open({{32, "1"}, {33, loadLine("1", "2.505", "8.125")}});
    const Editor editor = openEditor();
    enter(editor.box(avst, 1), "2,51");
    enter(editor.box(lllast, 1), "8,13");
    const DesignCase stored = saved();
    EXPECT_EQ(stored.avst(1), 2.51f);
    EXPECT_EQ(stored.lllast(1), 8.13f);
    close(editor);
}

TEST_F(LineLoadEditing, UnchangedFieldRedrawsNothing) {
    open(threeLoads());
    const Picture before = grab(loadPicture());
    // A category changes the loads of the spans without drawing them.
    Lines heavy = threeLoads();
    heavy.insert({{13, cells({"1.000", "2.000", "4.000"})}});
    open(heavy);
    const Picture stale = grab(loadPicture());
    EXPECT_FALSE(stale == before);
    field(Field::lokt).choose(1);
    expectText(Field::flast, 3, shown("2.00"));
    const Editor editor = openEditor();
    for (int i = 1; i <= 9; ++i) {
        clickInto(editor.box(i % 3 == 1 ? llfnr : i % 3 == 2 ? avst : lllast, (i + 2) / 3));
        tab();
    }
    enter(editor.box(avst, 1), "2,5");
    EXPECT_EQ(grab(loadPicture()), stale);
    enter(editor.box(avst, 1), "2,6");
    enter(editor.box(avst, 1), "2.5");
    EXPECT_EQ(grab(loadPicture()), before) << "a change draws everything anew";
    close(editor);
}

TEST_F(LineLoadEditing, CountedToZeroTheFirstRowStaysWithZeros) {
    open({{32, "1"}, {33, loadLine("2", "1.500", "7.000")}});
    Editor editor = openEditor();
    count(editor, -1, "0");
    expectRow(editor, 1, "0 0.00 0.00");
    for (int row = 2; row <= 5; ++row)
        expectRow(editor, row, "-");
    EXPECT_EQ(grab(loadPicture()).count(red), 0);
    close(editor);
    editor = openEditor();
    expectRow(editor, 1, "-");
    EXPECT_EQ(editor.text(nllast), "0");
    count(editor, +1, "1");
    expectRow(editor, 1, "2 1.50 7.00");
    const DesignCase stored = saved();
    EXPECT_EQ(stored.nllast, 1);
    EXPECT_EQ(stored.llfnr(1), 2);
    EXPECT_EQ(stored.lllast(1), 7.0f);
    close(editor);
}

TEST_F(LineLoadEditing, RowsCountedAwayComeBack) {
    open(threeLoads());
    const Editor editor = openEditor();
    count(editor, -1, "2");
    count(editor, -1, "1");
    expectRow(editor, 1, "1 2.50 8.50");
    expectRow(editor, 2, "-");
    expectRow(editor, 3, "-");
    count(editor, +1, "2");
    count(editor, +1, "3");
    expectRow(editor, 2, "2 1.25 6.00");
    expectRow(editor, 3, "3 0.50 -4.00");
    expectRow(editor, 4, "-");
    close(editor);
}

TEST_F(LineLoadEditing, EndsOfTheCountChangeNothing) {
    Lines five = threeLoads();
    five[32] = "5";
    open(five);
    Editor editor = openEditor();
    count(editor, +1, "5");
    expectRow(editor, 5, "0 0.00 0.00");
    EXPECT_FALSE(changed());
    close(editor);
    open();
    editor = openEditor();
    count(editor, -1, "0");
    expectRow(editor, 1, "-");
    EXPECT_FALSE(changed());
    close(editor);
}

TEST_F(LineLoadEditing, OnlyTheSpinnerMarksTheCase) {
    open(threeLoads());
    EXPECT_FALSE(changed());
    const Editor editor = openEditor();
    enter(editor.box(llfnr, 1), "3");
    enter(editor.box(avst, 1), "1");
    enter(editor.box(lllast, 1), "12");
    expectRow(editor, 1, "3 1.00 12.00");
    EXPECT_FALSE(changed()) << "a row changes the case without marking it";
    EXPECT_TRUE(program().diagramEnabled());
    count(editor, -1, "2");
    EXPECT_FALSE(program().diagramEnabled());
    EXPECT_TRUE(changed());
    close(editor);
    program().command(idExit);
    const Control prompt = program().window(savePromptClass);
    prompt.item(idCancelButton).click();
    program().waitGone(prompt);
    EXPECT_EQ(saved().lllast(1), 12.0f);
}

TEST_F(LineLoadEditing, SpinnerStoresWhatIsBeingTyped) {
    open(threeLoads());
    const Editor editor = openEditor();
    type(editor.box(lllast, 3), "9,5");
    count(editor, -1, "2");
    count(editor, +1, "3");
    expectRow(editor, 3, "3 0.50 9.50");
    type(editor.box(lllast, 2), "3,25");
    close(editor);
    const DesignCase stored = saved();
    EXPECT_EQ(stored.lllast(3), 9.5f);
    EXPECT_EQ(stored.lllast(2), 3.25f) << "Layout ends the typing too";
}

TEST_F(LineLoadEditing, KeysGoAlongTheRows) {
    open(threeLoads());
    const Editor editor = openEditor();
    clickInto(editor.box(nllast));
    for (int row = 1; row <= 3; ++row) {
        for (const LineLoadBox column : {llfnr, avst, lllast}) {
            move(row == 2 ? VK_RETURN : VK_TAB);
            expectFocus(editor.box(column, row));
        }
    }
    editor.window().clickAt(2, 2);
    expectFocus(editor.box(llfnr, 1));
    close(editor);
}

TEST_F(LineLoadEditing, OpenEditorFollowsTheCaseBeingRead) {
    open(threeLoads());
    const Editor editor = openEditor();
    open({{32, "1"}, {33, loadLine("3", "3.250", "1.500")}});
    expectBox(editor, nllast, 0, "1");
    expectRow(editor, 1, "3 3.25 1.50");
    expectRow(editor, 2, "-");
    close(editor);
}

TEST_F(LineLoadEditing, DamagedCaseIsDrawnBehindAnOpenEditor) {
    open(threeLoads());
    const Editor editor = openEditor();
    Bytes damaged = withLine(scene().read("varno.def"), 1, "SKADAT");
    damaged = withLine(withLine(damaged, 5, "2"), 6, cells({"4.000", "4.000"}));
    scene().write("SKADAT.IND", withLine(damaged, 32, "7"));
    program().command(idOpen);
    program().chooseFile("SKADAT.IND");
    EXPECT_NE(program().answer().text.find("Rad 32"), std::string::npos);
    EXPECT_EQ(program().answerError().text, "Run-time error '9': Subscript out of range");
    expectCaption(program(), "SKADAT.IND");
    expectBox(editor, nllast, 0, "7");
    for (int support = 0; support <= 3; ++support)
        EXPECT_EQ(slabStrip().item(idSupportButton + support).visible(), support <= 2) << support;
    close(editor);
}

TEST_F(LineLoadEditing, ErrorOfASpanNumberIsToldOnce) {
    open(threeLoads());
    const Editor editor = openEditor();
    type(editor.box(llfnr, 2), "-99999");
    keyboard::press(VK_TAB);
    const Message said = program().answer();
    EXPECT_TRUE(said.text.starts_with("Talet i fältet \"Fack nr, linjelast 2\" är för stort.\n"))
        << said.text;
    EXPECT_TRUE(said.text.ends_with("\nRun-time error '6': Overflow")) << said.text;
    settle();
    EXPECT_FALSE(program().shows(messageBoxClass));
    EXPECT_EQ(editor.text(llfnr, 2), "2");
    expectFocus(editor.box(llfnr, 2));
    enter(editor.box(llfnr, 2), "1");
    expectRow(editor, 2, "1 1.25 6.00");
    EXPECT_EQ(saved().llfnr(2), 1);
    close(editor);
}

TEST_F(LineLoadLocale, CommaAndPointMeanTheSame) {
    open(threeLoads());
    const Editor editor = openEditor();
    for (const char* typed : {"6,5", "6.5"}) {
        for (const auto& [box, shows] : {std::pair(llfnr, "7"), {avst, "6.50"}, {lllast, "6.50"}}) {
            enter(editor.box(box, 2), "1");
            enter(editor.box(box, 2), typed);
            expectBox(editor, box, 2, shown(shows));
        }
    }
    const DesignCase stored = saved();
    EXPECT_EQ(stored.llfnr(2), 7);
    EXPECT_EQ(stored.avst(2), 6.5f);
    EXPECT_EQ(stored.lllast(2), 6.5f);
    close(editor);
}

// The program looks a few times a second, also while a box is being typed in.
TEST_F(LineLoadEditing, WhatToLookAtTwiceIsMarkedInItsRow) {
    open(threeLoads());
    const auto expectPart = [](int id, const std::string& expected,
                               std::source_location place = std::source_location::current()) {
        expectSoon(
            program(), expected, [&] { return mainItem(id).text(); }, place);
    };
    expectPart(idStatusState, "Sparad");
    const auto ground = [](const Control& box) { return Picture::ofScreen(box.handle()).at(4, 4); };
    const auto expectMarked = [&](const Editor& editor, const Control& box) {
        const COLORREF plain = GetSysColor(COLOR_WINDOW);
        expectSoon(program(), plain, [&] { return ground(box); });
        type(box, "20");
        expectSoon(program(), true, [&] { return ground(box) != plain; });
        for (const LineLoadBox column : {llfnr, avst, lllast}) {
            const Control other = editor.box(column, 1);
            EXPECT_EQ(ground(other) != plain, other.handle() == box.handle());
        }
    };
    Editor editor = openEditor();
    expectMarked(editor, editor.box(llfnr, 2));
    expectPart(idStatusReason, "Linjelast 2 står i fack 15, men plattan har 3 fack.");
    expectPart(idStatusState, "Sparad");
    tab();
    expectPart(idStatusState, "Ändrad, inte sparad, se över 1");
    expectPart(idStatusReason, "");
    expectMarked(editor, editor.box(avst, 3));
    expectPart(idStatusReason, "Linjelast 3 står utanför fack 3: avståndet är 20 m och spännvidden 5,5 m.");
    keyboard::press(VK_ESCAPE);
    expectPart(idStatusReason, "");
    close(editor);

    editor = openFree();
    spin(editor.spin(), 1);
    expectMarked(editor, editor.box(llfnr, 1));
    close(editor);
}

} // namespace
} // namespace varno::gui
