#include "tool/commands.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/case_files.h"
#include "support/memory_files.h"
#include "tool/fake_engines.h"

namespace varno {

namespace {

using testing::errorOf;

class Commands : public ::testing::Test {
  protected:
    testing::MemoryFiles files;
    std::ostringstream out;
    std::ostringstream err;
    tool::ConsoleBoxes boxes{err};
    FileOpener opener{files, boxes};
    testing::FakeEngines engines;
    tool::Session session{opener, out, err, engines, false};
};

TEST_F(Commands, LoadACaseOverThePresets) {
    files.content["A.IND"] = testing::sampleFile();
    const CaseFile loaded = tool::loadCase(opener, "A.IND");
    EXPECT_EQ(loaded.designCase, testing::sampleCase().designCase);
    EXPECT_EQ(loaded.name, "NAMNLÖS");
    EXPECT_EQ(loaded.title, "Bärlägg för Ångström");
}

TEST_F(Commands, PrintACase) {
    files.content["A.IND"] = testing::sampleFile();
    const CaseFile loaded = tool::loadCase(opener, "A.IND");
    tool::printJson(session, {"A.IND"});
    EXPECT_EQ(out.str(), tool::caseJson(loaded));
    out.str("");
    tool::printReport(session, {"A.IND"});
    EXPECT_EQ(out.str(), tool::caseReport(loaded));
}

TEST_F(Commands, RewriteGivesTheSameBytes) {
    files.content["A.IND"] = testing::sampleFile();
    tool::rewriteCase(session, {.file = "A.IND", .target = "B.IND"});
    tool::rewriteCase(session, {.file = "A.IND", .target = "A.IND"});
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{"A.IND", testing::sampleFile()},
                                                           {"B.IND", testing::sampleFile()}}));
}

TEST_F(Commands, RewriteBringsAForeignFileIntoShape) {
    files.content["A.IND"] =
        testing::textOf(testing::linesOf(testing::sampleFileWith(6, "6 12.5    .25")), "\n");
    tool::rewriteCase(session, {.file = "A.IND", .target = "A.IND"});
    EXPECT_EQ(testing::linesOf(files.content["A.IND"])[5], "612.5000.250  0.000  ");
}

TEST_F(Commands, RewriteKeepsTheTargetWhenTheSourceIsDamaged) {
    files.content["A.IND"] = "short\r\n";
    files.content["B.IND"] = "old";
    EXPECT_EQ(errorOf([&] { tool::rewriteCase(session, {.file = "A.IND", .target = "B.IND"}); }),
              errInputPastEnd);
    EXPECT_EQ(files.content["B.IND"], "old");
}

TEST_F(Commands, RewriteKeepsTheTargetWhenTheDiskIsFull) {
    files.content["A.IND"] = testing::sampleFile();
    files.fault = [](const std::string& call, const std::string&) {
        return call == "write" ? errDiskFull : 0;
    };
    EXPECT_EQ(errorOf([&] { tool::rewriteCase(session, {.file = "A.IND", .target = "A.IND"}); }),
              errDiskFull);
    EXPECT_EQ(files.content, (std::map<std::string, Bytes>{{"A.IND", testing::sampleFile()}}));
}

TEST_F(Commands, AMissingFileIsError52AtTheFirstRead) {
    for (const auto action : {tool::printJson, tool::printReport, tool::printResult})
        EXPECT_EQ(errorOf([&] { action(session, {"A.IND"}); }), errBadFileNameOrNumber);
    EXPECT_EQ(errorOf([&] { tool::rewriteCase(session, {.file = "A.IND", .target = "B.IND"}); }),
              errBadFileNameOrNumber);
    EXPECT_EQ(out.str() + err.str(), "");
}

TEST_F(Commands, PrintAResultAsTheViewerShowsIt) {
    files.content["A.res"] = "B\x84rl\xE4ggning\r\n\r\n  M = 12,5 kNm\xB2 \x80 \x81\r\n";
    tool::printResult(session, {"A.res"});
    EXPECT_EQ(out.str(), "\r\nBärläggning\r\n\r\n  M = 12,5 kNm² € \u0081");
}

TEST_F(Commands, EveryByteOfAResultBecomesACharacter) {
    Bytes high;
    for (int byte = 0x80; byte < 0x100; ++byte)
        high += static_cast<char>(byte);
    files.content["A.res"] = "\x8F\x8E\x99\x86\x84\x94\r\n" + high;
    tool::printResult(session, {"A.res"});
    EXPECT_EQ(encodeWindows1252(out.str()).size(), 2 + 6 + 2 + 128u);
    EXPECT_EQ(encodeWindows1252(out.str()).find('?'), std::string::npos);
    EXPECT_TRUE(out.str().starts_with("\r\nÅÄÖåäö\r\n€"));
}

TEST_F(Commands, MessagesGoToTheErrorStreamAndNeverTryAgain) {
    for (const int error : {54, 55, 57, 61, 62, 64, 68, 71, 76}) {
        EXPECT_NE(opener.reportFileError(error), 0) << error;
    }
    EXPECT_EQ(err.str(), "Disk Error: Bad FileMode\n"
                         "Disk Error: File Already Open\n"
                         "Disk Error: Device IO\n"
                         "Disk Error: Disk Full\n"
                         "Disk Error: Input Past End Of File\n"
                         "Disk Error: Bad Filename, Bad Filename Or Number\n"
                         "Disk Error: Device Unavailable\n"
                         "Disk Error: Disk Not Ready\n"
                         "Disk Error: Path Does Not Exist\n");
    err.str("");
    boxes.tell("Hej");
    EXPECT_EQ(err.str(), "Hej\n");
}

} // namespace

} // namespace varno
