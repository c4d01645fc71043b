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
    void clearSelection(int position) override { select(position, false); }
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
    void close() override { closed = true; }

    void select(int position, bool on = true) { selected.at(static_cast<std::size_t>(position)) = on; }

    FileLists* lists = nullptr;
    std::vector<std::string> entries;
    std::vector<bool> selected;
    bool bekr = false;
    std::vector<std::string> asked;
    std::function<bool(const std::string&)> answer = [](const std::string&) { return true; };
    int refreshed = 0;
    std::string help;
    bool closed = false;
};

class FileDeletionTest : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"a.res", "B.RES", "c.ind", "d.res", "e.txt", "\xC3\xA5.res"})
            files.content["C:\\arbete\\" + std::string(name)] = "x";
        view.lists = &deletion.lists();
    }
    void open(const std::string& pattern = "*.RES", const std::string& directory = "") {
        deletion.opened(view, pattern, directory);
    }
    void selectAll() { view.selected.assign(view.entries.size(), true); }
    bool there(const std::string& name) { return files.content.contains("C:\\arbete\\" + name); }

    MemoryFiles files;
    MemoryFolders folders{files};
    FileDeletion deletion{folders, files};
    FakeDeletionWindow view;
};

using Names = std::vector<std::string>;

TEST_F(FileDeletionTest, EachMenuItemOffersItsFiles) {
    ASSERT_EQ(deletionMenu.size(), 3u);
    const Names expected[] = {
        {"B.RES", "a.res", "d.res", "å.res"}, {"c.ind"}, {"B.RES", "a.res", "c.ind", "d.res", "å.res"}};
    for (std::size_t i = 0; i < deletionMenu.size(); ++i) {
        view.bekr = false;
        open(deletionMenu[i].pattern);
        EXPECT_EQ(view.entries, expected[i]) << deletionMenu[i].name;
        EXPECT_TRUE(view.bekr);
    }
}

TEST_F(FileDeletionTest, WithoutConfirmationTheSelectedFilesGoAtOnce) {
    open();
    selectAll();
    view.select(1, false);
    view.bekr = false;
    deletion.deletePressed(view);
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
    deletion.deletePressed(view);
    EXPECT_EQ(view.asked, (Names{"A.RES 1", "D.RES 2", "Å.RES 3"}));
    EXPECT_EQ(view.entries, Names{"B.RES"});
}

TEST_F(FileDeletionTest, UndoLeavesTheFileAndGoesOnWithTheNext) {
    open();
    selectAll();
    std::vector<bool> selectedAtTheNext;
    view.answer = [&](const std::string& name) {
        selectedAtTheNext = view.selected;
        return name != "A.RES";
    };
    deletion.deletePressed(view);
    EXPECT_EQ(view.asked.size(), 4u);
    EXPECT_FALSE(selectedAtTheNext[1]);
    EXPECT_TRUE(selectedAtTheNext[2]);
    EXPECT_EQ(view.entries, Names{"a.res"});
    EXPECT_TRUE(view.bekr);
}

TEST_F(FileDeletionTest, NothingSelectedDeletesNothing) {
    open();
    view.bekr = false;
    deletion.deletePressed(view);
    EXPECT_TRUE(files.calls.empty());
    EXPECT_TRUE(view.bekr);
    EXPECT_EQ(view.refreshed, 2);
}

TEST_F(FileDeletionTest, AFileThatCannotBeDeletedRaisesItsErrorAndTheWindowIsReady) {
    open();
    selectAll();
    view.bekr = false;
    files.fault = [](const std::string&, const std::string& path) {
        return path.ends_with("a.res") ? errPermissionDenied : 0;
    };
    EXPECT_EQ(errorOf([&] { deletion.deletePressed(view); }), errPermissionDenied);
    EXPECT_EQ(view.entries, (Names{"a.res", "d.res", "å.res"})) << "the first one is gone, and not shown";
    EXPECT_TRUE(view.bekr);
    files.fault = nullptr;
    selectAll();
    deletion.deletePressed(view);
    EXPECT_EQ(view.entries, Names{});
}

TEST_F(FileDeletionTest, AFileThatWentMeanwhileIsError53) {
    open();
    view.select(0);
    files.content.erase("C:\\arbete\\B.RES");
    EXPECT_EQ(errorOf([&] { deletion.deletePressed(view); }), errFileNotFound);
    EXPECT_EQ(view.entries.size(), 3u);
}

TEST_F(FileDeletionTest, StartsWhereTheFileNameDialogWasLeft) {
    open("*.RES", "C:\\arbete\\gammalt");
    EXPECT_EQ(deletion.lists().directory(), "C:\\arbete\\gammalt");
    open("*.RES", "C:\\arbete\\");
    EXPECT_EQ(deletion.lists().directory(), "C:\\arbete");
    open("*.RES", "A:\\");
    EXPECT_EQ(deletion.lists().directory(), "A:\\") << "a root, not wherever the drive stands";
    EXPECT_EQ(errorOf([&] { open("*.RES", "C:\\borta"); }), errPathNotFound);
}

TEST_F(FileDeletionTest, DeletesInTheFolderThatIsShown) {
    files.content["A:\\b.res"] = "x";
    files.content["C:\\arbete\\gammalt\\g.res"] = "x";
    open();
    deletion.folderChosen(view, "C:\\arbete\\gammalt");
    EXPECT_EQ(view.entries, Names{"g.res"});
    selectAll();
    deletion.deletePressed(view);
    EXPECT_FALSE(there("gammalt\\g.res"));
    deletion.driveChosen(view, "A:");
    EXPECT_EQ(view.entries, Names{"b.res"});
    selectAll();
    deletion.deletePressed(view);
    EXPECT_FALSE(files.content.contains("A:\\b.res"));
}

TEST_F(FileDeletionTest, ADriveThatIsNotThereLeavesTheListsWhereTheyAre) {
    open();
    EXPECT_EQ(errorOf([&] { deletion.driveChosen(view, "Q:"); }), errDeviceUnavailable);
    EXPECT_EQ(errorOf([&] { deletion.folderChosen(view, "C:\\borta"); }), errPathNotFound);
    EXPECT_EQ(deletion.lists().directory(), "C:\\arbete");
    EXPECT_EQ(view.refreshed, 2) << "the drive list stands where the others do";
}

TEST_F(FileDeletionTest, HelpAndClose) {
    deletion.helpPressed(view);
    EXPECT_EQ(view.help, "Clicka med musen på de Filer Du vill ta bort|Clicka sedan på 'Ta bort'");
    deletion.closePressed(view);
    EXPECT_TRUE(view.closed);
}

} // namespace
} // namespace varno::testing
