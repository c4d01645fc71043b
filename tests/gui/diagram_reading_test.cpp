// Reading the moment diagram: pointing at it, its values, and taking picture and values to other programs.
#include <algorithm>

#include "diagram_rig.h"
#include "driver/clipboard.h"
#include "driver/keyboard.h"
#include "driver/mouse.h"
#include "driver/prints.h"
#include "picture.h"

namespace varno::gui {
namespace {

class DiagramReading : public Diagrams {
  protected:
    DiagramReading() {
        scene.write("momk.dat", curves(spans, -100, 50, 25));
        window = diagram();
        area = window.item(idDiagramPicture);
    }
    void choose(int place) {
        ask();
        program.chooseInPopupMenu(place);
    }
    void ask() {
        // A pointer that lies on the menu would choose a row of its own.
        SetCursorPos(2, 2);
        window.post(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(area.handle()), -1);
    }
    std::vector<MenuLine> menu() {
        ask();
        const auto lines = program.popupMenu();
        program.keysInPopupMenu({VK_ESCAPE});
        return lines;
    }
    // What "Spara som bild..." was chosen for.
    Bytes saved(const std::string& path) {
        const Control dialog = program.window(messageBoxClass);
        EXPECT_EQ(dialog.text(), "Spara som bild");
        expectSoon(program, std::string("Edit"), [&] { return program.focused().className(); });
        keyboard::type(path);
        expectSoon(program, path, [&] { return program.focused().text(); });
        keyboard::press(VK_RETURN);
        program.waitGone(dialog);
        expectSoon(program, true, [&] { return fileExists(path); });
        return readFile(path);
    }
    void askOfLoadPicture() {
        SetCursorPos(2, 2);
        const Control picture = program.main().item(idLoadPicture);
        program.main().post(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(picture.handle()), -1);
    }
    Bytes savedLoadPicture(const std::string& path) {
        askOfLoadPicture();
        program.chooseInPopupMenu(3);
        return saved(path);
    }
    Bytes savedDiagram(const std::string& path) {
        choose(4);
        return saved(path);
    }
    static void expectWholePng(const Bytes& png) {
        EXPECT_TRUE(png.starts_with("\x89PNG\r\n")) << png.size();
        EXPECT_GT(png.size(), 1000u);
        EXPECT_TRUE(png.ends_with(Bytes("IEND\xAE\x42\x60\x82"))) << "it is whole";
    }
    // What is written into it is not of the drawing's two colours alone.
    std::size_t differentPixels(const Picture& a, const Picture& b) const {
        std::size_t count = 0;
        for (int y = 0; y < 320; ++y) {
            for (int x = 0; x < 640; ++x)
                count += a.at(x, y) != b.at(x, y) ? 1u : 0u;
        }
        return count;
    }

    Prints prints;
    Control window;
    Control area;
};

TEST_F(DiagramReading, PointingTellsSpanPlaceAndMoments) {
    const auto line = [&] { return window.item(idDiagramReading).text(); };
    EXPECT_EQ(line(), "");
    mouse::restOn(area, 50);
    expectSoon(program, true, [&] { return line().starts_with("Fack 3, x = "); });
    EXPECT_NE(line().find("m: största moment 50"), std::string::npos) << line();
    EXPECT_NE(line().find("0 kNm/m, minsta moment 25"), std::string::npos) << line();
    mouse::restOn(area, 5);
    expectSoon(program, true, [&] { return line().starts_with("Konsol vänster, "); });
    mouse::restOn(window.item(idPlot));
    expectSoon(program, std::string(), line);
}

TEST_F(DiagramReading, TellsHowOldTheCurvesAre) {
    const auto line = [&] { return window.item(idDiagramAge).text(); };
    expectSoon(program, true, [&] { return line().starts_with("momk.dat, beräknad 20"); });
    EXPECT_FALSE(line().ends_with("indata")) << line();
    program.typeInto({Field::spv, 1}, "5,1");
    program.field(Field::rubrik).clickInto();
    expectSoon(program, true, [&] { return line().ends_with(", äldre än indata"); });
    EXPECT_EQ(window.text(), "Momentdiagram");
}

TEST_F(DiagramReading, ValuesAreOffAtFirstAndStayOffThePaper) {
    const auto rows = menu();
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_EQ(rows[0].caption, "Visa värden");
    EXPECT_FALSE(rows[0].checked);
    EXPECT_EQ(rows[2].caption, "Kopiera bild");
    EXPECT_EQ(rows[3].caption, "Kopiera värden");
    EXPECT_EQ(rows[4].caption, "Spara som bild...");
    const Picture plain = Picture::ofScreen(area.handle());
    choose(0);
    expectSoon(program, true, [&] { return differentPixels(plain, Picture::ofScreen(area.handle())) > 200; });
    EXPECT_TRUE(menu()[0].checked);

    window.item(idPlot).click();
    window.item(idPlot).send(WM_NULL);
    program.command(idPrintResult);
    const Print print = prints.next();
    EXPECT_TRUE(print.pages.at(0).lines.empty()) << "a picture only";

    choose(0);
    expectSoon(program, std::size_t{0},
               [&] { return differentPixels(plain, Picture::ofScreen(area.handle())); });
}

TEST_F(DiagramReading, CopiesPictureAndValues) {
    // Whoever looks into the clipboard all the time keeps others out of it.
    const DWORD before = GetClipboardSequenceNumber();
    choose(3);
    expectSoon(program, true, [&] { return GetClipboardSequenceNumber() != before; });
    std::string table = clipboard::text();
    std::ranges::replace(table, ',', '.'); // whatever the user's decimal sign is
    EXPECT_TRUE(table.starts_with("Fack\tx (m)\tStörsta moment (kNm/m)\tMinsta moment (kNm/m)\r\n"));
    EXPECT_EQ(std::ranges::count(table, '\n'), 1 + 5 * 21);
    EXPECT_NE(table.find("\r\n1\t0.270\t50.00\t25.00\r\n"), std::string::npos) << table.substr(0, 200);
    choose(2);
    expectSoon(program, true, [] {
        return IsClipboardFormatAvailable(CF_ENHMETAFILE) && IsClipboardFormatAvailable(CF_BITMAP);
    });
}

TEST_F(DiagramReading, SavesThePictureInThreeKinds) {
    choose(0);
    const Bytes svg = savedDiagram(scene.path("bild å.svg"));
    EXPECT_TRUE(svg.starts_with("<svg ")) << svg.substr(0, 80);
    EXPECT_NE(svg.find(">kNm/m</text>"), Bytes::npos);
    expectWholePng(savedDiagram(scene.path("bild.png")));
    const Bytes emf = savedDiagram(scene.beside("bilder") + "\\bild.emf");
    ASSERT_GT(emf.size(), 1000u);
    EXPECT_EQ(emf.substr(40, 4), " EMF");
    EXPECT_EQ(program.currentDirectory(), scene.folder()) << "the engine works there";
}

TEST_F(DiagramReading, TheLoadPictureGoesToOtherProgramsToo) {
    clipboard::set("");
    askOfLoadPicture();
    const auto rows = program.popupMenu();
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].caption, "Fria linjelaster");
    EXPECT_EQ(rows[2].caption, "Kopiera bild");
    EXPECT_EQ(rows[3].caption, "Spara som bild...");
    program.chooseInPopupMenu(2);
    expectSoon(program, true, [] {
        return IsClipboardFormatAvailable(CF_ENHMETAFILE) && IsClipboardFormatAvailable(CF_BITMAP);
    });
}

// KONTOR's line loads are drawn in red.
TEST_F(DiagramReading, TheLoadPictureIsSavedInThreeKinds) {
    const Bytes svg = savedLoadPicture(scene.path("last å.svg"));
    EXPECT_TRUE(svg.starts_with("<svg ")) << svg.substr(0, 80);
    EXPECT_NE(svg.find("#800000"), Bytes::npos);
    EXPECT_TRUE(svg.ends_with("</svg>\n") || svg.ends_with("</svg>\r\n")) << "it is whole";
    expectWholePng(savedLoadPicture(scene.path("last.png")));
    const Bytes emf = savedLoadPicture(scene.beside("bilder") + "\\last.emf");
    ASSERT_GT(emf.size(), 1000u);
    EXPECT_EQ(emf.substr(40, 4), " EMF");
    EXPECT_EQ(program.currentDirectory(), scene.folder()) << "the engine works there";
}

} // namespace
} // namespace varno::gui
