// A whole case from the keyboard alone, and the keys of the questions.
#include <gtest/gtest.h>

#include <functional>

#include "base/open_file.h"
#include "driver/mouse.h"
#include "line_load_rig.h"

namespace varno::gui {
namespace {

using enum LineLoadBox;

class KeyboardCase : public LineLoads {
  protected:
    // Each test ends its program.
    KeyboardCase() { restart(); }

    // From where the focus is, field by field; an empty text leaves the field as it is.
    static void fill(std::initializer_list<const char*> texts) {
        for (const char* const text : texts) {
            const Control box = program().focused();
            if (*text != '\0') {
                keyboard::type(text);
                expectSoon(program(), std::string(text), [&] { return box.text(); });
            }
            tab();
        }
    }
    static void expectAt(const Control& control,
                         std::source_location place = std::source_location::current()) {
        expectFocus(control, place);
    }
    // Pressed again like a click that went to a window on its way: Windows may still let go of the Alt key for it.
    static void pressAltF4(const std::function<bool()>& arrived) {
        expectSoon(program(), main(), [] { return Control(GetForegroundWindow()); });
        mouse::clickUntil(arrived, [] {
            if (GetForegroundWindow() == main().handle()) keyboard::pressWith(VK_MENU, VK_F4);
        });
    }
    static Control promptAfterAltF4() {
        pressAltF4([] { return program().shows(savePromptClass); });
        return program().window(savePromptClass);
    }
    static void pressOn(WORD key, const Control& reached,
                        std::source_location place = std::source_location::current()) {
        keyboard::press(key);
        expectFocus(reached, place);
    }
    static void enterForm();
    static void enterLineLoads();
    static void enterFreeLineLoads();
};

void KeyboardCase::enterForm() {
    expectAt(field(Field::rubrik));
    fill({"Plan 2 söder"});
    expectAt(field(Field::nfack));
    keyboard::press(VK_UP);
    expectText(Field::nfack, "4");
    fill({"", "4,5", "5", "", "6"});         // to the last span length
    fill({"0,2", "", "", "", "0,75"});       // thickness, and into the loads
    fill({"", "", "", "1,5", "2", "", "3"}); // the variable ones
    fill({"0,15", "", "0,2", "1", "0,5"});   // supports and cantilevers
    expectAt(field(Field::lokt));
    tab();
    expectAt(field(Field::lastkomb, 3));
    pressOn(VK_UP, field(Field::lastkomb, 2));
    tab();
    tab(); // past the class
    expectAt(field(Field::btg));
    tab();
    expectAt(field(Field::kutak, 1));
    pressOn(VK_DOWN, field(Field::kutak, 2));
    tab();
    expectAt(field(Field::aok));
    keyboard::press(VK_UP);
    fill({"", "", "30"});
    expectAt(field(Field::kavko));
    keyboard::press(VK_SPACE);
    fill({"", "", "", "45", ""});
    while (program().focused() != field(Field::overhojning))
        tab();
    fill({"12"});
}

void KeyboardCase::enterLineLoads() {
    program().chooseInMenuBar(1, 0);
    const Editor editor(program().window(lineLoadClass));
    expectAt(editor.box(nllast));
    keyboard::press(VK_UP);
    keyboard::press(VK_UP);
    keyboard::press(VK_UP);
    expectBox(editor, nllast, 0, "3");
    keyboard::press(VK_DOWN);
    expectBox(editor, nllast, 0, "2");
    fill({"", "1", "2,5", "8"});
    pressOn(VK_DOWN, editor.box(llfnr, 2)); // there is no row below
    pressOn(VK_UP, editor.box(llfnr, 1));
    pressOn(VK_DOWN, editor.box(llfnr, 2));
    fill({"2", "1", "6"});
    expectRow(editor, 1, "1 2.50 8.00");
    expectRow(editor, 2, "2 1.00 6.00");
    keyboard::press(VK_ESCAPE);
    program().waitGone(editor.window());
    expectAt(field(Field::rubrik));
}

void KeyboardCase::enterFreeLineLoads() {
    keyboard::pressWith(VK_SHIFT, VK_TAB);
    expectAt(loadPicture());
    keyboard::pressWith(VK_SHIFT, VK_F10);
    program().chooseInPopupMenu(0);
    const Editor editor(program().window(freeLineLoadClass));
    expectAt(editor.box(nllast));
    keyboard::press(VK_UP);
    expectBox(editor, nllast, 0, "1");
    fill({"", "3", "1,5", "9"});
    expectAt(editor.box(multiplier, 1));
    fill({"1,5"});
    pressOn(VK_UP, editor.box(multiplier, 1));
    expectBox(editor, multiplier, 1, shown("1.50"));
    keyboard::press(VK_ESCAPE);
    program().waitGone(editor.window());
}

TEST_F(KeyboardCase, IsEnteredSavedAndCalculatedWithoutAMouse) {
    enterForm();
    expectAt(mainItem(idFlag + 2));
    tab();
    expectAt(loadPicture());
    tab();
    expectAt(field(Field::rubrik));
    enterLineLoads();
    enterFreeLineLoads();
    EXPECT_GT(grab(loadPicture()).count(RGB(0, 0x80, 0)), 0) << "the free line load";

    program().chooseInMenuBar(0, 3); // Spara
    const Control dialog = program().window(fileDialogClass);
    expectAt(dialog.item(idFileName));
    keyboard::type("tangent");
    expectSoon(program(), std::string("tangent"), [&] { return dialog.item(idFileName).text(); });
    keyboard::press(VK_RETURN);
    expectCaption(program(), "TANGENT.IND");

    program().chooseInMenuBar(2, 0); // Kör...
    const Control viewer = program().window(viewerClass);
    expectAt(viewer.item(idFileTextBox));
    tab();
    expectAt(viewer.item(idReturn));
    keyboard::press(VK_RETURN);
    program().waitGone(viewer);
    expectAt(field(Field::rubrik));

    const Bytes file = readFile(scene().path("TANGENT.IND"));
    const auto line = [&](int number) {
        std::size_t from = 0;
        for (int i = 1; i < number; ++i)
            from = file.find("\r\n", from) + 2;
        return file.substr(from, file.find("\r\n", from) - from);
    };
    EXPECT_EQ(line(5), "4");
    EXPECT_EQ(line(6), cells({"4.500", "5.000", "5.000", "6.000"}));
    EXPECT_EQ(line(7), cells({"0.200", "0.200", "0.200", "0.200"}));
    EXPECT_EQ(line(8), cells({"0.000", "0.150", "0.150", "0.200", "0.000"}, 6));
    EXPECT_EQ(line(11), "2");
    EXPECT_EQ(line(12), cells({"0.750", "0.750", "0.750", "0.750"}));
    EXPECT_EQ(line(13), cells({"1.500", "2.000", "2.000", "3.000"}));
    EXPECT_EQ(line(26), "2");
    EXPECT_EQ(line(28), "12");
    EXPECT_EQ(line(32), "2");

    pressAltF4([] { return !program().running(); });
    expectSoon(program(), false, [] { return program().running(); });
}

TEST_F(KeyboardCase, TheQuestionAtTheEndIsAnsweredWithKeys) {
    keyboard::type("Ny rubrik");
    expectText(Field::rubrik, "Ny rubrik");
    const Control prompt = promptAfterAltF4();
    expectAt(prompt.item(idYesButton));
    pressOn(VK_RIGHT, prompt.item(idNoButton));
    pressOn(VK_RIGHT, prompt.item(idCancelButton));
    pressOn(VK_LEFT, prompt.item(idNoButton));
    pressOn(VK_LEFT, prompt.item(idYesButton));
    keyboard::press(VK_ESCAPE);
    program().waitGone(prompt);
    EXPECT_TRUE(program().running());
    expectAt(promptAfterAltF4().item(idYesButton));
    keyboard::press('N');
    expectSoon(program(), false, [] { return program().running(); });
}

TEST_F(KeyboardCase, TheQuestionBeforeANewCaseIsAnsweredWithKeys) {
    keyboard::type("Ny rubrik");
    expectText(Field::rubrik, "Ny rubrik");
    program().command(idNew);
    const Control prompt = program().window(savePromptClass);
    expectAt(prompt.item(idYesButton));
    keyboard::press(VK_ESCAPE); // neither answer is meant by it
    pressOn(VK_RIGHT, prompt.item(idNoButton));
    keyboard::press(VK_RETURN);
    program().waitGone(prompt);
    expectText(Field::rubrik, "Nytt bjälklag");

    keyboard::type("En till");
    expectText(Field::rubrik, "En till");
    program().command(idNew);
    expectAt(program().window(savePromptClass).item(idYesButton));
    keyboard::press('J');
    const Control dialog = program().window(fileDialogClass);
    keyboard::press(VK_ESCAPE);
    program().waitGone(dialog);
    EXPECT_EQ(text(Field::rubrik), "En till") << "the case that was not saved stays";
}

} // namespace
} // namespace varno::gui
