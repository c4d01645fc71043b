// The keys that the help names window by window, where no other test presses them.
#include <gtest/gtest.h>

#include <algorithm>

#include "diagram_rig.h"
#include "driver/clipboard.h"
#include "driver/keyboard.h"
#include "driver/mouse.h"
#include "driver/prints.h"
#include "edit_rig.h"
#include "line_load_rig.h"

namespace varno::gui {
namespace {

constexpr const char* deletionClass = "VarnoDelFile";

void expectAt(const Program& program, const Control& control,
              std::source_location place = std::source_location::current()) {
    expectSoon(
        program, control, [&] { return program.focused(); }, place);
}

// Until the window in front takes keys: it has the focus in one of its parts.
void waitForKeys(const Program& program, const Control& window) {
    expectSoon(program, true, [&] {
        return GetForegroundWindow() == window.handle() &&
               IsChild(window.handle(), program.focused().handle()) != FALSE;
    });
}

void reach(const Program& program, WORD key, const Control& control) {
    for (int i = 0; i < 12 && program.focused() != control; ++i) {
        const Control before = program.focused();
        keyboard::press(key);
        ASSERT_TRUE(program.until([&] { return program.focused() != before; }));
    }
    expectAt(program, control);
}

// A key that comes before the menu has them goes to the window.
void enterMenuBar(const Program& program) {
    keyboard::press(VK_MENU);
    program.until([&] { return program.inMenu(); });
}

void closeWithAltF4(const Program& program, const Control& window) {
    mouse::clickUntil([&] { return !window.visible(); },
                      [&] {
                          if (GetForegroundWindow() == window.handle()) keyboard::pressWith(VK_MENU, VK_F4);
                      });
    program.waitGone(window);
}

class KeysOfTheForm : public LineLoads {
  protected:
    static Control flag(int number) { return mainItem(idFlag + number); }
    // A menu that a key brings up, its first caption, and away again.
    static std::string menuAfter(const std::function<void()>& press) {
        press();
        const std::string first = program().popupMenu().at(0).caption;
        program().keysInPopupMenu({VK_ESCAPE});
        return first;
    }
};

TEST_F(KeysOfTheForm, EnterAndSpaceOnTheFlagAndItsMenu) {
    open();
    keyboard::pressWith(VK_SHIFT, VK_TAB);
    expectFocus(loadPicture());
    EXPECT_EQ(menuAfter([] { keyboard::press(VK_APPS); }), "Fria linjelaster");
    keyboard::pressWith(VK_SHIFT, VK_TAB);
    expectFocus(flag(2));
    EXPECT_EQ(menuAfter([] { keyboard::press(VK_APPS); }), "Byt till svenska byggregler (BKR)");
    expectFocus(flag(2));
    EXPECT_EQ(menuAfter([] { keyboard::pressWith(VK_SHIFT, VK_F10); }), "Byt till svenska byggregler (BKR)");
    keyboard::press(VK_SPACE);
    expectFocus(flag(3));
    keyboard::press(VK_RETURN);
    expectFocus(flag(4));
}

TEST_F(KeysOfTheForm, ShiftEnterGoesBackAndCtrlInsertCopiesWhatIsSelected) {
    open();
    type(field(Field::konsv), "1,25");
    keyboard::press(VK_RETURN);
    expectText(Field::konsv, shown("1.25"));
    keyboard::pressWith(VK_SHIFT, VK_RETURN);
    expectFocus(field(Field::konsv));
    clickInto(field(Field::spv, 1));
    expectSoon(program(), std::pair(0, 4), [] { return field(Field::spv, 1).selection(); });
    clipboard::set("");
    keyboard::pressWith(VK_CONTROL, VK_INSERT);
    expectSoon(program(), shown("5.50"), [] { return clipboard::text(); });
}

TEST_F(KeysOfTheForm, AltLeadsToTheMenuAndTheArrowsChooseARecentCase) {
    open();
    enterMenuBar(program());
    keyboard::press(VK_DOWN);
    EXPECT_EQ(program().popupMenu().at(0).caption, "Ny");
    program().leaveMenus();
    expectFocus(field(Field::rubrik));
    open({}, "BOSTAD.IND");
    open({}, "KONTOR.IND");
    const std::string caption = program().caption();
    keyboard::pressWith({VK_CONTROL, VK_SHIFT}, 'O');
    program().chooseInPopupMenu(1);
    expectSoon(program(), true, [&] { return program().caption() != caption; });
}

TEST_F(KeysOfTheForm, AltAndEnterTwiceLeaveTheLineLoads) {
    open();
    for (const bool free : {false, true}) {
        const Editor editor = free ? openFree() : openEditor();
        waitForKeys(program(), editor.window());
        enterMenuBar(program());
        keyboard::press(VK_RETURN);
        const Control menu = program().window(popupMenuClass);
        EXPECT_EQ(program().popupMenu().at(0).caption, "Layout");
        keyboard::press(VK_RETURN);
        program().waitGone(menu);
        program().waitGone(editor.window());
        expectFocus(field(Field::rubrik));
    }
    const Editor editor = openEditor();
    waitForKeys(program(), editor.window());
    closeWithAltF4(program(), editor.window());
}

class KeysOfTheWindows : public Diagrams {
  protected:
    Control opened(int command, const char* windowClass) {
        program.command(command);
        const Control window = program.window(windowClass);
        waitForKeys(program, window);
        return window;
    }
    void tabTo(const Control& window, int id) const { reach(program, VK_TAB, window.item(id)); }
    // With Tab, the arrow keys and Enter.
    void openFolder(const Control& window) const {
        tabTo(window, idDirectoryList);
        const Control folders = window.item(idDirectoryList);
        for (int i = 0; i < 20 && !folders.selectedText().ends_with(folder); ++i) {
            const int before = folders.selectedRow();
            keyboard::press(VK_DOWN);
            ASSERT_TRUE(program.until([&] { return folders.selectedRow() != before; }));
        }
        keyboard::press(VK_RETURN);
        expectSoon(program, scene.path(folder), [&] { return window.item(idPathLabel).text(); });
        EXPECT_TRUE(window.visible());
    }

    const std::string folder = "Bygge å";
};

TEST_F(KeysOfTheWindows, OfTheResult) {
    const Control viewer = opened(idShowResult, viewerClass);
    const Control text = viewer.item(idFileTextBox);
    expectAt(program, text);
    const int end = static_cast<int>(text.text().size());
    ASSERT_GT(end, 1000);
    const auto caret = [&] { return text.selection().second; };
    keyboard::pressWith(VK_CONTROL, VK_END);
    expectSoon(program, true, [&] { return caret() > 1000; });
    const int last = caret();
    keyboard::press(VK_PRIOR);
    expectSoon(program, true, [&] { return caret() < last; });
    const int above = caret();
    keyboard::press(VK_NEXT);
    expectSoon(program, true, [&] { return caret() > above; });
    keyboard::pressWith(VK_CONTROL, VK_HOME);
    expectSoon(program, std::pair(0, 0), [&] { return text.selection(); });
    keyboard::pressWith(VK_SHIFT, VK_RIGHT);
    expectSoon(program, true, [&] { return text.selection().first == 0 && caret() > 0; });

    const LONG height = program.fontOf(text).lfHeight;
    keyboard::pressWith(VK_CONTROL, VK_OEM_PLUS);
    expectSoon(program, true, [&] { return std::abs(program.fontOf(text).lfHeight) > std::abs(height); });
    keyboard::pressWith(VK_CONTROL, VK_OEM_MINUS);
    expectSoon(program, height, [&] { return program.fontOf(text).lfHeight; });

    enterMenuBar(program);
    keyboard::press(VK_DOWN);
    EXPECT_EQ(program.popupMenu().at(0).caption, "Redigera");
    program.leaveMenus();
    waitForKeys(program, viewer);
    closeWithAltF4(program, viewer);
}

TEST_F(KeysOfTheWindows, OfTheDiagram) {
    Prints prints;
    Control window = opened(idMoment, diagramClass);
    for (const bool menuKey : {false, true}) {
        menuKey ? keyboard::press(VK_APPS) : keyboard::pressWith(VK_SHIFT, VK_F10);
        EXPECT_EQ(program.popupMenu().at(0).caption, "Visa värden");
        EXPECT_EQ(program.popupMenu().at(0).checked, menuKey);
        program.chooseInPopupMenu(0);
        waitForKeys(program, window);
    }
    expectAt(program, window.item(idPlot));
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_SPACE}}) {
        keyboard::press(key);
        window.item(idPlot).send(WM_NULL);
        program.command(idPrintResult);
        EXPECT_FALSE(prints.next().pages.empty());
        window.post(WM_CLOSE);
        program.waitGone(window);
        window = opened(idMoment, diagramClass);
    }
    keyboard::press(VK_ESCAPE);
    program.waitGone(window);
    window = opened(idMoment, diagramClass);
    enterMenuBar(program);
    keyboard::press(VK_RETURN);
    program.waitGone(window);
    window = opened(idMoment, diagramClass);
    closeWithAltF4(program, window);
}

TEST_F(KeysOfTheWindows, OfTheFileName) {
    scene.makeFolder(folder);
    const Control dialog = opened(idOpen, fileDialogClass);
    expectAt(program, dialog.item(idFileName));
    tabTo(dialog, idFileList);
    keyboard::press(VK_DOWN);
    expectSoon(program, true,
               [&] { return dialog.item(idFileName).text() == dialog.item(idFileList).selectedText(); });
    openFolder(dialog);
    keyboard::press(VK_ESCAPE);
    program.waitGone(dialog);
}

TEST_F(KeysOfTheWindows, OfTheDeletion) {
    scene.makeFolder(folder);
    Control window = opened(idDeleteResults, deletionClass);
    expectAt(program, window.item(idFileList));
    keyboard::press(VK_RETURN); // never deletes of itself
    const bool ticked = window.item(idConfirm).checked();
    tabTo(window, idConfirm);
    keyboard::press(VK_SPACE);
    expectSoon(program, !ticked, [&] { return window.item(idConfirm).checked(); });
    keyboard::press(VK_SPACE);
    expectSoon(program, ticked, [&] { return window.item(idConfirm).checked(); });
    openFolder(window);
    keyboard::press(VK_ESCAPE);
    program.waitGone(window);
    EXPECT_TRUE(scene.has("KONTOR.res"));
}

// A program that lies beside no help says so, whatever F1 is pressed in.
TEST(KeysForHelp, F1AndTheCommandInTheWindowsOwnMenu) {
    Scene scene;
    scene.write("varno.exe", readFile(programsFolder() + "\\varno.exe"));
    StartOptions options;
    options.program = scene.path("varno.exe");
    Program program(scene, options);
    program.passStartUp();
    const auto expectHelp = [&](const Control& window) {
        EXPECT_TRUE(program.answer().text.starts_with("Hjälpen hittas inte.")) << window.text();
        waitForKeys(program, window);
    };
    waitForKeys(program, program.main());
    keyboard::press(VK_F1);
    expectHelp(program.main());
    keyboard::pressWith(VK_MENU, VK_SPACE);
    const std::vector<MenuLine> rows = program.popupMenu();
    EXPECT_EQ(rows.back().caption, "Hjälp\tF1");
    program.chooseInPopupMenu(static_cast<int>(rows.size()) - 1);
    expectHelp(program.main());
    program.command(idLineLoads);
    const Control loads = program.window(lineLoadClass);
    waitForKeys(program, loads);
    keyboard::press(VK_F1);
    expectHelp(loads);
}

TEST(KeysAtTheStart, EnterPassesTheNoticeAndSpaceHidesIt) {
    Scene scene;
    scene.writeVersion(6);
    Program program(scene);
    const Control notice = program.window(noticeClass);
    waitForKeys(program, notice);
    reach(program, VK_TAB, notice.item(idHideNotice));
    keyboard::press(VK_SPACE);
    expectSoon(program, true, [&] { return notice.item(idHideNotice).checked(); });
    keyboard::press(VK_RETURN);
    program.waitGone(notice);
    const Control disclaimer = program.window(disclaimerClass);
    waitForKeys(program, disclaimer);
    keyboard::press(VK_RETURN);
    program.waitGone(disclaimer);
    expectSoon(program, true, [&] { return program.shows(mainClass); });
}

} // namespace
} // namespace varno::gui
