#include "results/result_printing.h"

#include <gtest/gtest.h>

#include "results/fake_printer.h"
#include "support/fake_file_dialog.h"
#include "support/fake_folders.h"
#include "support/fake_form.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

const std::string blanks(68, ' ');

Bytes numberedLines(int count) {
    Bytes text;
    for (int i = 1; i <= count; ++i)
        text += std::to_string(i) + "\r\n";
    return text;
}

class ResultPrintingTest : public ::testing::Test {
  protected:
    void SetUp() override { document.currentFileName = "HUS1"; }
    void printCurrent(const Bytes& content) {
        files.content["HUS1.res"] = content;
        printing.printCurrent(document, "Courier New");
    }
    void type(const std::string& name) {
        dialogView.text = name;
        dialog.accepted();
    }
    void expectMessage() {
        ASSERT_EQ(boxes.shown.size(), 1u);
        EXPECT_EQ(boxes.shown[0], (FakeMessageBoxes::Shown{"Resultatfil till HUS1.IND saknas !", msgOk, ""}));
        EXPECT_FALSE(window.busy);
    }

    MemoryFiles files;
    FakeMessageBoxes boxes;
    FileOpener opener{files, boxes};
    FakeMainWindow window;
    FakePrinter printer;
    FakeFolders folders;
    FakeFileDialog dialogView;
    NumberLocale locale;
    FileDialog dialog{folders, files, boxes, dialogView, locale};
    DocumentState document;
    ResultPrinting printing{opener, boxes, window, printer, dialog};
};

TEST_F(ResultPrintingTest, EveryPageStandsUnderItsNumber) {
    printCurrent(numberedLines(140));
    ASSERT_EQ(printer.printed.size(), 1u);
    const FakePrinter::Document& printed = printer.printed[0];
    ASSERT_EQ(printed.size(), 2u) << "no empty page behind the last";
    ASSERT_EQ(printed[0].lines.size(), 2u);
    EXPECT_EQ(printed[0].lines[0], blanks + "sid 1");
    EXPECT_TRUE(printed[0].lines[1].starts_with("\r\n1\r\n2\r\n"));
    EXPECT_TRUE(printed[0].lines[1].ends_with("\r\n69\r\n70"));
    EXPECT_EQ(printed[1].lines[0], blanks + "sid 2");
    EXPECT_TRUE(printed[1].lines[1].starts_with("\r\n71\r\n72\r\n"));
    EXPECT_EQ(printer.fontsSet, std::vector<std::string>{"Courier New"});
    EXPECT_TRUE(printer.open.empty());
    EXPECT_TRUE(window.wasBusy);
    EXPECT_FALSE(window.busy);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ResultPrintingTest, TheTextIsPrintedAsItStands) {
    printCurrent("B\x84rlag \xB2\r\n  slut^\r\nmer");
    ASSERT_EQ(printer.printed.at(0).size(), 2u);
    EXPECT_EQ(printer.printed[0][0].lines[1], "\r\nBärlag ²\r\n  slut^");
    EXPECT_EQ(printer.printed[0][1].lines[1], "\r\nmer");
}

TEST_F(ResultPrintingTest, AMissingFileIsToldAndNothingIsPrinted) {
    printing.printCurrent(document, "Courier New");
    expectMessage();
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_TRUE(printer.fontsSet.empty());
    EXPECT_EQ(printer.timesEnded, 0);
}

TEST_F(ResultPrintingTest, ASeventhPageIsToldAndNothingIsPrinted) {
    printCurrent(numberedLines(421));
    expectMessage();
    EXPECT_TRUE(printer.open.empty());
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_TRUE(printer.fontsSet.empty());
}

TEST_F(ResultPrintingTest, SixPagesArePrinted) {
    printCurrent(numberedLines(420));
    EXPECT_EQ(printer.printed.at(0).size(), 6u);
    EXPECT_EQ(printer.printed[0][5].lines[0], blanks + "sid 6");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ResultPrintingTest, APrinterThatFailsIsToldInTheSameWords) {
    printer.error = errDeviceIo;
    printCurrent("text\r\n");
    expectMessage();
}

TEST_F(ResultPrintingTest, AFileWithoutLinesPrintsNoPage) {
    printCurrent("");
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_EQ(printer.timesEnded, 1);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ResultPrintingTest, EveryDocumentCountsItsPagesFromOne) {
    printCurrent("a");
    printCurrent("b");
    ASSERT_EQ(printer.printed.size(), 2u);
    EXPECT_EQ(printer.printed[1][0].lines[0], blanks + "sid 1");
}

TEST_F(ResultPrintingTest, GoesOnInTheDocumentOfAPlotAndEndsIt) {
    printer.canvas().line({340, 2000}, {8740, 2000}, Colour::foreground());
    printer.newPage();
    printer.canvas().line({340, 2000}, {8740, 2000}, Colour::foreground());
    printCurrent("text");
    ASSERT_EQ(printer.printed.size(), 1u);
    ASSERT_EQ(printer.printed[0].size(), 2u);
    EXPECT_FALSE(printer.printed[0][1].drawing.drawn().empty());
    EXPECT_EQ(printer.printed[0][1].lines[0], blanks + "sid 2");
}

TEST_F(ResultPrintingTest, AChosenFileIsPrintedInThePrintersOwnFont) {
    files.content["C:\\arbete\\GAMMAL.RES"] = "text";
    dialogView.whileShown = [&] {
        EXPECT_EQ(dialogView.caption, "Välj Resultatfil");
        EXPECT_EQ(dialog.pattern(), "*.RES");
        EXPECT_FALSE(window.busy);
        type("GAMMAL.RES");
    };
    printing.printChosen(document);
    EXPECT_EQ(dialogView.timesShown, 1);
    ASSERT_EQ(printer.printed.size(), 1u);
    EXPECT_EQ(printer.printed[0][0].lines, (std::vector<std::string>{blanks + "sid 1", "\r\ntext"}));
    EXPECT_TRUE(printer.fontsSet.empty());
}

TEST_F(ResultPrintingTest, ADialogThatIsCancelledPrintsNothing) {
    dialogView.whileShown = [&] { dialog.cancelled(); };
    printing.printChosen(document);
    EXPECT_TRUE(files.calls.empty());
    EXPECT_EQ(printer.timesEnded, 0);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ResultPrintingTest, WithoutAPrinterItSaysSoAndAsksForNoFile) {
    printer.there = false;
    printCurrent("text");
    printing.printChosen(document);
    ASSERT_EQ(boxes.shown.size(), 2u);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("Det finns ingen skrivare"));
    EXPECT_EQ(boxes.shown[1], boxes.shown[0]);
    EXPECT_EQ(dialogView.timesShown, 0);
    EXPECT_TRUE(printer.printed.empty());
}

TEST_F(ResultPrintingTest, AChosenFileThatIsMissingIsToldByTheNameOfTheCase) {
    dialogView.whileShown = [&] { type("SAKNAS.RES"); };
    printing.printChosen(document);
    expectMessage();
}

} // namespace
} // namespace varno::testing
