// Coming to the main window from other windows of the program, and from other programs.
#include <gtest/gtest.h>

#include <functional>

#include "driver/mouse.h"
#include "driver/other_program.h"
#include "driver/remote.h"
#include "driver/wait.h"
#include "line_load_rig.h"

namespace varno::gui {
namespace {

constexpr const char* diagramClass = "VarnoMomkurva";

class Activation : public LineLoads {
  protected:
    static void expectActive(const Control& window,
                             std::source_location place = std::source_location::current()) {
        expectSoon(
            program(), window, [] { return Control(GetForegroundWindow()); }, place);
    }
    // By its title bar, so that nothing in it is clicked.
    static void goTo(const Control& window) {
        mouse::clickUntil([&] { return GetForegroundWindow() == window.handle(); },
                          [&] { mouse::clickTitle(window); });
        expectActive(window);
        // Until Windows takes the button as let go it moves the window, and takes keys for itself. The click that brought the
        // window forward may not even have come to that.
        int calm = 0;
        EXPECT_TRUE(program().until([&] {
            calm = isMoved(window) ? 0 : calm + 1;
            return calm == 20;
        }));
    }
    static bool isMoved(const Control& window) {
        window.send(WM_NULL);
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return GetGUIThreadInfo(GetWindowThreadProcessId(window.handle(), nullptr), &info) == FALSE ||
               info.hwndCapture != nullptr || (info.flags & GUI_INMOVESIZE) != 0;
    }
    static void clickIn(const Control& box) {
        mouse::clickInto(program(), box);
        expectFocus(box);
    }
    // Whatever lies over it: in a desktop of Wine a window drops behind the one that it belongs to.
    static void goToCovered(const Control& window) {
        // The program in front may hand that on; which it is, the one under test or this, is up to the test.
        mouse::clickUntil([&] { return GetForegroundWindow() == window.handle(); },
                          [&] {
                              if (SetForegroundWindow(window.handle()) == FALSE)
                                  callIn(program().process(), L"user32.dll", "SetForegroundWindow",
                                         {reinterpret_cast<DWORD>(window.handle())});
                          });
        expectActive(window);
    }
    // To another program, and back to `window`.
    static void lookElsewhere(const Control& window) {
        const OtherProgram other;
        other.activate();
        settleAway();
        goTo(window);
    }
    // Everything that came with the other program has been dealt with, and no field has the focus.
    static void settleAway() {
        expectSoon(program(), Control(), [] { return program().focused(); });
        main().send(WM_NULL);
    }
    static void selectPart(const Control& box, int from, int to) {
        box.send(EM_SETSEL, static_cast<WPARAM>(from), to);
        ASSERT_EQ(box.selection(), std::pair(from, to));
    }
    static Control otherWindow(int command, const char* className) {
        program().command(command);
        const Control window = program().window(className);
        expectActive(window);
        return window;
    }
};

TEST_F(Activation, AfterEachWindowOfTheProgramTheTitleHasTheFocus) {
    open();
    EXPECT_FALSE(changed()) << "there is a result and a diagram to show";
    for (const auto& [command, name] : {std::pair(idLineLoads, lineLoadClass),
                                        {idFreeLineLoads, freeLineLoadClass},
                                        {idMoment, diagramClass},
                                        {idImportant, disclaimerClass},
                                        {idShowResult, viewerClass}}) {
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, name);
        clickInto(field(Field::konsh));
        const Control window = otherWindow(command, name);
        goTo(main());
        expectFocus(field(Field::rubrik));
        window.post(WM_CLOSE);
        program().waitGone(window);
        expectActive(main());
    }
    EXPECT_FALSE(changed());
}

TEST_F(Activation, ClickIntoAFieldEndsInThatField) {
    open();
    const Editor editor = openEditor();
    expectActive(editor.window());
    // A box that the editor does not cover.
    mouse::click(field(Field::rubrik));
    expectActive(main());
    goToCovered(editor.window());
    clickIn(field(Field::overhojning));
    expectActive(main());
    close(editor);
}

TEST_F(Activation, MessageBoxComesBetweenWithoutATrace) {
    open();
    enter(Field::konsh, "0,5");
    clickInto(field(Field::konsv));
    program().command(idRun);
    EXPECT_EQ(program().answer().text, "Du måste spara Filen först !");
    expectActive(main());
    expectFocus(field(Field::konsv));
}

TEST_F(Activation, MessageThatComesWhileAwayBelongsToTheMainWindow) {
    open();
    enter(Field::konsh, "0,5");
    {
        const OtherProgram other;
        other.activate();
        settleAway();
        program().command(idRun);
        const Control box = program().window(messageBoxClass);
        EXPECT_EQ(GetWindow(box.handle(), GW_OWNER), main().handle());
        EXPECT_FALSE(main().enabled());
        program().answer();
    }
    goTo(main());
}

TEST_F(Activation, AnotherProgramLeavesTheFieldAsItIs) {
    open();
    const Control box = field(Field::spv, 2);
    type(box, "5,5x");
    selectPart(box, 1, 3);
    lookElsewhere(main());
    expectFocus(box);
    EXPECT_EQ(box.text(), "5,5x");
    EXPECT_EQ(box.selection(), std::pair(1, 3));
    // As with a click: what comes while the window is still being let go of is lost, and a user types it again.
    mouse::clickUntil([&] { return box.text() != "5,5x"; }, [] { keyboard::type("1"); });
    expectText(Field::spv, 2, "51x");
    tab();
    expectText(Field::spv, 2, shown("51.00"));
    EXPECT_EQ(saved().spv(2), 51.0f);
}

TEST_F(Activation, AnotherProgramChangesNothing) {
    open({{20, "25"}});
    // Leaving the first marks the case; leaving the second rewrites it.
    for (const Field name : {Field::initiell, Field::ktack}) {
        const Control box = field(name);
        clickInto(box);
        const std::string before = box.text();
        lookElsewhere(main());
        expectFocus(box);
        EXPECT_EQ(box.text(), before);
        EXPECT_FALSE(changed());
        open({{20, "25"}});
    }
}

TEST_F(Activation, ComingBackToAnotherFieldLeavesTheOneBefore) {
    open();
    type(field(Field::spv, 1), "6,5x");
    {
        const OtherProgram other;
        other.activate();
        settleAway();
        EXPECT_EQ(text(Field::spv, 1), "6,5x");
        clickIn(field(Field::konsh));
    }
    expectText(Field::spv, 1, shown("6.50"));
    EXPECT_EQ(saved().spv(3), 6.5f);
}

TEST_F(Activation, ComingBackToAnotherWindowLeavesTheField) {
    open();
    const Editor editor = openEditor();
    goTo(main());
    type(field(Field::rubrik), "Nytt");
    tab();
    tab();
    type(program().focused(), "6,5x");
    const Control box = program().focused();
    {
        const OtherProgram other;
        other.activate();
        settleAway();
        EXPECT_EQ(box.text(), "6,5x");
        goToCovered(editor.window());
    }
    expectText(Field::spv, 1, shown("6.50"));
    close(editor);
    EXPECT_EQ(saved().spv(3), 6.5f);
}

TEST_F(Activation, LineLoadEditorKeepsWhatIsTyped) {
    open();
    const Editor editor = openEditor();
    count(editor, +1, "1");
    const Control box = editor.box(LineLoadBox::llfnr, 1);
    clickInto(box);
    settle();
    box.selectAll();
    keyboard::type("20x");
    expectBox(editor, LineLoadBox::llfnr, 1, "20x");
    selectPart(box, 2, 2);
    lookElsewhere(editor.window());
    expectFocus(box);
    EXPECT_EQ(box.text(), "20x");
    EXPECT_EQ(box.selection(), std::pair(2, 2));
    keyboard::press(VK_TAB);
    expectBox(editor, LineLoadBox::llfnr, 1, "15");
    close(editor);
}

} // namespace
} // namespace varno::gui
