#include "results/font_choice.h"

#include <gtest/gtest.h>

#include "results/fake_printer.h"
#include "support/fake_file_dialog.h"
#include "support/fake_folders.h"
#include "support/fake_viewer.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

class FakeChooser : public FontChooserView {
  public:
    void showInstalled(const std::vector<std::string>& faces) override { installed = faces; }
    void showStored(const std::string& face) override { stored = face; }
    void showCurrent(const std::string& face) override { current = face; }
    void run() override { ++timesShown; }
    void close() override { closed = true; }

    std::vector<std::string> installed;
    std::string stored;
    std::string current = "of the last time";
    int timesShown = 0;
    bool closed = false;
};

class FontChoiceTest : public ::testing::Test {
  protected:
    std::string resultFontName = "Courier New";
    MemoryFiles files;
    FakeMessageBoxes boxes;
    FileOpener opener{files, boxes};
    FakeViewer viewer;
    FakeChooser chooser;
    FakePrinter printer;
    FakeFolders folders;
    FakeFileDialog dialogView;
    NumberLocale locale;
    FileDialog dialog{folders, files, boxes, dialogView, locale};
    FontChoice choice{resultFontName, opener, printer, dialog, viewer, chooser};

    void edit(const std::vector<std::string>& fonts) {
        printer.offered = fonts;
        choice.edit();
    }
};

TEST_F(FontChoiceTest, OpensWithThePrintersFontsInItsOrderAndTheStoredChoice) {
    edit({"Times", "Arial", "Courier"});
    EXPECT_EQ(chooser.installed, (std::vector<std::string>{"Times", "Arial", "Courier"}));
    EXPECT_EQ(chooser.stored, "Courier New");
    EXPECT_EQ(chooser.current, "Courier New");
    EXPECT_EQ(chooser.timesShown, 1);
}

TEST_F(FontChoiceTest, WithoutAPrinterTheStoredFontIsInTheListAllTheSame) {
    printer.there = false;
    edit({"Arial", "Tahoma"});
    EXPECT_EQ(chooser.installed, (std::vector<std::string>{"Courier New", "Arial", "Tahoma"}));
    edit({"Arial", "Courier New"});
    EXPECT_EQ(chooser.installed, (std::vector<std::string>{"Arial", "Courier New"}));
}

TEST_F(FontChoiceTest, AClickTakesTheFontAtOnce) {
    edit({"Arial"});
    choice.clicked("Arial");
    EXPECT_EQ(resultFontName, "Arial");
    EXPECT_EQ(chooser.current, "Arial");
    EXPECT_EQ(viewer.font, "Arial");
    EXPECT_FALSE(chooser.closed);
}

TEST_F(FontChoiceTest, OkWritesOneLineIntoTheDialogsDirectory) {
    edit({"Arial"});
    choice.clicked("Arial");
    dialog.folderChosen("C:\\arbete\\gammalt");
    choice.accepted();
    EXPECT_EQ(files.content.at("C:\\arbete\\gammalt\\Varnfnt.ini"), "Arial\r\n");
    EXPECT_TRUE(chooser.closed);
}

TEST_F(FontChoiceTest, OkWithoutAClickWritesTheFontInUse) {
    edit({"Arial"});
    choice.accepted();
    EXPECT_EQ(files.content.at("C:\\arbete\\Varnfnt.ini"), "Courier New\r\n");
}

TEST_F(FontChoiceTest, CancelGoesBackToTheStoredFont) {
    edit({"Arial", "Times"});
    choice.clicked("Arial");
    choice.clicked("Times");
    choice.cancelled();
    EXPECT_EQ(resultFontName, "Courier New");
    EXPECT_EQ(viewer.font, "Courier New");
    EXPECT_TRUE(files.content.empty());
    EXPECT_TRUE(chooser.closed);
}

TEST_F(FontChoiceTest, AFileThatCannotBeWrittenIsReportedAndTheChooserStays) {
    files.fault = [](const std::string& call, const std::string&) {
        return call == "create" ? errDiskFull : 0;
    };
    boxes.answers = {MessageAnswer::cancel};
    edit({});
    EXPECT_EQ(errorOf([&] { choice.accepted(); }), errBadFileNameOrNumber);
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, "Disk Full");
    EXPECT_EQ(boxes.shown[0].title, "Disk Error");
    EXPECT_FALSE(chooser.closed);
}

} // namespace
} // namespace varno::testing
