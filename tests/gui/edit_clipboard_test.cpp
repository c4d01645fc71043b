// Rows of numbers between the grid and a spreadsheet.
#include <gtest/gtest.h>

#include "driver/clipboard.h"
#include "driver/wait.h"
#include "edit_rig.h"

namespace varno::gui {
namespace {

class GridClipboard : public Editing {
  protected:
    static void paste(const Control& cell, const std::string& text) {
        clipboard::set(text);
        clickInto(cell);
        keyboard::pressWith(VK_CONTROL, 'V');
    }
    static void expectCopied(const std::string& text,
                             std::source_location place = std::source_location::current()) {
        // Who reads the clipboard holds it, and keeps a program from writing: the key is pressed again.
        const auto copied = [] {
            keyboard::pressWith(VK_CONTROL, 'C');
            waitUntil([] { return false; }, nullptr, 200);
            return clipboard::text();
        };
        expectSoon(program(), text, copied, place);
    }
    static void expectRow(Field row, const std::vector<std::string>& numbers,
                          std::source_location place = std::source_location::current()) {
        for (std::size_t i = 0; i < numbers.size(); ++i)
            expectText(row, static_cast<int>(i) + 1, shown(numbers[i]), place);
    }
};

TEST_F(GridClipboard, APastedRowFillsTheCellsFromThereOn) {
    open({{6, cells({"4.000", "5.000", "6.000"})}});
    paste(field(Field::spv, 1), "4,25\t5.5\t6\r\n");
    expectRow(Field::spv, {"4.25", "5.50", "6.00"});
    expectFocus(field(Field::spv, 1));
    paste(field(Field::ptjl, 2), "0,2\n0,25\n");
    expectText(Field::ptjl, 2, shown("0.200"));
    expectText(Field::ptjl, 3, shown("0.250"));
    EXPECT_FALSE(program().diagramEnabled());
    const DesignCase stored = saved();
    EXPECT_EQ(stored.spv(1), 4.25f);
    EXPECT_EQ(stored.spv(2), 5.5f);
    EXPECT_EQ(stored.spv(3), 6.0f);
    EXPECT_EQ(stored.ptjl(3), 0.25f);
    // One edit, however many cells.
    keyboard::pressWith(VK_CONTROL, 'Z');
    keyboard::pressWith(VK_CONTROL, 'Z');
    expectRow(Field::spv, {"4.00", "5.00", "6.00"});
}

TEST_F(GridClipboard, NumbersWithoutACellAreTold) {
    open();
    paste(field(Field::plast, 3), "1\t2\t3");
    expectText(Field::plast, 3, shown("1.00"));
    expectSoon(program(), true, [] { return program().shows("tooltips_class32"); });
    tab();
    expectSoon(program(), false, [] { return program().shows("tooltips_class32"); });
}

TEST_F(GridClipboard, OneNumberIsPastedIntoItsBox) {
    open();
    paste(field(Field::konsv), "1,5\r\n");
    expectText(Field::konsv, "1,5");
    tab();
    expectText(Field::konsv, shown("1.50"));
    EXPECT_EQ(saved().konsv, 1.5f);
}

TEST_F(GridClipboard, CtrlCGivesTheRowAndAPartOfANumberItself) {
    open({{6, cells({"4.000", "5.000", "6.000"})}});
    const Control cell = field(Field::spv, 1);
    clickInto(cell);
    expectCopied(shown("4.00") + "\t" + shown("5.00") + "\t" + shown("6.00"));
    cell.send(EM_SETSEL, 0, 1);
    expectCopied("4");
    clickInto(field(Field::spv, 2));
    expectCopied(shown("5.00") + "\t" + shown("6.00"));
    clickInto(field(Field::konsv));
    expectCopied(shown("0.00"));
    EXPECT_FALSE(changed());
}

} // namespace
} // namespace varno::gui
