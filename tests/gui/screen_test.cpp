// The main window in more and in less room than it was laid out for.
#include <gtest/gtest.h>

#include "driver/keyboard.h"
#include "driver/mouse.h"
#include "driver/wait.h"
#include "shared_program.h"
#include "soon.h"

namespace varno::gui {
namespace {

SIZE sizeOf(const Control& window) {
    RECT box{};
    GetWindowRect(window.handle(), &box);
    return {box.right - box.left, box.bottom - box.top};
}

SIZE clientOf(const Control& window) {
    RECT box{};
    GetClientRect(window.handle(), &box);
    return {box.right, box.bottom};
}

class Screen : public SharedProgram {
  protected:
    static void SetUpTestSuite() {
        SharedProgram::SetUpTestSuite();
        program().open("TIOFACK.IND");
    }
    static Control main() { return program().main(); }
    static Control form() { return program().form(); }

    // Windows keeps a size within the limits that the window has.
    static void resize(int width, int height) {
        SetWindowPos(main().handle(), nullptr, 0, 0, width, height,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
        settle();
    }
    static void settle() { main().send(WM_NULL); }
    static bool seenWhole(const Control& control) {
        const RECT box = control.place();
        const SIZE client = clientOf(form());
        return box.left >= 0 && box.top >= 0 && box.right <= client.cx && box.bottom <= client.cy;
    }
    static LONG topOf(Field field) { return program().field(field).place().top; }
};

TEST_F(Screen, TabNeverLeadsToAFieldThatIsNotSeen) {
    for (const SIZE size : {SIZE{1024, 600}, SIZE{640, 420}}) {
        resize(size.cx, size.cy);
        const Control first = program().field(Field::rubrik);
        first.clickInto();
        expectSoon(program(), first, [] { return program().focused(); });
        int fields = 0;
        Control last = first;
        for (; fields < 100; ++fields) {
            keyboard::press(VK_TAB);
            ASSERT_TRUE(program().until([&] { return program().focused() != last; }));
            last = program().focused();
            // After the last field the flag, which stands on the main window.
            if (GetParent(last.handle()) != form().handle()) break;
            EXPECT_TRUE(program().until([&] { return seenWhole(last); })) << "field " << last.id();
        }
        EXPECT_GE(fields, 60);
        // And back into the form, from its end and from its beginning.
        keyboard::pressWith(VK_SHIFT, VK_TAB);
        expectSoon(program(), true, [] { return seenWhole(program().field(Field::overhojning)); });
    }
}

TEST_F(Screen, WheelScrollsTheForm) {
    resize(1024, 600);
    const int category = program().field(Field::lokt).selectedRow();
    const auto toTop = [] {
        mouse::wheel(program().field(Field::rubrik), 30);
        expectSoon(program(), true, [] { return topOf(Field::rubrik) >= 0; });
    };
    // Over what takes no wheel itself, over a closed list, a spin button, and the sketch above the form.
    for (const Control& over :
         {program().field(Field::rubrik), program().field(Field::konsv), form(), program().field(Field::lokt),
          program().field(Field::spin1), main().item(idLoadPicture)}) {
        toTop();
        const LONG before = topOf(Field::rubrik);
        mouse::wheel(over, -1);
        EXPECT_TRUE(program().until([&] { return topOf(Field::rubrik) < before; })) << over.id();
    }
    toTop();
    EXPECT_EQ(program().field(Field::nfack).text(), "10");
    EXPECT_EQ(program().field(Field::lokt).selectedRow(), category);
}

TEST_F(Screen, ABoxThatIsNotCutStaysWhereItIsWhenItIsClicked) {
    resize(1024, 600);
    mouse::wheel(form(), 30);
    // The title alone shows before the wheel is turned.
    expectSoon(program(), true, [] { return seenWhole(program().field(Field::konsv)); });
    const LONG before = topOf(Field::konsv);
    mouse::clickInto(program(), program().field(Field::konsv));
    expectSoon(program(), program().field(Field::konsv), [] { return program().focused(); });
    EXPECT_EQ(topOf(Field::konsv), before);
}

TEST_F(Screen, TheWindowKeepsASizeThatOneCanWorkIn) {
    resize(10, 10);
    const SIZE least = sizeOf(main());
    EXPECT_GE(least.cx, 640);
    EXPECT_GE(least.cy, 300);
    EXPECT_LE(least.cx, 700);
    EXPECT_LE(least.cy, 500);
    EXPECT_GE(clientOf(form()).cy, 100);
}

TEST_F(Screen, TheSketchGrowsAndShrinksWithTheWindow) {
    resize(640, 420);
    const SIZE small = clientOf(main().item(idLoadPicture));
    resize(980, 740);
    const SIZE natural = clientOf(main().item(idLoadPicture));
    ShowWindowAsync(main().handle(), SW_MAXIMIZE);
    expectSoon(program(), true, [] { return IsZoomed(main().handle()) != FALSE; });
    settle();
    const SIZE large = clientOf(main().item(idLoadPicture));
    EXPECT_LT(small.cx, natural.cx);
    EXPECT_GT(large.cx, natural.cx * 5 / 4);
    EXPECT_GT(large.cy, natural.cy * 5 / 4);
    // The same picture at another scale.
    EXPECT_NEAR(large.cx * natural.cy, natural.cx * large.cy, natural.cx + large.cx);

    // The form in the middle of its room.
    const RECT first = program().field(Field::rubrik).place();
    const RECT last = program().field(Field::konsv).place();
    EXPECT_GT(first.left, 100);
    EXPECT_GT(clientOf(form()).cx - last.right, 100);
    ShowWindowAsync(main().handle(), SW_RESTORE);
    expectSoon(program(), false, [] { return IsZoomed(main().handle()) != FALSE; });
}

TEST_F(Screen, ANumberThatIsTooWideForEveryFaceStandsBesideItsBox) {
    resize(980, 740);
    const auto shown = [](const std::string& text) {
        for (HWND tip = nullptr;
             (tip = FindWindowExW(nullptr, tip, L"tooltips_class32", nullptr)) != nullptr;) {
            try {
                if (IsWindowVisible(tip) && Control(tip).text() == text) return true;
            } catch (const GuiError&) {
                // It went while it was asked.
            }
        }
        return false;
    };
    program().typeInto({Field::plast, 1}, "12345678");
    program().field(Field::rubrik).clickInto();
    expectSoon(program(), true,
               [] { return program().field(Field::plast, 2).text().starts_with("12345678"); });
    const std::string whole = program().field(Field::plast, 2).text();
    EXPECT_FALSE(shown(whole));
    program().field(Field::plast, 2).clickInto();
    expectSoon(program(), true, [&] { return shown(whole); });
    program().field(Field::rubrik).clickInto();
    expectSoon(program(), false, [&] { return shown(whole); });
}

// A screen that is small for its scaling: 640 x 400 at 100 %.
TEST(SmallScreen, NoWindowIsLargerThanTheWorkArea) {
    Scene scene;
    scene.remove("varno.ver");
    scene.write("TIOFACK.res", "Resultat\r\n");
    StartOptions options;
    options.dpi = 192;
    Program program(scene, options);
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const auto expectInside = [&](const Control& window) {
        RECT box{};
        GetWindowRect(window.handle(), &box);
        RECT common{};
        IntersectRect(&common, &box, &work);
        EXPECT_TRUE(EqualRect(&common, &box)) << window.className();
    };
    expectInside(program.window(noticeClass));
    program.passStartUp();
    expectInside(program.main());
    program.open("TIOFACK.IND");
    program.calculate();
    program.command(idMoment);
    expectInside(program.window("VarnoMomkurva"));
    program.command(idShowResult);
    expectInside(program.window(viewerClass));
}

// What belongs to the main window has no button in the task bar.
TEST(SmallScreen, OnlyTheMainWindowCanBeMinimised) {
    const Scene scene;
    Program program(scene);
    program.passStartUp();
    program.open("BOSTAD.IND");
    program.calculate();
    program.command(idShowResult);
    program.command(idMoment);
    for (const char* name : {viewerClass, "VarnoMomkurva"}) {
        const LONG style = program.window(name).style();
        EXPECT_EQ(style & WS_MINIMIZEBOX, 0) << name;
        EXPECT_NE(style & WS_MAXIMIZEBOX, 0) << name;
    }
}

} // namespace
} // namespace varno::gui
