// Every window at 100, 125, 150 and 200 %: captions are shown whole and nothing overlaps.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "input/form_layout.h"
#include "layout_check.h"
#include "picture.h"
#include "soon.h"

namespace varno::gui {
namespace {

class Layout : public ::testing::TestWithParam<int> {
  protected:
    Layout() {
        options.dpi = GetParam();
        scene.remove("varno.ver");
        scene.write("TIOFACK.res", "Resultat\r\n");
    }

    static void expectSound(const Program& program, const Control& window) {
        EXPECT_EQ(layoutFaults(program, window, GetParam()), std::vector<std::string>{})
            << window.className() << " at " << GetParam() << " dpi";
    }
    // At 200 % the test's screen is too low for a window of this height at 100 %.
    static void expectHighSound(const Program& program, const Control& window, int height) {
        RECT area{};
        GetClientRect(window.handle(), &area);
        if (GetParam() == 192) area.bottom = MulDiv(height, GetParam(), 96);
        EXPECT_EQ(layoutFaults(program, window, GetParam(), area), std::vector<std::string>{})
            << window.className() << " at " << GetParam() << " dpi";
    }
    // The form scrolls on a screen that is too small for it.
    static void expectFormSound(const Program& program) {
        const auto px = [](int twips) { return MulDiv(twips, GetParam(), 1440); };
        RECT area{0, 0, px(formWidth), px(formHeight)};
        const RECT title = program.field(Field::rubrik).place();
        for (const ControlSpec& spec : inputFormLayout()) {
            if (spec.id == controlId({Field::rubrik}))
                OffsetRect(&area, title.left - px(spec.x), title.top - px(spec.y));
        }
        EXPECT_EQ(layoutFaults(program, program.form(), GetParam(), area), std::vector<std::string>{})
            << "the form at " << GetParam() << " dpi";
    }
    // Letters that are drawn wider than they are measured would reach the right edge.
    static void expectUncut(const Program& program, const Control& text) {
        const auto ink = [&](int fromRight) {
            const Picture picture = Picture::ofScreen(text.handle());
            const int x = picture.width() - 1 - fromRight;
            return picture.height() -
                   static_cast<int>(picture.rows(x, picture.at(0, picture.height() - 1)).size());
        };
        expectSoon(program, true, [&] {
            const Picture picture = Picture::ofScreen(text.handle());
            return picture.count(GetSysColor(COLOR_BTNTEXT)) > 300;
        });
        for (const int column : {0, 1})
            EXPECT_EQ(ink(column), 0) << text.text() << " at " << GetParam() << " dpi";
    }
    static void expectBandSound(const Program& program) { expectSound(program, program.main()); }
    static void close(const Program& program, const Control& window, int button) {
        window.item(button).click();
        program.waitGone(window);
    }

    Scene scene;
    StartOptions options;
};

TEST_P(Layout, OfTheStartUpWindows) {
    const Program program(scene, options);
    const Control notice = program.window(noticeClass);
    expectSound(program, notice);
    close(program, notice, idOkButton);
    const Control disclaimer = program.window(disclaimerClass);
    expectSound(program, disclaimer);
    for (const int text : {idTextOne, idTextTwo})
        expectUncut(program, disclaimer.item(text));
}

TEST_P(Layout, OfTheFormAndTheBandAboveIt) {
    Program program(scene, options);
    program.passStartUp();
    for (const char* name : {"BOSTAD.IND", "TIOFACK.IND"}) {
        program.open(name);
        expectFormSound(program);
    }
    // Too wide for a box of the grid, and shown whole all the same.
    program.typeInto({Field::spv, 1}, "1000");
    program.field(Field::rubrik).clickInto();
    expectSoon(program, true, [&] { return program.field(Field::spv, 10).text().starts_with("1000"); });
    expectFormSound(program);
    // The name beside each of the flags.
    for (int flag = 3; flag < 3 + 6; ++flag) {
        const Control shown = program.main().item(idFlag + (flag - 1) % 6 + 1);
        expectSoon(program, true, [&] { return shown.visible(); });
        expectBandSound(program);
        shown.click();
    }
}

// With its longest words.
TEST_P(Layout, OfTheStatusLine) {
    Program program(scene, options);
    program.passStartUp();
    program.open("TIOFACK.IND");
    program.calculate();
    program.typeInto({Field::spv, 1}, "10000");
    program.field(Field::rubrik).clickInto();
    const auto result = [&] { return program.main().item(idStatusResult).text(); };
    expectSoon(program, true, [&] { return result().ends_with(", äldre än indata"); });
    const auto length = [&] { return program.main().item(idStatusLength).text(); };
    expectSoon(program, true,
               [&] { return length().size() >= std::string("Total längd 100000,00 m").size(); });
    expectBandSound(program);
}

TEST_P(Layout, OfTheDialogsAndTheViewer) {
    Program program(scene, options);
    program.passStartUp();
    program.open("TIOFACK.IND");
    for (const int command : {idOpen, idSaveAs}) {
        program.command(command);
        const Control dialog = program.window(fileDialogClass);
        expectSound(program, dialog);
        // With what it tells of the chosen case.
        dialog.item(idFileList).choose("TIOFACK.IND");
        dialog.send(WM_NULL);
        constexpr int height = 424;
        expectHighSound(program, dialog, height);
        expectUncut(program, dialog.item(idNote));
        close(program, dialog, idCancelButton);
    }
    program.command(idShowResult);
    const Control viewer = program.window(viewerClass);
    expectSound(program, viewer);
    viewer.post(WM_COMMAND, idEditFont);
    const Control chooser = program.window(fontChooserClass);
    expectSound(program, chooser);
    close(program, chooser, idCancelButton);
    close(program, viewer, idReturn);

    program.typeInto({Field::rubrik}, "Ändrad");
    program.command(idNew);
    const Control prompt = program.window(savePromptClass);
    expectSound(program, prompt);
    close(program, prompt, idNoButton);
    expectCaption(program, "NAMNLÖS.IND");
    program.typeInto({Field::rubrik}, "Ändrad");
    program.command(idExit);
    expectSound(program, program.window(savePromptClass));
}

TEST_P(Layout, OfTheLineLoadEditorsAndTheDiagram) {
    Program program(scene, options);
    program.passStartUp();
    program.open("TIOFACK.IND");
    program.calculate();
    program.command(idMoment);
    const Control diagram = program.window("VarnoMomkurva");
    expectSound(program, diagram);
    ShowWindowAsync(diagram.handle(), SW_MAXIMIZE);
    expectSoon(program, true, [&] { return IsZoomed(diagram.handle()) != FALSE; });
    diagram.send(WM_NULL);
    expectSound(program, diagram);
    diagram.post(WM_COMMAND, idReturn);
    program.waitGone(diagram);

    program.command(idLineLoads);
    const Control editor = program.window("VarnoLineLoads");
    expectSound(program, editor);
    editor.post(WM_COMMAND, idLayout);
    program.waitGone(editor);
    program.command(idFreeLineLoads);
    const Control free = program.window("VarnoFreeLineLoads");
    const Control count = free.item(idLineLoadField);
    for (int loads = 1; loads <= 5; ++loads) {
        free.item(idLineLoadSpin).clickAt(5, 5);
        expectSoon(program, std::to_string(loads), [&] { return count.text(); });
    }
    constexpr int height = 445;
    expectHighSound(program, free, height);
}

TEST_P(Layout, OfTheDeletionWindows) {
    Program program(scene, options);
    program.passStartUp();
    program.command(idDeleteBoth);
    const Control window = program.window("VarnoDelFile");
    expectSound(program, window);
    window.item(idDeletionHelp).click();
    const Control help = program.window("VarnoHelp");
    expectSound(program, help);
    close(program, help, idOkButton);
    window.item(idFileList).send(LB_SETSEL, TRUE, 0);
    window.item(idDelete).click();
    const Control question = program.window("VarnoVeri");
    expectSound(program, question);
    close(program, question, idCancelButton);
}

INSTANTIATE_TEST_SUITE_P(Scale, Layout, ::testing::Values(96, 120, 144, 192));

} // namespace
} // namespace varno::gui
