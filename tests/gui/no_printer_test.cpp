// A machine without a printer. These tests are run where there is none: the test printer is for all others.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

class WithoutPrinter : public ::testing::Test {
  protected:
    WithoutPrinter() {
        program.passStartUp();
        program.open("bostad.ind");
        program.calculate();
    }
    void expectTold() {
        EXPECT_EQ(program.answer(),
                  (Message{"", "Det finns ingen skrivare att skriva ut på. Installera en skrivare "
                               "i Windows och försök igen."}));
        EXPECT_TRUE(program.main().enabled());
    }
    Scene scene;
    Program program{scene};
};

TEST_F(WithoutPrinter, EveryWayToPrintSaysSo) {
    for (const int command : {idPrintResult, idPrint, idPrinterSetup}) {
        program.command(command);
        expectTold();
        EXPECT_FALSE(program.shows(fileDialogClass));
    }
    program.clickToolbar(idPrintResult);
    expectTold();
}

TEST_F(WithoutPrinter, PlotSaysSoAndTheDiagramStays) {
    program.command(idMoment);
    const Control diagram = program.window("VarnoMomkurva");
    diagram.item(idPlot).click();
    expectTold();
    EXPECT_TRUE(diagram.visible());
    EXPECT_TRUE(diagram.enabled());
}

// A font of the printer that was there yesterday.
TEST_F(WithoutPrinter, TheStoredFontIsInTheListOfFonts) {
    scene.write("Varnfnt.ini", "Skrivarens Egen\r\n");
    Program again(scene);
    again.passStartUp();
    again.open("bostad.ind");
    again.command(idShowResult);
    again.window(viewerClass).post(WM_COMMAND, idEditFont);
    const Control window = again.window(fontChooserClass);
    EXPECT_EQ(window.item(idStoredFont).rows(), std::vector<std::string>{"Skrivarens Egen"});
    EXPECT_EQ(window.item(idInstalledFonts).rows().at(0), "Skrivarens Egen");
}

TEST_F(WithoutPrinter, NothingIsLost) {
    program.typeInto({Field::rubrik}, "Nytt hus");
    program.command(idPrintResult);
    expectTold();
    EXPECT_EQ(program.field(Field::rubrik).text(), "Nytt hus");
    program.command(idSave);
    program.command(idExit);
    EXPECT_EQ(program.exitCode(), 0u);
    EXPECT_EQ(linesOf(scene.read("BOSTAD.IND")).at(1), "Nytt hus");
}

} // namespace
} // namespace varno::gui
