#include "results/result_reader.h"

#include <gtest/gtest.h>

#include "results/fake_printer.h"
#include "support/fake_file_dialog.h"
#include "support/fake_folders.h"
#include "support/fake_form.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

using Selection = std::pair<std::size_t, std::size_t>;

class FakeReaderView : public ResultReaderView {
  public:
    void setShown(const ShownResult& shown) override { caseName = shown.caseName; }
    void setText(const std::string& shown) override { text = shown; }
    void setFont(const std::string& shown) override { face = shown; }
    void show() override { ++timesShown; }
    Selection selection() const override { return selected; }
    void select(std::size_t begin, std::size_t end) override { selected = {begin, end}; }
    void showFindLine() override { findLine = true; }
    void hideFindLine() override { findLine = false; }
    std::string word() const override { return wanted; }
    void setFindNote(const std::string& shown) override { note = shown; }
    void setPoints(int shown) override { points = shown; }

    std::string caseName;
    std::string text;
    std::string face;
    std::string wanted;
    std::string note;
    Selection selected{0, 0};
    int points = 0;
    int timesShown = 0;
    bool findLine = false;
};

class ResultReaderTest : public ::testing::Test {
  protected:
    ResultReaderTest() { reader.setText("\r\nBöjmoment\r\nmoment 2\r\nÄNDE"); }

    MemoryFiles files;
    FakeMessageBoxes boxes;
    FileOpener opener{files, boxes};
    FakeMainWindow window;
    FakePrinter printer;
    FakeFolders folders;
    FakeFileDialog dialogView;
    NumberLocale locale;
    FileDialog dialog{folders, files, boxes, dialogView, locale};
    ResultPrinting printing{opener, boxes, window, printer, dialog};
    FakeReaderView view;
    std::string font = "Courier New";
    ResultReader reader{view, printing, font};
};

TEST_F(ResultReaderTest, FindsOneAfterTheOtherAndBeginsAnew) {
    view.wanted = "MOMENT";
    reader.findNext();
    EXPECT_EQ(view.selected, Selection(5, 11)) << "letters count once, also those that are two bytes";
    EXPECT_EQ(view.note, "");
    reader.findNext();
    EXPECT_EQ(view.selected, Selection(13, 19));
    reader.findNext();
    EXPECT_EQ(view.selected, Selection(5, 11));
    EXPECT_EQ(view.note, "Började om uppifrån.");
    reader.findPrevious();
    EXPECT_EQ(view.selected, Selection(13, 19));
    EXPECT_EQ(view.note, "Började om nedifrån.");
    reader.findPrevious();
    EXPECT_EQ(view.selected, Selection(5, 11));
    EXPECT_EQ(view.note, "");
}

TEST_F(ResultReaderTest, LettersAreOneInBothSizes) {
    view.wanted = "ände";
    reader.findNext();
    EXPECT_EQ(view.selected, Selection(23, 27));
}

TEST_F(ResultReaderTest, AWordThatIsTypedStaysAtItsPlaceAsLongAsItFits) {
    for (const char* word : {"m", "mo", "moment 2"}) {
        view.wanted = word;
        reader.wordChanged();
        EXPECT_EQ(view.note, "");
    }
    EXPECT_EQ(view.selected, Selection(13, 21));
    view.wanted = "moment 3";
    reader.wordChanged();
    EXPECT_EQ(view.note, "Texten finns inte.");
    EXPECT_EQ(view.selected, Selection(13, 21));
    reader.findPrevious();
    EXPECT_EQ(view.note, "Texten finns inte.");
    view.wanted = "";
    reader.wordChanged();
    EXPECT_EQ(view.note, "");
}

TEST_F(ResultReaderTest, WithoutAWordTheLineIsShown) {
    reader.findNext();
    EXPECT_TRUE(view.findLine);
    reader.findClosed();
    EXPECT_FALSE(view.findLine);
    reader.findPrevious();
    EXPECT_TRUE(view.findLine);
    EXPECT_EQ(view.selected, Selection(0, 0));
}

TEST_F(ResultReaderTest, AnotherResultIsSearchedFromItsBegin) {
    view.wanted = "nytt";
    reader.findNext();
    EXPECT_EQ(view.note, "Texten finns inte.");
    reader.setText("Nytt");
    EXPECT_EQ(view.note, "");
    EXPECT_EQ(view.text, "Nytt");
    reader.findNext();
    EXPECT_EQ(view.selected, Selection(0, 4));
    reader.setText("");
    view.selected = {0, 0};
    reader.findNext();
    reader.findPrevious();
    EXPECT_EQ(view.note, "Texten finns inte.");
}

TEST_F(ResultReaderTest, TheTextGrowsAndShrinksWithinReason) {
    reader.larger();
    EXPECT_EQ(view.points, 11);
    for (int i = 0; i < 50; ++i)
        reader.larger();
    EXPECT_EQ(view.points, 36);
    for (int i = 0; i < 50; ++i)
        reader.smaller();
    EXPECT_EQ(view.points, 6);
    reader.normalSize();
    EXPECT_EQ(view.points, 10);
}

TEST_F(ResultReaderTest, KnowsWhichFileIsShownAndHowOldItIs) {
    files.content["HUS1.res"] = "ett\r\n";
    showResultFile(opener, reader, "HUS1", font);
    EXPECT_EQ(reader.shown().file, "HUS1.res");
    EXPECT_EQ(reader.shown().written, "2026-11-21 15:40:07");
    EXPECT_FALSE(reader.shown().inputIsNewer);
    files.content["HUS1.IND"] = "";
    files.written = {{"HUS1.IND", 2}, {"HUS1.res", 1}};
    EXPECT_TRUE(shownResult(files, "HUS1", "HUS1.res").inputIsNewer);
    files.written["HUS1.res"] = 3;
    EXPECT_FALSE(shownResult(files, "HUS1", "HUS1.res").inputIsNewer);
    files.fault = [](const std::string& call, const std::string&) {
        return call == "lastWritten" ? int{errPermissionDenied} : 0;
    };
    EXPECT_EQ(shownResult(files, "HUS1", "HUS1.res").written, "");
}

TEST_F(ResultReaderTest, PrintsTheResultThatIsShown) {
    files.content["HUS1.res"] = "ett\r\n";
    files.content["HUS2.res"] = "två\r\n";
    showResultFile(opener, reader, "HUS1", font);
    EXPECT_EQ(view.caseName, "HUS1");
    EXPECT_EQ(view.face, "Courier New");
    EXPECT_EQ(view.timesShown, 1);
    reader.print();
    ASSERT_EQ(printer.printed.size(), 1u);
    EXPECT_EQ(printer.printed[0][0].lines.at(1), "\r\nett");
    EXPECT_EQ(printer.fontsSet, std::vector<std::string>{"Courier New"});
    files.content.erase("HUS1.res");
    reader.print();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, "Resultatfil till HUS1.IND saknas !");
}

} // namespace
} // namespace varno::testing
