// The font chooser of the result viewer.
#include <gtest/gtest.h>

#include <algorithm>

#include "driver/keyboard.h"
#include "driver/program.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

class Fonts : public ::testing::Test {
  protected:
    Fonts() {
        scene.write("NAMNLÖS.res", "Resultat\r\n");
        scene.write("Varnfnt.ini", stored + "\r\n");
    }

    // The chooser over the viewer, from the start of the program on.
    Control chooser(const Program& program) {
        if (!program.shows(viewerClass)) program.command(idShowResult);
        program.window(viewerClass).post(WM_COMMAND, idEditFont);
        return program.window(fontChooserClass);
    }
    std::string viewerFace(const Program& program) {
        const Control text = program.window(viewerClass).item(idFileTextBox);
        return win32::narrow(program.fontOf(text).lfFaceName);
    }
    static std::vector<std::string> only(const std::string& face) { return {face}; }
    // A face of the list that is not the stored one.
    std::string other(const Control& window) const {
        for (const std::string& face : window.item(idInstalledFonts).rows()) {
            if (face != stored) return face;
        }
        return {};
    }

    const std::string stored = "Tahoma";
    Scene scene;
};

TEST_F(Fonts, ChooserListsThePrintersFontsAndTheStoredChoice) {
    Program program(scene);
    program.passStartUp();
    const Control window = chooser(program);
    EXPECT_EQ(window.text(), "TYPSNITT");
    EXPECT_EQ(window.item(idOkButton).text(), "OK / Stäng");
    EXPECT_EQ(window.item(idCancelButton).text(), "Avbryt / Stäng");
    std::vector<std::string> labels;
    for (const Control& child : window.children()) {
        if (child.className() == "Static") labels.push_back(child.text());
    }
    EXPECT_EQ(labels,
              (std::vector<std::string>{"Installerade skrivarfonter", "Lagrat fontval", "Visas just nu"}));
    EXPECT_EQ(window.item(idStoredFont).rows(), only(stored));
    EXPECT_EQ(window.item(idCurrentFont).rows(), only(stored));
    EXPECT_EQ(win32::narrow(program.fontOf(window.item(idCurrentFont)).lfFaceName), stored);
    EXPECT_EQ(win32::narrow(program.fontOf(window.item(idStoredFont)).lfFaceName), stored);
    auto fonts = window.item(idInstalledFonts).rows();
    EXPECT_GT(fonts.size(), 1u);
    std::sort(fonts.begin(), fonts.end());
    EXPECT_EQ(std::adjacent_find(fonts.begin(), fonts.end()), fonts.end()) << "each face once";
    EXPECT_EQ(viewerFace(program), stored);
}

TEST_F(Fonts, ClickChangesTheViewerAndCancelChangesItBack) {
    Program program(scene);
    program.passStartUp();
    const Control window = chooser(program);
    const std::string face = other(window);
    window.item(idInstalledFonts).choose(face);
    expectSoon(program, only(face), [&] { return window.item(idCurrentFont).rows(); });
    expectSoon(program, face, [&] { return viewerFace(program); });
    window.item(idCancelButton).click();
    program.waitGone(window);
    EXPECT_EQ(viewerFace(program), stored);
    EXPECT_EQ(scene.read("Varnfnt.ini"), stored + "\r\n");

    // The close box is a cancel too.
    const Control again = chooser(program);
    EXPECT_EQ(again.item(idStoredFont).rows(), only(stored));
    EXPECT_EQ(again.item(idCurrentFont).rows(), only(stored));
    again.item(idInstalledFonts).choose(face);
    expectSoon(program, face, [&] { return viewerFace(program); });
    again.post(WM_CLOSE);
    program.waitGone(again);
    EXPECT_EQ(viewerFace(program), stored);
}

TEST_F(Fonts, OkStoresTheChoiceForTheNextStart) {
    std::string face;
    {
        Program program(scene);
        program.passStartUp();
        const Control window = chooser(program);
        face = other(window);
        window.item(idInstalledFonts).choose(face);
        expectSoon(program, only(face), [&] { return window.item(idCurrentFont).rows(); });
        window.item(idOkButton).click();
        program.waitGone(window);
        EXPECT_EQ(scene.read("Varnfnt.ini"), encodeWindows1252(face) + "\r\n");
        EXPECT_EQ(viewerFace(program), face);
    }
    Program program(scene);
    program.passStartUp();
    EXPECT_EQ(chooser(program).item(idStoredFont).rows(), only(face));
    EXPECT_EQ(viewerFace(program), face);
}

TEST_F(Fonts, KeysChooseGiveUpAndStore) {
    Program program(scene);
    program.passStartUp();
    for (const WORD key : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
        const Control window = chooser(program);
        const Control list = window.item(idInstalledFonts);
        expectSoon(program, list, [&] { return program.focused(); });
        keyboard::press(VK_DOWN);
        keyboard::press(VK_DOWN);
        const std::string second = list.rows().at(1);
        expectSoon(program, second, [&] { return viewerFace(program); });
        EXPECT_NE(second, stored);
        keyboard::press(key);
        program.waitGone(window);
        EXPECT_EQ(viewerFace(program), key == VK_RETURN ? second : stored);
        EXPECT_EQ(scene.read("Varnfnt.ini"), encodeWindows1252(key == VK_RETURN ? second : stored) + "\r\n");
    }
}

TEST_F(Fonts, OkWithoutAClickStoresTheFontInUseIntoTheDialogsFolder) {
    const std::string elsewhere = scene.beside("annan mapp");
    scene.remove("Varnfnt.ini");
    Program program(scene);
    program.passStartUp();
    program.command(idOpen);
    program.chooseFile(elsewhere + "\\");
    const Control dialog = program.window(fileDialogClass);
    expectSoon(program, elsewhere, [&] { return dialog.item(idPathLabel).text(); });
    dialog.item(idCancelButton).click();
    program.waitGone(dialog);

    const Control window = chooser(program);
    const auto inUse = window.item(idStoredFont).rows();
    ASSERT_EQ(inUse.size(), 1u);
    EXPECT_EQ(inUse.front(), viewerFace(program));
    window.item(idOkButton).click();
    program.waitGone(window);
    EXPECT_EQ(readFile(elsewhere + "\\Varnfnt.ini"), encodeWindows1252(inUse.front()) + "\r\n");
    EXPECT_FALSE(scene.has("Varnfnt.ini"));
}

} // namespace
} // namespace varno::gui
