#include "diagram/diagram_commands.h"

#include <gtest/gtest.h>

#include "diagram/moment_curves.h"
#include "results/fake_printer.h"
#include "support/fake_form.h"

namespace varno::testing {
namespace {

class FakeDiagramWindow : public DiagramView {
  public:
    Canvas& picture() override { return drawing; }
    void paint() override { ++painted; }
    void show() override { ++shown; }
    void close() override { ++closed; }
    void showReading(const std::string& text) override { reading = text; }
    void setTexts(std::vector<PictureText> shownTexts) override { texts = std::move(shownTexts); }
    void copyText(const std::string& text) override { copied = text; }
    void copyPicture() override { copied = "picture"; }
    void savePicture(const std::string& name) override { saved = name; }

    RecordingCanvas drawing;
    int painted = 0;
    int shown = 0;
    int closed = 0;
    std::string reading;
    std::vector<PictureText> texts;
    std::string copied;
    std::string saved;
};

class Diagram : public ::testing::Test {
  protected:
    void write(double moment) {
        rig.files.content["momk.dat"] = momentFileOf({CurveSpan(0.5, moment)}, {CurveSpan(0.5, -moment / 2)});
    }

    DiagramRig rig;
    FakeMessageBoxes boxes;
    FileOpener opener{rig.files, boxes};
    FakeMainWindow window;
    FakePrinter printer;
    FakeDiagramWindow view;
    DocumentState document;
    NumberLocale locale;
    DiagramCommands commands{rig.diagram, document, locale, opener, boxes, window, printer, view};
};

TEST_F(Diagram, OpensTheFileForEachPassAndShowsTheWindow) {
    write(10);
    commands.moment();
    EXPECT_EQ(rig.files.calls, (std::vector<std::string>{"readAll momk.dat", "readAll momk.dat",
                                                         "readAll momk.dat", "lastWritten momk.dat"}))
        << "the two passes, the numbers, the age";
    EXPECT_EQ(rig.diagram.momentMax(), 10.0f);
    EXPECT_EQ(view.drawing.drawn(), rig.show(rig.files.content["momk.dat"]));
    EXPECT_EQ(view.painted, 1);
    EXPECT_EQ(view.shown, 1);
    EXPECT_TRUE(window.wasBusy);
    EXPECT_FALSE(window.busy);
    EXPECT_TRUE(printer.open.empty());
}

TEST_F(Diagram, ValuesAreShownWhenTheyAreAskedFor) {
    document.currentFileName = "KONTOR";
    write(10);
    commands.moment();
    EXPECT_FALSE(commands.valuesShown());
    EXPECT_TRUE(view.texts.empty());
    const auto plain = view.drawing.drawn();
    commands.toggleValues();
    ASSERT_EQ(view.texts.size(), 4u) << "two supports, a span and the unit";
    EXPECT_EQ(view.texts[2].text, "10.00");
    EXPECT_EQ(view.drawing.drawn(), plain);
    write(20);
    commands.moment();
    ASSERT_EQ(view.texts.size(), 4u);
    EXPECT_EQ(view.texts[2].text, "20.00") << "they follow the next result";
    commands.plot();
    EXPECT_EQ(printer.open.size(), 1u);
    commands.toggleValues();
    EXPECT_TRUE(view.texts.empty());

    commands.pointedAt(5000);
    EXPECT_TRUE(view.reading.starts_with("Fack 1, x = ")) << view.reading;
    commands.pointedAt(std::nullopt);
    EXPECT_EQ(view.reading, "");
    commands.copyValues();
    EXPECT_TRUE(view.copied.starts_with("Fack\tx (m)"));
    commands.copyPicture();
    EXPECT_EQ(view.copied, "picture");
    commands.savePicture();
    EXPECT_EQ(view.saved, "KONTOR-moment");
    EXPECT_EQ(commands.shown().file, "momk.dat");
    EXPECT_EQ(commands.shown().caseName, "KONTOR");
}

TEST_F(Diagram, WithoutTheFileItIsError52AndNoWindow) {
    EXPECT_EQ(errorOf([&] { commands.moment(); }), errBadFileNameOrNumber);
    EXPECT_EQ(view.shown, 0);
    EXPECT_FALSE(window.busy);
    EXPECT_TRUE(boxes.shown.empty()) << "a missing file is no disk error";
    EXPECT_EQ(errorOf([&] { commands.plot(); }), errBadFileNameOrNumber);
    EXPECT_FALSE(window.busy);
    EXPECT_TRUE(printer.open.empty());
}

TEST_F(Diagram, ADamagedFileLeavesTheWindowAsItIs) {
    write(10);
    commands.moment();
    const auto before = view.drawing.drawn();
    rig.files.content["momk.dat"] = "1,2,3";
    EXPECT_EQ(errorOf([&] { commands.moment(); }), errInputPastEnd);
    EXPECT_EQ(view.drawing.drawn(), before);
    EXPECT_EQ(view.shown, 1);
    write(0);
    EXPECT_EQ(errorOf([&] { commands.moment(); }), errDivisionByZero);
    EXPECT_TRUE(view.drawing.drawn().empty());
    EXPECT_EQ(view.painted, 2) << "the cleared picture is seen";
    EXPECT_EQ(view.shown, 1);
}

TEST_F(Diagram, ThePlotGoesIntoTheCurrentDocumentAndLeavesItOpen) {
    write(10);
    commands.moment();
    const auto onScreen = view.drawing.drawn();
    commands.plot();
    ASSERT_EQ(printer.open.size(), 1u);
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_EQ(printer.timesEnded, 0);
    EXPECT_EQ(printer.open[0].drawing.drawn(), std::vector<Drawn>(onScreen.begin() + 2, onScreen.end()));
    EXPECT_EQ(view.drawing.drawn().size(), onScreen.size() + 2);
    EXPECT_EQ(view.painted, 2);
    commands.plot();
    EXPECT_EQ(printer.open.size(), 1u) << "no new page";
    EXPECT_EQ(printer.open[0].drawing.drawn().size(), 2 * (onScreen.size() - 2));
    EXPECT_FALSE(window.busy);
}

TEST_F(Diagram, ThePlotUsesTheScaleOfTheLastOpening) {
    write(10);
    commands.moment();
    write(5);
    commands.plot();
    EXPECT_EQ(rig.diagram.momentMax(), 10.0f);
    const auto ramp = std::get<LineDrawn>(printer.open[0].drawing.drawn()[0]);
    EXPECT_EQ(ramp.to, (Point{940, 2950}));
}

TEST_F(Diagram, WithoutAPrinterThePlotSaysSo) {
    write(10);
    commands.moment();
    printer.there = false;
    commands.plot();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("Det finns ingen skrivare"));
    EXPECT_TRUE(printer.open.empty());
    EXPECT_EQ(view.painted, 1);
}

TEST_F(Diagram, ReturnClosesTheWindowAndKeepsTheScale) {
    write(10);
    commands.moment();
    commands.back();
    EXPECT_EQ(view.closed, 1);
    EXPECT_EQ(rig.diagram.momentMax(), 10.0f);
}

} // namespace
} // namespace varno::testing
