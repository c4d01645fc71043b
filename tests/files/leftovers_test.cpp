#include "files/leftovers.h"

#include <gtest/gtest.h>

#include "support/case_files.h"
#include "support/fake_folders.h"
#include "support/memory_files.h"

namespace varno {

namespace {

const std::string folder = "C:\\arbete";
const std::string casePath = folder + "\\HUS1.IND";
const std::string draftPath = casePath + ".~tmp";
const std::string backupPath = casePath + ".~bak";

// Shows the files of the memory disk, whatever the pattern.
class ListedFolders : public testing::FakeFolders {
  public:
    explicit ListedFolders(testing::MemoryFiles& files) : files_(files) {}
    std::vector<std::string> files(const std::string& path, const std::string& patterns) override {
        asked = path + " " + patterns;
        const std::string before = path.ends_with('\\') ? path : path + "\\";
        std::vector<std::string> names;
        for (const auto& [name, content] : files_.content) {
            if (name.starts_with(before)) names.push_back(name.substr(before.size()));
        }
        return names;
    }

  private:
    testing::MemoryFiles& files_;
};

class LeftoverFiles : public ::testing::Test {
  protected:
    void write(const std::string& path, const Bytes& bytes, std::int64_t time) {
        files.content[path] = bytes;
        files.written[path] = time;
    }
    static Bytes caseOf(const Bytes& length) { return testing::sampleFileWith(14, length); }
    std::vector<std::string> found() {
        std::vector<std::string> paths;
        for (const Leftover& leftover : leftovers.findIn(folder))
            paths.push_back(leftover.path);
        return paths;
    }
    bool has(const std::string& path) const { return files.content.contains(path); }

    testing::MemoryFiles files;
    ListedFolders folders{files};
    Leftovers leftovers{folders, files};
    testing::FakeMessageBoxes boxes;
};

using Paths = std::vector<std::string>;

TEST_F(LeftoverFiles, OfAMissingCaseAreFound) {
    write(draftPath, caseOf("1"), 5);
    const std::vector<Leftover> all = leftovers.findIn(folder);
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all.front().path, draftPath);
    EXPECT_EQ(all.front().casePath, casePath);
    EXPECT_FALSE(all.front().caseExists);
    EXPECT_EQ(folders.asked, folder + " *.IND.~tmp;*.IND.~bak");
}

TEST_F(LeftoverFiles, NewerThanTheirCaseAreFound) {
    write(casePath, caseOf("1"), 4);
    write(draftPath, caseOf("2"), 5);
    EXPECT_EQ(found(), Paths{draftPath});
    EXPECT_TRUE(leftovers.findIn(folder).front().caseExists);
    write(draftPath, caseOf("2"), 4);
    EXPECT_EQ(found(), Paths{draftPath}) << "on a disk that counts in steps of two seconds";
}

TEST_F(LeftoverFiles, WorthNothingAreRemoved) {
    struct Row {
        const char* why;
        Bytes bytes;
        std::int64_t time;
    };
    const Bytes whole = caseOf("2");
    for (const Row& row : {Row{"older", whole, 3}, Row{"empty", "", 5},
                           Row{"cut in a line", whole.substr(0, whole.size() - 1), 5},
                           Row{"half", whole.substr(0, whole.size() / 2), 5}, Row{"no case", "brev\r\n", 5},
                           Row{"the same", caseOf("1"), 5}}) {
        write(casePath, caseOf("1"), 4);
        write(draftPath, row.bytes, row.time);
        EXPECT_EQ(found(), Paths{}) << row.why;
        EXPECT_FALSE(has(draftPath)) << row.why;
        EXPECT_EQ(files.content[casePath], caseOf("1")) << row.why;
    }
    files.content.erase(casePath);
    write(draftPath, whole.substr(0, 40), 5);
    EXPECT_EQ(found(), Paths{});
    EXPECT_FALSE(has(draftPath));
}

TEST_F(LeftoverFiles, TheNewestOfACaseIsFound) {
    write(backupPath, caseOf("1"), 4);
    write(draftPath, caseOf("2"), 5);
    EXPECT_EQ(found(), Paths{draftPath});
    EXPECT_TRUE(has(backupPath)) << "nothing is removed that is not known to be older than the case";
    write(backupPath, caseOf("1"), 6);
    EXPECT_EQ(found(), Paths{backupPath});
}

TEST_F(LeftoverFiles, OtherFilesAreLeftAlone) {
    for (const char* name :
         {"~$brev.doc", "HUS1.RES.~tmp", ".IND.~tmp", "HUS1.IND.~tmp2", "HUS1.~tmp", "A.IND.TMP"})
        write(folder + "\\" + name, "annat", 9);
    const auto before = files.content;
    EXPECT_EQ(found(), Paths{});
    EXPECT_EQ(files.content, before);
}

TEST_F(LeftoverFiles, ThatCannotBeReadOrRemovedStay) {
    write(draftPath, "", 5);
    for (const char* failing : {"remove", "readAll"}) {
        files.fault = [failing](const std::string& call, const std::string&) {
            return call == failing ? errPermissionDenied : 0;
        };
        EXPECT_EQ(found(), Paths{}) << failing;
        EXPECT_TRUE(has(draftPath)) << failing;
    }
}

TEST_F(LeftoverFiles, AreFoundInTheRootOfADrive) {
    write("A:\\HUS1.ind.~tmp", caseOf("1"), 5);
    const std::vector<Leftover> all = leftovers.findIn("A:\\");
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all.front().casePath, "A:\\HUS1.ind");
}

TEST_F(LeftoverFiles, AreAskedAboutAndTakeTheirPlace) {
    write(casePath, caseOf("1"), 4);
    write(draftPath, caseOf("2"), 5);
    boxes.answers = {MessageAnswer::yes};
    askAboutLeftovers(leftovers, boxes, folder);
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].style, msgYesNoDefaultNo);
    EXPECT_NE(boxes.shown[0].text.find(casePath), std::string::npos);
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{casePath, caseOf("2")}}));
    askAboutLeftovers(leftovers, boxes, folder);
    EXPECT_EQ(boxes.shown.size(), 1u);
}

TEST_F(LeftoverFiles, StayAfterNo) {
    write(draftPath, caseOf("2"), 5);
    boxes.answers = {MessageAnswer::no};
    askAboutLeftovers(leftovers, boxes, folder);
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{draftPath, caseOf("2")}}));
}

TEST_F(LeftoverFiles, ThatCannotTakeTheirPlaceChangeNothing) {
    write(casePath, caseOf("1"), 4);
    write(draftPath, caseOf("2"), 5);
    const auto before = files.content;
    for (const char* failing : {"checkWritable", "replace"}) {
        files.fault = [failing](const std::string& call, const std::string&) {
            return call == failing ? errPathFileAccess : 0;
        };
        boxes.answers = {MessageAnswer::yes};
        EXPECT_EQ(testing::errorOf([&] { askAboutLeftovers(leftovers, boxes, folder); }), errPathFileAccess);
        EXPECT_EQ(files.content, before) << failing;
    }
}

} // namespace

} // namespace varno
