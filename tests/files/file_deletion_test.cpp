#include "files/file_deletion.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/fake_folders.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

/// Lists the files of a disk in memory that lie in a folder, by the ends of their names.
class MemoryFolders : public FakeFolders {
  public:
    explicit MemoryFolders(MemoryFiles& files) : files_(files) {}
    std::vector<std::string> files(const std::string& path, const std::string& patterns) override {
        const std::string folder = path.ends_with('\\') ? path : path + "\\";
        std::vector<std::string> found;
        for (const auto& [name, content] : files_.content) {
            if (!name.starts_with(folder)) continue;
            const std::string extension = "*" + upperCase(name.substr(name.size() - 4));
            if (patterns.find(extension) != std::string::npos) found.push_back(name.substr(folder.size()));
        }
        return found;
    }

  private:
    MemoryFiles& files_;
};

class FakeDeletionWindow : public DeletionView {
  public:
    int entryCount() const override { return static_cast<int>(entries.size()); }
    std::string entry(int position) const override { return entries.at(static_cast<std::size_t>(position)); }
    bool isSelected(int position) const override { return selected.at(static_cast<std::size_t>(position)); }
    void select(int position, bool on) override { selected.at(static_cast<std::size_t>(position)) = on; }
    bool confirming() const override { return bekr; }
    void setConfirming(bool confirming) override { bekr = confirming; }
    void refreshLists() override {
        ++refreshed;
        entries = lists->files();
        selected.assign(entries.size(), false);
    }
    bool confirmed(const std::string& name, const std::string& position) override {
        asked.push_back(name + " " + position);
        return answer(name);
    }
    void showHelp(const std::string& first, const std::string& second) override {
        help = first + "|" + second;
    }
    void run() override { ++timesShown; }
    void close() override { closed = true; }

    FileChooser* lists = nullptr;
    std::vector<std::string> entries;
    std::vector<bool> selected;
    bool bekr = false;
    std::vector<std::string> asked;
    std::function<bool(const std::string&)> answer = [](const std::string&) { return true; };
    int refreshed = 0;
    std::string help;
    int timesShown = 0;
    bool closed = false;
};

class FileDeletionTest : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"a.res", "B.RES", "c.ind", "d.res", "e.txt", "\xC3\xA5.res"})
            files.content["C:\\arbete\\" + std::string(name)] = "x";
        view.lists = &deletion;
    }
    void open(const std::string& pattern = "*.RES", const std::string& directory = "") {
        deletion.open(pattern, directory);
    }
    void selectAll() { view.selected.assign(view.entries.size(), true); }
    bool there(const std::string& name) { return files.content.contains("C:\\arbete\\" + name); }

    MemoryFiles files;
    MemoryFolders folders{files};
    FakeMessageBoxes boxes;
    FakeDeletionWindow view;
    FileDeletion deletion{folders, files, boxes, view};
};

using Names = std::vector<std::string>;

TEST_F(FileDeletionTest, EachMenuItemOffersItsFiles) {
    ASSERT_EQ(deletionPatterns.size(), 3u);
    const Names expected[] = {
        {"B.RES", "a.res", "d.res", "å.res"}, {"c.ind"}, {"B.RES", "a.res", "c.ind", "d.res", "å.res"}};
    for (std::size_t i = 0; i < deletionPatterns.size(); ++i) {
        view.bekr = false;
        open(deletionPatterns[i]);
        EXPECT_EQ(view.entries, expected[i]) << deletionPatterns[i];
        EXPECT_TRUE(view.bekr);
    }
}

TEST_F(FileDeletionTest, WithoutConfirmationTheSelectedFilesGoAtOnce) {
    open();
    selectAll();
    view.select(1, false);
    view.bekr = false;
    deletion.deletePressed();
    EXPECT_TRUE(view.asked.empty());
    EXPECT_FALSE(there("B.RES"));
    EXPECT_TRUE(there("a.res"));
    EXPECT_FALSE(there("d.res"));
    EXPECT_FALSE(there("å.res"));
    EXPECT_EQ(view.entries, Names{"a.res"});
    EXPECT_TRUE(view.bekr) << "ticked again";
    EXPECT_FALSE(view.closed);
}

TEST_F(FileDeletionTest, AsksForEachSelectedFileByItsCapitals) {
    open();
    selectAll();
    view.select(0, false);
    deletion.deletePressed();
    EXPECT_EQ(view.asked, (Names{"A.RES 1", "D.RES 2", "Å.RES 3"}));
    EXPECT_EQ(view.entries, Names{"B.RES"});
}

TEST_F(FileDeletionTest, UndoLeavesTheFileAndGoesOnWithTheNext) {
    open();
    selectAll();
    std::vector<bool> selectedAtTheNext;
    view.answer = [&](const std::string& name) {
        if (name == "D.RES") selectedAtTheNext = view.selected;
        return name != "A.RES";
    };
    deletion.deletePressed();
    EXPECT_EQ(view.asked.size(), 4u);
    EXPECT_FALSE(selectedAtTheNext[1]);
    EXPECT_TRUE(selectedAtTheNext[2]);
    EXPECT_EQ(view.entries, Names{"a.res"});
    EXPECT_TRUE(view.bekr);
}

TEST_F(FileDeletionTest, NothingSelectedDeletesNothingAndIsTold) {
    open();
    view.bekr = false;
    deletion.deletePressed();
    EXPECT_EQ(boxes.shown, (std::vector<FakeMessageBoxes::Shown>{
                               {"Markera först de filer som Du vill ta bort !", msgOk, ""}}));
    EXPECT_TRUE(files.calls.empty());
    EXPECT_TRUE(view.bekr);
    EXPECT_EQ(view.refreshed, 2);
}

TEST_F(FileDeletionTest, AFileThatCannotBeDeletedIsToldAndWhatIsLeftStaysSelected) {
    open();
    selectAll();
    view.select(2, false);
    view.bekr = false;
    files.fault = [](const std::string&, const std::string& path) {
        return path.ends_with("a.res") ? errPermissionDenied : 0;
    };
    Names shownThen;
    boxes.whileShown = [&] { shownThen = view.entries; };
    deletion.deletePressed();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].style, msgError);
    EXPECT_EQ(boxes.shown[0].title, "Varno");
    EXPECT_EQ(boxes.shown[0].text,
              "Filen C:\\arbete\\a.res är öppen i ett annat program eller står på en skrivskyddad disk.\n"
              "Filen har inte tagits bort; det som är markerat i listan finns kvar.\n"
              "Stäng filen i det andra programmet och försök igen, eller välj ett annat namn eller en annan "
              "mapp.\n\n"
              "Run-time error '70': Permission denied");
    EXPECT_EQ(shownThen, view.entries) << "the message is about the list below it";
    EXPECT_EQ(view.entries, (Names{"a.res", "d.res", "å.res"})) << "the first one is gone, and not shown";
    EXPECT_EQ(view.selected, (std::vector<bool>{true, false, true}));
    EXPECT_TRUE(view.bekr);

    files.fault = nullptr;
    deletion.deletePressed();
    EXPECT_EQ(view.entries, Names{"d.res"});
    EXPECT_EQ(boxes.shown.size(), 1u);
}

TEST_F(FileDeletionTest, EveryErrorNamesItsFileAndEndsWithItsNumber) {
    open();
    for (const int error :
         {errFileNotFound, errPathNotFound, errPermissionDenied, errPathFileAccess, errDeviceIo}) {
        boxes.shown.clear();
        view.select(0, true);
        files.fault = [error](const std::string&, const std::string&) { return error; };
        deletion.deletePressed();
        ASSERT_EQ(boxes.shown.size(), 1u) << error;
        const std::string& text = boxes.shown[0].text;
        EXPECT_NE(text.find("C:\\arbete\\B.RES"), std::string::npos) << text;
        EXPECT_NE(text.find("\nFilen har inte tagits bort; "), std::string::npos) << text;
        EXPECT_TRUE(
            text.ends_with("\n\nRun-time error '" + std::to_string(error) + "': " + runTimeErrorText(error)))
            << text;
        EXPECT_EQ(view.selected, (std::vector<bool>{true, false, false, false}));
    }
}

TEST_F(FileDeletionTest, AFileThatWentMeanwhileIsToldAndNotShown) {
    open();
    view.select(0, true);
    files.content.erase("C:\\arbete\\B.RES");
    deletion.deletePressed();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_NE(boxes.shown[0].text.find("B.RES finns inte."), std::string::npos) << boxes.shown[0].text;
    EXPECT_EQ(view.entries.size(), 3u);
    EXPECT_EQ(view.selected, (std::vector<bool>{false, false, false}));
}

TEST_F(FileDeletionTest, StartsWhereTheFileNameDialogWasLeft) {
    open("*.RES", "C:\\arbete\\gammalt");
    EXPECT_EQ(deletion.directory(), "C:\\arbete\\gammalt");
    open("*.RES", "C:\\arbete\\");
    EXPECT_EQ(deletion.directory(), "C:\\arbete");
    open("*.RES", "A:\\");
    EXPECT_EQ(deletion.directory(), "A:\\") << "a root, not wherever the drive stands";
    EXPECT_EQ(errorOf([&] { open("*.RES", "C:\\borta"); }), errPathNotFound);
}

TEST_F(FileDeletionTest, DeletesInTheFolderThatIsShown) {
    files.content["A:\\b.res"] = "x";
    files.content["C:\\arbete\\gammalt\\g.res"] = "x";
    open();
    deletion.folderChosen("C:\\arbete\\gammalt");
    EXPECT_EQ(view.entries, Names{"g.res"});
    selectAll();
    deletion.deletePressed();
    EXPECT_FALSE(there("gammalt\\g.res"));
    deletion.driveChosen("A:");
    EXPECT_EQ(view.entries, Names{"b.res"});
    selectAll();
    deletion.deletePressed();
    EXPECT_FALSE(files.content.contains("A:\\b.res"));
}

TEST_F(FileDeletionTest, ADriveThatIsNotThereLeavesTheListsWhereTheyAre) {
    open();
    EXPECT_EQ(errorOf([&] { deletion.driveChosen("Q:"); }), errDeviceUnavailable);
    EXPECT_EQ(errorOf([&] { deletion.folderChosen("C:\\borta"); }), errPathNotFound);
    EXPECT_EQ(deletion.directory(), "C:\\arbete");
    EXPECT_EQ(view.refreshed, 3) << "the drive list stands where the others do";
}

TEST_F(FileDeletionTest, HelpAndClose) {
    deletion.helpPressed();
    EXPECT_EQ(view.help, "Clicka med musen på de Filer Du vill ta bort|Clicka sedan på 'Ta bort'");
    deletion.closePressed();
    EXPECT_TRUE(view.closed);
}

} // namespace
} // namespace varno::testing
