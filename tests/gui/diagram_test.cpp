// The moment diagram on screen and on paper.
#include "diagram_rig.h"
#include "driver/prints.h"
#include "picture.h"

namespace varno::gui {
namespace {

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF red = RGB(0x80, 0, 0);
constexpr int dpi = 96;

// The picture area once it is painted; before, it may show nothing but black.
Picture painted(const Program& program, const Control& window, int scale = dpi) {
    const Control area = window.item(idDiagramPicture);
    const int row = (2000 * scale + 720) / 1440;
    Picture picture = Picture::ofScreen(area.handle());
    program.until([&] {
        picture = Picture::ofScreen(area.handle());
        return picture.at(1, 1) != black && picture.columns(row, black).size() > 500;
    });
    return picture;
}

// A pixel of the colour at most one pixel from a place in twips.
bool has(const Picture& picture, COLORREF colour, double x, double y, int scale = dpi) {
    const int column = static_cast<int>(x * scale / 1440 + 0.5);
    const int row = static_cast<int>(y * scale / 1440 + 0.5);
    for (int v = row - 1; v <= row + 1; ++v) {
        for (int u = column - 1; u <= column + 1; ++u) {
            if (picture.at(u, v) == colour) return true;
        }
    }
    return false;
}

TEST_F(Diagrams, WindowShowsWhatTheEngineFound) {
    const Control window = diagram();
    EXPECT_EQ(window.text(), "Momentdiagram");
    EXPECT_EQ(window.item(idPlot).text(), "Plotta på skrivare");
    EXPECT_EQ(program.menuOf(window), (std::vector<MenuLine>{{0, "Återgå", idReturn, true}}));
    EXPECT_TRUE(program.main().enabled()) << "the window is not modal";
    RECT area{};
    GetWindowRect(window.item(idDiagramPicture).handle(), &area);
    EXPECT_EQ(area.right - area.left, 640);
    EXPECT_EQ(area.bottom - area.top, 320);
    const Picture picture = painted(program, window);
    EXPECT_GT(picture.count(black), 1000);
    EXPECT_GT(picture.count(red), 500);
    window.post(WM_COMMAND, idReturn);
    program.waitGone(window);
    EXPECT_TRUE(diagram().visible()) << "and it comes again";
}

TEST_F(Diagrams, CurvesAreToScale) {
    // -100 at the first support, 50 in the field, 25 in the second curve.
    scene.write("momk.dat", curves(spans, -100, 50, 25));
    const Picture picture = painted(program, diagram());
    const double tenth = firstSupport + 10 * spacing * perMetre;
    EXPECT_TRUE(has(picture, black, tenth, 2950));
    EXPECT_TRUE(has(picture, black, tenth, 2800)) << "the ordinate reaches from the base line to the curve";
    EXPECT_FALSE(has(picture, black, tenth, 3000));
    EXPECT_TRUE(has(picture, red, tenth, 2475));
    EXPECT_TRUE(has(picture, black, firstSupport, 100)) << "negative moments stand above";
    EXPECT_FALSE(has(picture, black, firstSupport, 60));
    // The first curve's cantilever: its ordinates and its ramp.
    const double step = 4 * 5.4 / 20 * perMetre;
    EXPECT_TRUE(has(picture, black, 340 + step, 1500));
    EXPECT_TRUE(has(picture, black, 340 + step, 2000 - 1900 * step / (1.2 * perMetre)));
    EXPECT_TRUE(has(picture, black, 8740, baseline));
    EXPECT_FALSE(has(picture, black, 8780, baseline));
    EXPECT_FALSE(has(picture, black, 300, baseline));
}

TEST_F(Diagrams, ThePictureGrowsWithItsWindow) {
    scene.write("momk.dat", curves(spans, -100, 50, 25));
    const Control window = diagram();
    ShowWindowAsync(window.handle(), SW_MAXIMIZE);
    expectSoon(program, true, [&] { return IsZoomed(window.handle()) != FALSE; });
    window.send(WM_NULL);
    const RECT area = window.item(idDiagramPicture).place();
    const int scale = (area.right - area.left) * 1440 / 9600;
    EXPECT_GT(scale, dpi * 3 / 2);
    EXPECT_NEAR(area.bottom - area.top, (area.right - area.left) / 2, 1);
    const Picture picture = painted(program, window, scale);
    const double tenth = firstSupport + 10 * spacing * perMetre;
    EXPECT_TRUE(has(picture, black, tenth, 2950, scale));
    EXPECT_TRUE(has(picture, red, tenth, 2475, scale));
    EXPECT_TRUE(has(picture, black, firstSupport, 100, scale));
    EXPECT_FALSE(has(picture, black, 8780, baseline, scale));
    // The lines have not grown: but for the edges of the supports no two pixels stand side by side.
    const std::vector<int> ordinates = picture.columns(2700 * scale / 1440, black);
    int broad = 0;
    for (std::size_t i = 1; i < ordinates.size(); ++i)
        broad += ordinates[i] == ordinates[i - 1] + 1 ? 1 : 0;
    EXPECT_GT(ordinates.size(), 90u);
    EXPECT_LT(broad, 12);

    ShowWindowAsync(window.handle(), SW_RESTORE);
    expectSoon(program, 640L, [&] {
        const RECT back = window.item(idDiagramPicture).place();
        return back.right - back.left;
    });
}

TEST_F(Diagrams, FilesThatCannotBeDrawnAreReported) {
    const Bytes good = curves(spans, -100, 50, 25);
    const std::pair<Bytes, std::string> files[] = {
        {"", "62': Input past end of file"},
        {"5\r\n", "62': Input past end of file"},
        {good.substr(0, good.size() / 2), "62': Input past end of file"},
        {good.substr(0, good.size() - 12), "62': Input past end of file"},
        {curves(spans, 0, 0, 0), "11': Division by zero"},
        {"0\r\n", "11': Division by zero"},
        {"", "62': Input past end of file"},
        {"momenten\r\n", "11': Division by zero"},
        {"16\r\n" + good, "9': Subscript out of range"},
        {"40000\r\n" + good, "6': Overflow"},
        {"1,0.27,1e99\r\n", "6': Overflow"},
    };
    for (const auto& [content, text] : files) {
        scene.write("momk.dat", content);
        program.command(idMoment);
        expectError("Run-time error '" + text);
        EXPECT_FALSE(program.shows(diagramClass)) << text;
    }
    scene.remove("momk.dat");
    program.command(idMoment);
    expectError("Run-time error '52': Bad file name or number");
    EXPECT_FALSE(program.shows(diagramClass));

    scene.write("momk.dat", good);
    EXPECT_TRUE(has(painted(program, diagram()), black, firstSupport, 100)) << "a good file is drawn";
}

// The number of spans is the file's own.
TEST_F(Diagrams, AnotherNumberOfSpansThanTheCaseHasIsDrawn) {
    for (const int count : {1, 4, 6, 15}) {
        scene.write("momk.dat", curves(count, -100, 50, 25));
        const Control window = diagram();
        EXPECT_TRUE(has(painted(program, window), black, firstSupport, 100)) << count;
        EXPECT_FALSE(program.shows(messageBoxClass));
        window.post(WM_COMMAND, idReturn);
        program.waitGone(window);
    }
}

TEST_F(Diagrams, AnErrorInAnOpenWindowLeavesItThere) {
    const Control window = diagram();
    scene.remove("momk.dat");
    program.command(idMoment);
    expectError("Run-time error '52': Bad file name or number");
    window.item(idPlot).click();
    expectError("Run-time error '52': Bad file name or number");
    EXPECT_TRUE(window.visible());
    scene.write("momk.dat", curves(spans, -100, 50, 25));
    program.command(idMoment);
    expectSoon(program, true, [&] { return has(painted(program, window), black, firstSupport, 100); });
}

class Plots : public Diagrams {
  protected:
    // Twips from the corner that can be printed on, to a picture of ten twips a pixel.
    static bool has(const PaperPicture& paper, COLORREF colour, double x, double y) {
        return paper.has(colour, (printerMargin + x) / 10, (printerMargin + y) / 10);
    }
    void plot(const Control& window) const {
        window.item(idPlot).click();
        // The button is free again when the pass has run.
        window.item(idPlot).send(WM_NULL);
    }
    Prints prints;
};

TEST_F(Plots, TheProgramsEndPutsThePlotOut) {
    scene.write("momk.dat", curves(spans, -100, 50, 25));
    const Control window = diagram();
    plot(window);
    program.command(idExit);
    EXPECT_EQ(program.exitCode(), 0u);
    const Print print = prints.next();
    ASSERT_EQ(print.pages.size(), 1u);
    EXPECT_TRUE(print.pages[0].lines.empty()) << "a picture only";
    const PaperPicture& paper = print.pages[0].picture;
    const double tenth = firstSupport + 10 * spacing * perMetre;
    EXPECT_TRUE(has(paper, black, tenth, 2950));
    EXPECT_TRUE(has(paper, black, tenth, 2800));
    EXPECT_FALSE(has(paper, black, tenth, 3000));
    EXPECT_TRUE(has(paper, red, tenth, 2475));
    EXPECT_TRUE(has(paper, black, firstSupport, 100));
    for (double x = 340; x <= 8740; x += 100)
        EXPECT_TRUE(has(paper, black, x, baseline)) << x;
    // The slip that is kept: no ordinates in the first curve's left cantilever, but its ramp.
    const double step = 4 * 5.4 / 20 * perMetre;
    EXPECT_TRUE(has(paper, black, 340 + step, 2000 - 1900 * step / (1.2 * perMetre)));
    EXPECT_FALSE(has(paper, black, 340 + step, 1500));
    EXPECT_TRUE(has(paper, red, 340 + step, 2300)) << "the second curve has them";
    const RECT inked = paper.inked();
    EXPECT_NEAR(inked.left, (printerMargin + 340) / 10, 2);
    EXPECT_NEAR(inked.right, (printerMargin + 8740) / 10, 3);
    EXPECT_NEAR(inked.top, (printerMargin + 100) / 10, 3);
    EXPECT_NEAR(inked.bottom, (printerMargin + 2950) / 10, 3);
}

TEST_F(Plots, TheNextResultGoesOnInTheDocument) {
    const Control window = diagram();
    plot(window);
    plot(window);
    program.command(idPrintResult);
    const Print print = prints.next();
    ASSERT_EQ(print.pages.size(), 3u);
    EXPECT_GT(print.pages[0].picture.count(red), 100);
    EXPECT_TRUE(print.pages[0].lines.empty());
    EXPECT_TRUE(print.pages[1].lines.at(0).ends_with("sid 2"));
    EXPECT_TRUE(print.pages[2].lines.at(0).ends_with("sid 3"));
    EXPECT_EQ(print.pages[1].picture.count(red), 0);

    program.command(idPrintResult);
    EXPECT_TRUE(prints.next().pages.at(0).lines.at(0).ends_with("sid 1")) << "in a document of its own";
}

} // namespace
} // namespace varno::gui
