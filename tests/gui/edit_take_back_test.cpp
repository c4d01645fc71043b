// What a click into a box selects, and what Esc takes back.
#include <gtest/gtest.h>

#include "driver/mouse.h"
#include "line_load_rig.h"

namespace varno::gui {
namespace {

class TakeBack : public LineLoads {
  protected:
    static void expectSelection(const Control& box, int first, int last,
                                std::source_location place = std::source_location::current()) {
        expectSoon(
            program(), std::pair(first, last), [&] { return box.selection(); }, place);
    }
    static void click(const Control& box) { mouse::clickInto(program(), box); }
    static void expectWhole(const Control& box,
                            std::source_location place = std::source_location::current()) {
        expectFocus(box, place);
        expectSelection(box, 0, static_cast<int>(box.text().size()), place);
    }
    static void expectShows(const Control& box, const std::string& text,
                            std::source_location place = std::source_location::current()) {
        expectSoon(
            program(), text, [&] { return box.text(); }, place);
    }
};

TEST_F(TakeBack, AClickSelectsTheNumberAndTheSecondPlacesTheCaret) {
    open({{33, loadLine("1", "2.500", "8.500")}, {32, "1"}});
    const Editor editor = openEditor();
    for (const Control& box : {editor.box(LineLoadBox::avst, 1), editor.box(LineLoadBox::lllast, 1)}) {
        click(box);
        expectWhole(box);
    }
    close(editor);
    for (const Field row : {Field::spv, Field::ptjl, Field::konsv, Field::duarm, Field::nfack}) {
        const Control box = field(row, row == Field::spv || row == Field::ptjl ? 2 : 0);
        click(box);
        expectWhole(box);
    }
    const Control box = field(Field::spv, 2);
    click(box);
    expectWhole(box);
    box.clickInto(); // later than a double click
    expectSoon(program(), true, [&] {
        const auto [first, last] = box.selection();
        return first == last;
    });
    keyboard::press(VK_END);
    keyboard::type("1");
    expectShows(box, shown("5.501"));
}

TEST_F(TakeBack, AClickIntoTheTitlePlacesTheCaret) {
    open();
    tab();
    const Control title = field(Field::rubrik);
    click(title);
    expectFocus(title);
    expectSoon(program(), true, [&] {
        const auto [first, last] = title.selection();
        return first == last;
    });
}

TEST_F(TakeBack, EscTakesBackWhatWasTyped) {
    open({{15, "2.345"}});
    const Control box = field(Field::konsh);
    type(box, "7");
    keyboard::press(VK_ESCAPE);
    expectShows(box, shown("2.35"));
    expectWhole(box);
    tab();
    EXPECT_EQ(saved().konsh, 2.345f) << "as if it had not been touched";

    const Control title = field(Field::rubrik);
    const std::string before = title.text();
    type(title, "Hus 7, plan 2");
    keyboard::press(VK_ESCAPE);
    expectShows(title, before);
    // What was stored before stays; there is nothing more to take back.
    enter(Field::konsv, "1,5");
    keyboard::press(VK_ESCAPE);
    settle();
    EXPECT_EQ(saved().konsv, 1.5f);
}

TEST_F(TakeBack, TheSecondEscClosesTheLineLoads) {
    open({{33, loadLine("1", "2.500", "8.500")}, {32, "1"}});
    const Editor editor = openEditor();
    const Control box = editor.box(LineLoadBox::lllast, 1);
    type(box, "1234");
    keyboard::press(VK_ESCAPE);
    expectShows(box, shown("8.50"));
    expectWhole(box);
    keyboard::press(VK_ESCAPE);
    program().waitGone(editor.window());
    expectFocus(field(Field::rubrik));
    EXPECT_EQ(saved().lllast(1), 8.5f);
}

TEST_F(TakeBack, TheSecondEscClosesTheFileWindow) {
    open();
    program().command(idOpen);
    const Control dialog = program().window(fileDialogClass);
    const Control name = dialog.item(idFileName);
    expectFocus(name);
    const std::string before = name.text();
    keyboard::type("hus");
    expectShows(name, "hus");
    keyboard::press(VK_ESCAPE);
    expectShows(name, before);
    EXPECT_TRUE(dialog.visible());
    keyboard::press(VK_ESCAPE);
    program().waitGone(dialog);
}

} // namespace
} // namespace varno::gui
