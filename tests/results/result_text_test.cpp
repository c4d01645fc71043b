#include "results/result_text.h"

#include <gtest/gtest.h>

#include <random>

#include "base/open_file.h"
#include "support/memory_files.h"

namespace varno::testing {
namespace {

// The rule as it is stated: the repair of the whole text after every line.
Bytes repairedTheSlowWay(const std::vector<Bytes>& lines) {
    Bytes text;
    for (const Bytes& line : lines)
        text = VARNO1::fromOemLetters(text + "\r\n" + line);
    return text;
}

Bytes repaired(const std::vector<Bytes>& lines) {
    RepairedText text;
    for (const Bytes& line : lines)
        text.appendLine(line);
    return text.bytes();
}

Bytes readText(const Bytes& content) {
    MemoryFiles files;
    files.content["HUS1.res"] = content;
    File file(files, "HUS1.res", FileMode::input, 0, 1);
    return VARNO1::readResultText(file);
}

TEST(ResultText, EveryLineIsPrecededByALineEndAndTheLastHasNone) {
    EXPECT_EQ(readText("ett\r\ntv\xE5\r\ntre\r\n"), "\r\nett\r\ntv\xE5\r\ntre");
    EXPECT_EQ(readText("ett"), "\r\nett");
}

TEST(ResultText, AFileWithNoLinesIsNothing) {
    EXPECT_EQ(readText(""), "");
}

TEST(ResultText, AnEmptyLineIsALine) {
    EXPECT_EQ(readText("\r\n"), "\r\n");
}

TEST(ResultText, LinesEndInAnyOfTheThreeWays) {
    EXPECT_EQ(readText("a\nb\rc\r\nd"), "\r\na\r\nb\r\nc\r\nd");
}

TEST(ResultText, AnOnlyLineHasOneOfEachLetterRepaired) {
    EXPECT_EQ(readText("\x86 \x86 \x86"), "\r\n\xE5 \x86 \x86");
}

TEST(ResultText, EveryFurtherLineRepairsOneMoreWhereverItStands) {
    EXPECT_EQ(readText("\x86\x86\x86\r\n.\r\n."), "\r\n\xE5\xE5\xE5\r\n.\r\n.");
    EXPECT_EQ(readText("\x86\x86\x86\r\n."), "\r\n\xE5\xE5\x86\r\n.");
}

TEST(ResultText, TheSixLettersAreRepairedApart) {
    EXPECT_EQ(readText("\x8F\x8E\x99\x86\x84\x94"), "\r\n\xC5\xC4\xD6\xE5\xE4\xF6");
}

TEST(ResultText, IsTheRepairOfTheWholeTextAfterEveryLine) {
    std::mt19937 random(20260411);
    const Bytes alphabet = "\x86\x84\x94\x8F\x8E\x99\xE5 a";
    for (int round = 0; round < 500; ++round) {
        std::vector<Bytes> lines(random() % 12);
        for (Bytes& line : lines) {
            line.resize(random() % 9);
            for (char& c : line)
                c = alphabet[random() % alphabet.size()];
        }
        ASSERT_EQ(repaired(lines), repairedTheSlowWay(lines)) << "round " << round;
    }
}

TEST(ResultText, AFileThatDidNotOpenIsError52) {
    File file;
    EXPECT_EQ(errorOf([&] { VARNO1::readResultText(file); }), errBadFileNameOrNumber);
}

} // namespace
} // namespace varno::testing
