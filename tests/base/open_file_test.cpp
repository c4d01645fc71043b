#include "base/open_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;
using testing::FakeMessageBoxes;
using testing::MemoryFiles;

class OpenFile : public ::testing::Test {
  protected:
    // The next `times` calls of the disk fail with this error.
    void failNext(int times, int error) {
        files.fault = [times, error](const std::string&, const std::string&) mutable {
            return times-- > 0 ? error : 0;
        };
    }

    MemoryFiles files;
    FakeMessageBoxes boxes;
    FileOpener opener{files, boxes};
};

struct ErrorBox {
    int error;
    const char* text;
    int style;
};

constexpr ErrorBox errorBoxes[] = {
    {54, "Bad FileMode", 0},
    {55, "File Already Open", 0},
    {57, "Device IO", 4},
    {61, "Disk Full", 35},
    {62, "Input Past End Of File", 0},
    {64, "Bad Filename, Bad Filename Or Number", 0},
    {68, "Device Unavailable", 4},
    {71, "Disk Not Ready", 0},
    {76, "Path Does Not Exist", 0},
};

TEST_F(OpenFile, ShowsTheMessageOfAnError) {
    for (const ErrorBox& row : errorBoxes) {
        boxes.shown.clear();
        opener.reportFileError(row.error);
        EXPECT_EQ(boxes.shown, (std::vector<FakeMessageBoxes::Shown>{{row.text, row.style, "Disk Error"}}));
    }
}

TEST_F(OpenFile, ShowsNoMessageForAnyOtherError) {
    for (int error = 0; error <= 100; ++error) {
        const bool listed = std::any_of(std::begin(errorBoxes), std::end(errorBoxes),
                                        [error](const ErrorBox& row) { return row.error == error; });
        if (listed) continue;
        EXPECT_EQ(opener.reportFileError(error), 3) << error;
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(OpenFile, MapsTheAnswerOfTheMessage) {
    const struct {
        MessageAnswer answer;
        int meaning;
    } rows[] = {
        {MessageAnswer::ok, 0},     {MessageAnswer::retry, 0}, {MessageAnswer::ignore, 1},
        {MessageAnswer::cancel, 2}, {MessageAnswer::abort, 2}, {MessageAnswer::yes, 3},
        {MessageAnswer::no, 3},
    };
    for (const ErrorBox& box : errorBoxes) {
        for (const auto& row : rows) {
            boxes.answers = {row.answer};
            EXPECT_EQ(opener.reportFileError(box.error), row.meaning)
                << box.error << ", button " << static_cast<int>(row.answer);
        }
    }
}

TEST_F(OpenFile, TriesAgainAfterEveryOk) {
    files.content["A.IND"] = "a\r\n";
    failNext(3, errDiskNotReady);
    File file = opener.openFile("A.IND", FileMode::input);
    EXPECT_EQ(boxes.shown.size(), 3u);
    EXPECT_NE(file.number(), 0);
    EXPECT_EQ(file.readField(), "a");
}

TEST_F(OpenFile, AnErrorThatPersistsBringsItsMessageBack) {
    failNext(1000000, errPathNotFound);
    boxes.answers.assign(50, MessageAnswer::ok);
    boxes.answers.push_back(MessageAnswer::cancel);
    EXPECT_EQ(opener.openFile("X:\\A.IND", FileMode::output).number(), 0);
    EXPECT_EQ(boxes.shown.size(), 51u);
    EXPECT_EQ(boxes.shown.back().text, "Path Does Not Exist");
}

TEST_F(OpenFile, AnyAnswerButTryAgainGivesNoFile) {
    for (const MessageAnswer answer : {MessageAnswer::cancel, MessageAnswer::abort, MessageAnswer::ignore,
                                       MessageAnswer::yes, MessageAnswer::no}) {
        boxes.shown.clear();
        boxes.answers = {answer};
        failNext(1, errDiskFull);
        const File file = opener.openFile("A.IND", FileMode::output);
        EXPECT_EQ(file.number(), 0);
        EXPECT_EQ(boxes.shown.size(), 1u);
    }
}

TEST_F(OpenFile, AMissingFileIsSilentUntilItIsRead) {
    File file = opener.openFile("MISSING.IND", FileMode::input);
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(file.number(), 0);
    EXPECT_EQ(errorOf([&] { file.readField(); }), errBadFileNameOrNumber);
}

TEST_F(OpenFile, ErrorsWithoutAMessageGiveNoFileAtOnce) {
    for (const int error : {52, 53, 58, 67, 70, 75}) {
        failNext(1, error);
        EXPECT_EQ(opener.openFile("A.IND", FileMode::output).number(), 0) << error;
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(OpenFile, ABadModeIsReported) {
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{6}, std::int16_t{-1}}) {
        boxes.shown.clear();
        boxes.answers = {MessageAnswer::cancel};
        EXPECT_EQ(opener.openFile("A.IND", static_cast<FileMode>(mode)).number(), 0);
        EXPECT_EQ(boxes.shown, (std::vector<FakeMessageBoxes::Shown>{{"Bad FileMode", 0, "Disk Error"}}));
    }
}

TEST_F(OpenFile, OpensByItsModeCodes) {
    files.content["A.DAT"] = "old\r\n";
    {
        File output = opener.openFile("A.DAT", FileMode::output);
        output.printLine("new");
        output.close();
        EXPECT_EQ(files.content["A.DAT"], "new\r\n");
    }
    {
        File input = opener.openFile("A.DAT", FileMode::input);
        EXPECT_EQ(input.readLine(), "new");
    }
    {
        File append = opener.openFile("A.DAT", FileMode::append);
        append.printLine("more");
        append.close();
        EXPECT_EQ(files.content["A.DAT"], "new\r\nmore\r\n");
    }
    EXPECT_EQ(opener.openFile("A.DAT", FileMode::random, 5).get(2, 4), "more");
    EXPECT_EQ(opener.openFile("A.DAT", FileMode::binary).get(2, 2), "ew");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(OpenFile, GivesNumbersThatAreNeverZero) {
    files.content["A.IND"] = "a\r\n";
    for (int i = 0; i < 1000; ++i)
        ASSERT_GT(opener.openFile("A.IND", FileMode::input).number(), 0) << i;
}

} // namespace

} // namespace varno
