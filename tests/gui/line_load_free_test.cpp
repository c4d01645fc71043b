// The editor of the free line loads, which only the sketch knows.
#include <gtest/gtest.h>

#include "line_load_rig.h"

namespace varno::gui {
namespace {

using enum LineLoadBox;

constexpr COLORREF red = RGB(0x80, 0, 0);
constexpr COLORREF green = RGB(0, 0x80, 0);

class FreeLineLoads : public LineLoads {
  protected:
    // Free line loads outlive their case, so each test has a program of its own.
    FreeLineLoads() { restart(); }

    // The rows of the picture that an arrow's shaft fills, for a load at 6 m of 12.
    static std::vector<int> shaft(COLORREF colour) { return grab(loadPicture()).rows(280, colour); }
    static Lines twelveMetres() { return {{6, cells({"4.000", "4.000", "4.000"})}}; }
    static void enterRow(const Editor& editor, int row, const char* span, const char* distance,
                         const char* load) {
        enter(editor.box(llfnr, row), span);
        enter(editor.box(avst, row), distance);
        enter(editor.box(lllast, row), load);
    }
};

TEST_F(FreeLineLoads, ToolbarAndContextMenuOpenTheEditor) {
    open();
    program().clickToolbar(idFreeLineLoads);
    const Editor editor(program().window(freeLineLoadClass));
    EXPECT_EQ(editor.window().text(), "Fria linjelaster");
    EXPECT_TRUE(main().enabled());
    expectRow(editor, 1, "-");
    std::vector<std::string> captions;
    for (const Control& part : editor.window().children()) {
        if (part.className() != "Edit" && !part.text().empty()) captions.push_back(part.text());
    }
    EXPECT_EQ(captions, (std::vector<std::string>{
                            "Linjelaster", "Antal linjelaster:", "Fack nr", "Avstånd från vänster stöd",
                            "(m)", "Last", "(kN/m)", "Multiplikatoer 1)", "Lastkombination", "Multiplikator",
                            "Brottlast", "Brukslast", "Långtidslast", "Brandlast",
                            "1) Multiplikatorn för aktuell Lastkombination = Partkoeff. x "
                            "Lastreduktionsfaktorn (Psi)"}));
    close(editor);

    main().post(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(loadPicture().handle()), -1);
    program().chooseInPopupMenu(0);
    EXPECT_EQ(program().window(freeLineLoadClass), editor.window()) << "there is one of it";
}

TEST_F(FreeLineLoads, ChangeTheSketchAndNotTheFile) {
    Lines lines = twelveMetres();
    lines.insert({{32, "1"}, {33, loadLine("1", "1.000", "5.000")}});
    open(lines);
    const DesignCase before = saved();
    const Bytes file = scene().read(program().caption());
    const Editor editor = openFree();
    count(editor, +1, "1");
    EXPECT_TRUE(changed()) << "the spinner marks, though nothing comes of it";
    enterRow(editor, 1, "2", "2", "10");
    expectRow(editor, 1, "2 2.00 10.00");
    EXPECT_FALSE(shaft(green).empty());
    EXPECT_EQ(saved(), before);
    const Bytes after = scene().read(program().caption());
    EXPECT_EQ(withLine(after, 1, "X"), withLine(file, 1, "X"));
    enter(editor.box(lllast, 1), "20");
    EXPECT_FALSE(changed()) << "a row does not mark";

    // Another case has none of its own; those of the memory stay.
    close(editor);
    open(twelveMetres());
    EXPECT_FALSE(shaft(green).empty());
    expectRow(openFree(), 1, "2 2.00 20.00");
}

TEST_F(FreeLineLoads, ReducedLoadsScaleTheArrowsOfTheCase) {
    Lines lines = twelveMetres();
    lines.insert({{32, "1"}, {33, loadLine("2", "2.000", "2.500")}});
    open(lines);
    const auto whole = shaft(red);
    ASSERT_FALSE(whole.empty());
    EXPECT_NEAR(whole.front(), 7, 1); // 100 twips
    const Editor editor = openFree();
    count(editor, +1, "1");
    enterRow(editor, 1, "1", "1", "5");
    count(editor, -1, "0");
    expectRow(editor, 1, "0 0.00 0.00");
    const Picture picture = grab(loadPicture());
    EXPECT_EQ(picture.count(green), 0) << "it is no longer drawn";
    EXPECT_NEAR(picture.rows(280, red).front(), 30, 1) << "but still the largest";
}

TEST_F(FreeLineLoads, RowsCountedAwayComeBack) {
    open();
    Editor editor = openFree();
    for (int n = 1; n <= 5; ++n)
        count(editor, +1, std::to_string(n));
    for (int row = 1; row <= 5; ++row)
        enterRow(editor, row, std::to_string(row).c_str(), "1,5", "4");
    EXPECT_TRUE(changed());
    saved();
    count(editor, +1, "5");
    EXPECT_FALSE(changed()) << "five are the most";
    for (int n = 4; n >= 0; --n)
        count(editor, -1, std::to_string(n));
    saved();
    count(editor, -1, "0");
    EXPECT_FALSE(changed());
    close(editor);
    editor = openFree();
    expectRow(editor, 1, "-");
    for (int n = 1; n <= 5; ++n)
        count(editor, +1, std::to_string(n));
    expectRow(editor, 1, "1 1.50 4.00");
    expectRow(editor, 5, "5 1.50 4.00");
}

TEST_F(FreeLineLoads, BothEditorsAreOpenBesideTheForm) {
    Lines lines = twelveMetres();
    lines.insert({{32, "1"}, {33, loadLine("1", "2.000", "5.000")}});
    open(lines);
    const Editor own = openEditor();
    const Editor other = openFree();
    count(other, +1, "1");
    enterRow(other, 1, "2", "2", "5");
    enter(own.box(avst, 1), "1,5");
    type(field(Field::konsh), "1");
    clickInto(other.box(llfnr, 1));
    expectText(Field::konsh, shown("1.00"));
    const Picture picture = grab(loadPicture());
    EXPECT_GT(picture.count(red), 0);
    EXPECT_GT(picture.count(green), 0);
    EXPECT_EQ(own.text(nllast), "1");
    EXPECT_EQ(saved().avst(1), 1.5f);
    close(own);
    EXPECT_TRUE(other.window().visible());
}

TEST_F(FreeLineLoads, MultipliersAreOnlyRewritten) {
    open();
    saved();
    Editor editor = openFree();
    const DesignCase before = saved();
    constexpr std::pair<const char*, const char*> typed[] = {
        {"1,5", "1.50"}, {"1.35", "1.35"}, {"abc", "0.00"}, {"0,305", "0.31"}};
    int i = 0;
    for (const auto& [text, shows] : typed) {
        EXPECT_EQ(editor.text(multiplier, ++i), "") << "blank when the editor is loaded";
        enter(editor.box(multiplier, i), text);
        expectBox(editor, multiplier, i, shown(shows));
    }
    EXPECT_FALSE(changed());
    EXPECT_EQ(saved(), before);
    close(editor);
    editor = openFree();
    for (int box = 1; box <= 4; ++box)
        EXPECT_EQ(editor.text(multiplier, box), "");
}

} // namespace
} // namespace varno::gui
