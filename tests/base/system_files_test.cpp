#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <regex>

#ifndef _WIN32
#include <unistd.h>
#endif

#include "base/file.h"
#include "base/open_file.h"
#include "support/memory_files.h"
#include "support/temporary_folder.h"

// The calls of the system this is built for, on its own disk, in a folder with Swedish letters and a blank in
// its name.
namespace varno {

namespace {

using testing::errorOf;
using testing::TemporaryFolder;

// A file that cannot be written stops nobody who runs the tests as root; for as long as this lives, a common
// user runs them.
class CommonUser {
  public:
    CommonUser() {
#ifndef _WIN32
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0) {
            EXPECT_EQ(seteuid(nobody), 0);
        }
#endif
    }
    ~CommonUser() {
#ifndef _WIN32
        if (getuid() != geteuid()) {
            EXPECT_EQ(seteuid(getuid()), 0);
        }
#endif
    }
    CommonUser(const CommonUser&) = delete;
    CommonUser& operator=(const CommonUser&) = delete;
};

class SystemFiles : public ::testing::Test {
  protected:
    void SetUp() override { std::filesystem::permissions(folder.folder(), std::filesystem::perms::all); }
    void makeReadOnly(const std::string& name) {
        using std::filesystem::perms;
        const perms writing = perms::owner_write | perms::group_write | perms::others_write;
        std::filesystem::permissions(folder.file(name), writing, std::filesystem::perm_options::remove);
    }
    void makeWritable(const std::string& name) {
        std::filesystem::permissions(folder.file(name), std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
    }
    int errorOfOpening(const std::string& name, FileMode mode) {
        return errorOf([&] { File(calls, folder.path(name), mode, 1, 1); });
    }

    TemporaryFolder folder;
    FileCalls& calls = systemFileCalls();
};

TEST_F(SystemFiles, AreReadByteForByte) {
    Bytes all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    all += "\r\n\n\r\x1A";
    folder.write("ÅÄÖ.dat", all);
    EXPECT_EQ(calls.readAll(folder.path("ÅÄÖ.dat")), all);

    const Bytes large(300000, '\n');
    folder.write("large.dat", large);
    EXPECT_EQ(calls.readAll(folder.path("large.dat")), large);
    folder.write("empty.dat", "");
    EXPECT_EQ(calls.readAll(folder.path("empty.dat")), "");
}

TEST_F(SystemFiles, AreTheSameHoweverThePathIsWritten) {
    folder.write("HÖG.IND", "x");
    folder.write("LÅG.IND", "x");
    const std::string path = folder.path("HÖG.IND");
    EXPECT_TRUE(calls.same(path, path));
    EXPECT_TRUE(calls.same(path, folder.path("./HÖG.IND")));
    EXPECT_FALSE(calls.same(path, folder.path("LÅG.IND"))) << "the same content in another file";
    EXPECT_FALSE(calls.same(path, folder.path("saknas.IND")));
    EXPECT_FALSE(calls.same(folder.path("saknas.IND"), folder.path("saknas.IND")));
    EXPECT_FALSE(calls.same(path, ""));
#ifdef _WIN32
    EXPECT_TRUE(calls.same(path, folder.path("hög.ind")));
#endif
}

TEST_F(SystemFiles, AreReplacedByteForByte) {
    folder.write("HÖG.IND", "old content that is longer than the new one");
    File file(calls, folder.path("HÖG.IND"), FileMode::output, 0, 1);
    file.printLine("B\x84rl\xE4gg");
    EXPECT_EQ(folder.read("HÖG.IND"), "old content that is longer than the new one");
    file.close();
    EXPECT_EQ(folder.read("HÖG.IND"), "B\x84rl\xE4gg\r\n");
    EXPECT_EQ(folder.count(), 1u) << "a draft was left";
}

TEST_F(SystemFiles, AreMadeWhenTheyAreMissing) {
    File file(calls, folder.path("ny fil.IND"), FileMode::output, 0, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.file("ny fil.IND")));
    file.printLine("x");
    file.close();
    EXPECT_EQ(folder.read("ny fil.IND"), "x\r\n");
    EXPECT_EQ(folder.count(), 1u);
}

TEST_F(SystemFiles, StayWhenAFileIsGivenUp) {
    folder.write("A.IND", "old");
    {
        File file(calls, folder.path("A.IND"), FileMode::output, 0, 1);
        file.printLine("half a case");
    }
    EXPECT_EQ(folder.read("A.IND"), "old");
    EXPECT_EQ(folder.count(), 1u);
}

TEST_F(SystemFiles, AppendAndGoByRecord) {
    folder.write("A.dat", "abcd");
    File append(calls, folder.path("A.dat"), FileMode::append, 0, 1);
    append.printLine("ef");
    append.close();
    EXPECT_EQ(folder.read("A.dat"), "abcdef\r\n");
    File random(calls, folder.path("A.dat"), FileMode::random, 4, 1);
    EXPECT_EQ(random.get(2, 4), "ef\r\n");
    random.put(1, "WXYZ");
    random.close();
    EXPECT_EQ(folder.read("A.dat"), "WXYZef\r\n");
}

TEST_F(SystemFiles, AMissingFileIsError53) {
    EXPECT_EQ(errorOf([&] { calls.readAll(folder.path("finns inte.IND")); }), errFileNotFound);
    EXPECT_EQ(errorOf([&] { calls.remove(folder.path("finns inte.IND")); }), errFileNotFound);
    EXPECT_FALSE(calls.exists(folder.path("finns inte.IND")));
}

TEST_F(SystemFiles, AMissingFolderIsError76) {
    const std::string inside = folder.path("finns inte/A.IND");
    EXPECT_EQ(errorOf([&] { calls.readAll(inside); }), errPathNotFound);
    EXPECT_EQ(errorOf([&] { calls.checkWritable(inside); }), errPathNotFound);
    EXPECT_EQ(errorOf([&] { calls.create(inside); }), errPathNotFound);
    EXPECT_EQ(errorOf([&] { File(calls, inside, FileMode::output, 0, 1); }), errPathNotFound);
}

TEST_F(SystemFiles, AFolderIsError75) {
    std::filesystem::create_directory(folder.file("mapp"));
    EXPECT_EQ(errorOfOpening("mapp", FileMode::input), errPathFileAccess);
    EXPECT_EQ(errorOfOpening("mapp", FileMode::output), errPathFileAccess);
    EXPECT_EQ(folder.count(), 1u);
}

TEST_F(SystemFiles, AReadOnlyFileIsError75AndStays) {
    folder.write("låst.IND", "old");
    makeReadOnly("låst.IND");
    {
        const CommonUser user;
        EXPECT_EQ(errorOf([&] { calls.checkWritable(folder.path("låst.IND")); }), errPathFileAccess);
        EXPECT_EQ(errorOfOpening("låst.IND", FileMode::output), errPathFileAccess);
        EXPECT_EQ(errorOfOpening("låst.IND", FileMode::append), errPathFileAccess);
        EXPECT_EQ(errorOfOpening("låst.IND", FileMode::input), 0);
    }
    makeWritable("låst.IND");
    EXPECT_EQ(folder.read("låst.IND"), "old");
    EXPECT_EQ(folder.count(), 1u);
}

TEST_F(SystemFiles, LargerThanAnyCaseAreError7) {
    folder.write("100MB.IND", Bytes(100'000'000, '7'));
    EXPECT_EQ(errorOfOpening("100MB.IND", FileMode::input), errOutOfMemory);
    folder.write("stor.IND", Bytes(10'000'000, '7'));
    EXPECT_EQ(errorOfOpening("stor.IND", FileMode::input), 0);
}

TEST_F(SystemFiles, ANameThatIsTooLongIsError52) {
    const std::string name(300, 'x');
    EXPECT_EQ(errorOfOpening(name, FileMode::input), errBadFileNameOrNumber);
    EXPECT_EQ(errorOfOpening(name, FileMode::output), errBadFileNameOrNumber);
    EXPECT_EQ(folder.count(), 0u);
}

TEST_F(SystemFiles, ANameWithAZeroByteIsError52AndNoOtherFile) {
    const std::string name("MZ\0.IND", 7);
    EXPECT_EQ(errorOfOpening(name, FileMode::output), errBadFileNameOrNumber);
    EXPECT_EQ(errorOfOpening(name, FileMode::input), errBadFileNameOrNumber);
    EXPECT_EQ(folder.count(), 0u);
}

TEST_F(SystemFiles, InFoldersBeyond260LettersAreSavedAndRead) {
    std::filesystem::path deep = folder.folder();
    while (deep.u8string().size() < 400)
        deep /= std::string(40, 'm');
#ifdef _WIN32
    // Only the long form of a path leads there.
    std::filesystem::create_directories(LR"(\\?\)" + deep.wstring());
#else
    std::filesystem::create_directories(deep);
#endif
    const std::u8string text = (deep / u8"Å.IND").make_preferred().u8string();
    const std::string name(text.begin(), text.end());
    for (const std::string content : {"first", "second"}) {
        File file(calls, name, FileMode::output, 0, 1);
        file.printLine(content);
        file.close();
        EXPECT_EQ(calls.readAll(name), content + "\r\n");
    }
    calls.remove(name);
    EXPECT_FALSE(calls.exists(name));
}

TEST_F(SystemFiles, WithLettersOutsideTheCodePageAreSavedAndRead) {
    for (const std::string name : {"ÅÄÖ åäö.IND", "плита.IND", "床版.IND", "a\u00A0b.IND"}) {
        File file(calls, folder.path(name), FileMode::output, 0, 1);
        file.printLine(name);
        file.close();
        EXPECT_EQ(folder.read(name), name + "\r\n");
    }
    EXPECT_EQ(folder.count(), 4u);
}

TEST_F(SystemFiles, KnowWhenTheyWereWritten) {
    folder.write("A.IND", "1");
    folder.write("B.IND", "1");
    std::filesystem::last_write_time(folder.file("A.IND"),
                                     std::filesystem::last_write_time(folder.file("B.IND")) -
                                         std::chrono::seconds(2));
    EXPECT_LT(calls.lastWritten(folder.path("A.IND")), calls.lastWritten(folder.path("B.IND")));
    EXPECT_EQ(errorOf([&] { calls.lastWritten(folder.path("finns inte")); }), errFileNotFound);

    const std::string text = calls.lastWrittenText(folder.path("B.IND"));
    EXPECT_TRUE(std::regex_match(text, std::regex("20\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d"))) << text;
    EXPECT_LT(calls.lastWrittenText(folder.path("A.IND")), text);
    EXPECT_EQ(errorOf([&] { calls.lastWrittenText(folder.path("finns inte")); }), errFileNotFound);
}

TEST_F(SystemFiles, CheckWritableChangesNothing) {
    folder.write("A.IND", "old");
    const auto before = std::filesystem::last_write_time(folder.file("A.IND"));
    calls.checkWritable(folder.path("A.IND"));
    calls.checkWritable(folder.path("ny.IND"));
    EXPECT_EQ(folder.read("A.IND"), "old");
    EXPECT_EQ(std::filesystem::last_write_time(folder.file("A.IND")), before);
    EXPECT_EQ(folder.count(), 1u);
}

TEST_F(SystemFiles, CreateEmptiesAndReplaceReplaces) {
    folder.write("a", "long content");
    const auto output = calls.create(folder.path("a"));
    output->write("ab");
    output->write("");
    output->write("c");
    output->flush();
    output->close();
    EXPECT_EQ(folder.read("a"), "abc");
    calls.replace(folder.path("a"), folder.path("ö"));
    EXPECT_FALSE(calls.exists(folder.path("a")));
    EXPECT_TRUE(calls.exists(folder.path("ö")));
    folder.write("a", "second");
    calls.replace(folder.path("a"), folder.path("ö"));
    EXPECT_EQ(folder.read("ö"), "second");
    calls.remove(folder.path("ö"));
    EXPECT_EQ(folder.count(), 0u);
}

TEST_F(SystemFiles, OpenFileReportsAMissingFolderAndNotAMissingFile) {
    testing::FakeMessageBoxes boxes;
    boxes.answers = {MessageAnswer::cancel};
    FileOpener opener(calls, boxes);
    EXPECT_EQ(opener.openFile(folder.path("saknas.IND"), FileMode::input).number(), 0);
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(opener.openFile(folder.path("saknas/A.IND"), FileMode::input).number(), 0);
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].text, "Path Does Not Exist");
}

} // namespace

} // namespace varno
