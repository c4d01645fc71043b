// Results on paper.
#include <iterator>
#include <sstream>

#include "print_rig.h"
#include "result_words.h"

namespace varno::gui {
namespace {

std::vector<std::string> part(const std::vector<std::string>& lines, int from, int to) {
    return {lines.begin() + from, lines.begin() + to};
}

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

// All words of a page in their order, however they are spaced.
void expectWords(const PrintedPage& page, const std::string& text) {
    std::string printed;
    for (const std::string& line : body(page))
        printed += line + "\n";
    EXPECT_EQ(wordsOf(printed), wordsOf(text));
    EXPECT_GT(wordsOf(text).size(), 20u);
}

const Message missing{"", "Resultatfil till BOSTAD.IND saknas !"};

TEST_F(Printing, SeventyLinesGoOnAnA4Page) {
    const auto lines = numberedLines(140);
    const Print print = printed(lines);
    ASSERT_EQ(print.pages.size(), 2u);
    EXPECT_EQ(print.pages[0].width, 595);
    EXPECT_EQ(print.pages[0].height, 842);
    expectPage(print.pages[0], 1, part(lines, 0, 70));
    expectPage(print.pages[1], 2, part(lines, 70, 140));
}

TEST_F(Printing, SeventyLinesAreOnePage) {
    const auto lines = numberedLines(70);
    const Print print = printed(lines);
    ASSERT_EQ(print.pages.size(), 1u);
    expectPage(print.pages[0], 1, lines);
}

TEST_F(Printing, PageNumberStandsBehind68Blanks) {
    const std::string ruler = std::string(67, '.') + " " + std::string(12, 'X');
    const Print print = printed({ruler, "text"});
    const auto& words = print.pages.at(0).words;
    ASSERT_EQ(words.size(), 5u);
    EXPECT_EQ(words[0].text, "sid");
    EXPECT_NEAR(words[0].left, words[3].left, 0.5) << "the 69th column";
    EXPECT_NEAR(words[2].left, filingEdge, 0.5) << "there is room to file the page";
    EXPECT_NEAR(words[0].top, textEdge, 1.5);
    EXPECT_LT(words[3].right, 595 - textEdge) << "80 letters fit the page";
    const double line = words[4].top - words[2].top;
    EXPECT_NEAR(words[2].top - words[0].top, 2 * line, 0.5) << "an empty line follows the header";
    EXPECT_GT(line * 72, 0.85 * (842 - 2 * textEdge)) << "the letters are no smaller than they must be";
}

TEST_F(Printing, CircumflexEndsItsPage) {
    const Print print = printed({"ett", "", "  tre^ med", "fyra", "^", "sex"});
    ASSERT_EQ(print.pages.size(), 3u);
    expectPage(print.pages[0], 1, {"ett", "  tre^ med"});
    expectPage(print.pages[1], 2, {"fyra", "^"});
    expectPage(print.pages[2], 3, {"sex"});
    // The empty line takes its place.
    const auto& words = print.pages[0].words;
    EXPECT_NEAR(words[3].top - words[2].top, words[2].top - words[0].top, 0.5);
}

TEST_F(Printing, SixPagesAreTheMost) {
    EXPECT_EQ(printed(numberedLines(420)).pages.size(), 6u);
    writeResult(numberedLines(421));
    program.command(idPrintResult);
    EXPECT_EQ(program.answer(), missing);
    expectNothingPrinted();
}

TEST_F(Printing, EveryResultCountsItsPagesFromOne) {
    for (int time = 0; time < 3; ++time)
        expectPage(printed({"text^", "slut"}).pages.at(1), 2, {"slut"});
}

TEST_F(Printing, MissingResultIsTold) {
    program.command(idPrintResult);
    EXPECT_EQ(program.answer(), missing);
    EXPECT_TRUE(program.main().enabled());
    expectNothingPrinted();
}

TEST_F(Printing, ToolbarPrintsTheResultOfTheEngine) {
    // Ten spans take two pages.
    program.open("tiofack.ind");
    program.calculate();
    program.clickToolbar(idPrintResult);
    const Print print = prints.next();
    ASSERT_EQ(print.pages.size(), 2u);
    const Bytes result = scene.read("TIOFACK.res");
    const auto second = result.find("^\r\n") + 3;
    expectWords(print.pages[0], viewerText(result.substr(0, second)));
    expectWords(print.pages[1], viewerText(result.substr(second)));
    EXPECT_EQ(program.currentDirectory(), scene.folder());
}

TEST_F(Printing, ChosenFileComesOutInThePrintersOwnFont) {
    writeResult({"en annan"}, "ANNAN.RES");
    program.command(idPrint);
    const Control dialog = program.window(fileDialogClass);
    EXPECT_EQ(dialog.text(), "Välj Resultatfil");
    EXPECT_EQ(dialog.item(idFileList).rows(), std::vector<std::string>{"ANNAN.RES"});
    program.chooseFile("annan.res");
    const Print print = prints.next();
    ASSERT_EQ(print.pages.size(), 1u);
    expectPage(print.pages[0], 1, {"en annan"});
    program.waitGone(dialog);
    EXPECT_EQ(program.caption(), "BOSTAD.IND");
}

TEST_F(Printing, ChoosingNoFilePrintsNothing) {
    program.command(idPrint);
    const Control dialog = program.window(fileDialogClass);
    dialog.item(idCancelButton).click();
    program.waitGone(dialog);
    program.command(idPrint);
    program.chooseFile("saknas.res");
    EXPECT_EQ(program.answer(), missing) << "named by the case, not by the chosen file";
    expectNothingPrinted();
}

class PrintingInSerifs : public Printing {
  protected:
    PrintingInSerifs() : Printing("Liberation Serif") {}
    // Prints the result in a way and tells whether it has serifs.
    bool serifs(int command) {
        program.command(command);
        if (command == idPrint) program.chooseFile("bostad.res");
        return prints.next().fonts.find("LiberationSerif") != std::string::npos;
    }
};

TEST_F(PrintingInSerifs, ResultFontIsThePrintersFromThenOn) {
    writeResult({"text"});
    EXPECT_FALSE(serifs(idPrint)) << "a chosen file comes out in the font that the printer has";
    EXPECT_TRUE(serifs(idPrintResult));
    EXPECT_TRUE(serifs(idPrint));
}

TEST_F(PrintingInSerifs, SeventyLinesFitThePage) {
    const auto lines = numberedLines(70);
    const Print print = printed(lines);
    ASSERT_EQ(print.pages.size(), 1u);
    expectPage(print.pages[0], 1, lines);
}

// One of the printer's faces that need not be installed: what takes its place has to fit the page too.
class PrintingInCourier : public Printing {
  protected:
    PrintingInCourier() : Printing("Courier") {}
};

TEST_F(PrintingInCourier, SeventyLinesFitThePage) {
    const auto lines = numberedLines(70);
    const Print print = printed(lines);
    ASSERT_EQ(print.pages.size(), 1u);
    expectPage(print.pages[0], 1, lines);
}

} // namespace
} // namespace varno::gui
