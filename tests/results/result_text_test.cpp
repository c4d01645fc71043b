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
    // Among them bytes that have the same high bits as the letters and the line ends.
    const Bytes alphabet = Bytes("\x86\x84\x94\x8F\x8E\x99\xE5 a\t\x80\x9F\xFF\0", 14);
    for (int round = 0; round < 4000; ++round) {
        const std::vector<Bytes> ends =
            round % 2 == 0 ? std::vector<Bytes>{"\r\n"} : std::vector<Bytes>{"\r\n", "\r\n", "\n", "\r"};
        std::vector<Bytes> lines(random() % 12);
        Bytes content;
        for (Bytes& line : lines) {
            line.resize(random() % 9);
            for (char& c : line)
                c = alphabet[random() % alphabet.size()];
            // A lone CR before an LF would be one line end with it.
            const bool joins = content.ends_with('\r') && line.empty();
            content += line + (joins ? "\r\n" : ends[random() % ends.size()]);
        }
        ASSERT_EQ(readText(content), repairedTheSlowWay(lines)) << "round " << round;
    }
}

TEST(ResultText, EndsEachLineAsTheOthers) {
    for (const Bytes content :
         {"\n", "\r", "\r\r\n", "\n\r\n", "a\r\r\n", "a\n\r", "\r\na\n", "\na\r\n", "a\r\nb\r"}) {
        std::vector<Bytes> lines;
        for (SequentialText text(content); !text.atEnd();)
            lines.emplace_back(text.readLine());
        EXPECT_EQ(readText(content), repairedTheSlowWay(lines)) << ::testing::PrintToString(content);
    }
}

TEST(ResultText, IsRepairedBeyondEveryPieceThatIsLookedAtAtOnce) {
    std::vector<Bytes> lines(600, "en rad med \x86 och \x84, tv\x86 \x86 blir kvar");
    Bytes content;
    for (const Bytes& line : lines)
        content += line + "\r\n";
    EXPECT_EQ(readText(content), repairedTheSlowWay(lines));
}

TEST(ResultText, AFileThatDidNotOpenIsError52) {
    File file;
    EXPECT_EQ(errorOf([&] { VARNO1::readResultText(file); }), errBadFileNameOrNumber);
}

} // namespace
} // namespace varno::testing
