#include "engine/letters.h"

#include <gtest/gtest.h>

namespace varnowb {
namespace {

TEST(EngineLetters, TheSixLettersBecomeDosBytes) {
    EXPECT_EQ(toDos("ÅÄÖåäö"), "\x8F\x8E\x99\x86\x84\x94");
    EXPECT_EQ(toDos("a é €b"), "a ? ?b");
    EXPECT_EQ(letterCount("Överhöjning"), 11U);
}

TEST(EngineLetters, OnlyTheFirstDosByteOfEachLetterIsALetter) {
    // "Bärlägg": the first letter as a DOS byte, the second one as Windows-1252.
    EXPECT_EQ(textOfLine("B\x84rl\xE4gg"), "Bärlägg");
    // A second DOS byte is the Windows-1252 character of that number.
    EXPECT_EQ(textOfLine("\x84\x84"), "ä„");
    EXPECT_EQ(textOfLine("\x8F\x8E\x99\x86\x84\x94"), "ÅÄÖåäö");
    EXPECT_EQ(textOfLine("\x80\x81\xFF"), "€\xC2\x81ÿ");
}

TEST(EngineLetters, ResultFileIsNamedByTheFirstLine) {
    EXPECT_EQ(resultFileName("HUS1"), "HUS1.res");
    EXPECT_EQ(resultFileName("Hus 1, plan 2"), "Hus 1, plan 2.res");
    EXPECT_EQ(resultFileName("H\x99G\xD6"), "HÖGÖ.res");
    EXPECT_EQ(resultFileName("A.B"), "A.B.res");
    EXPECT_EQ(resultFileName(" A "), " A .res");
    EXPECT_EQ(resultFileName("COM"), "COM.res");
    EXPECT_EQ(resultFileName("CONSOLE"), "CONSOLE.res");
}

TEST(EngineLetters, NoFileOutsideTheFolderAndNoDeviceIsNamed) {
    for (const char* name : {"", "   ", "a/b", "a\\b", "..\\x", "c:x", "a*", "a?", "a\"b", "<a", "a>", "a|b",
                             "a\tb", "nul", "CON", "Aux.x", "LPT1", "com9 ", "prn."})
        EXPECT_FALSE(resultFileName(name)) << name;
    EXPECT_FALSE(resultFileName(std::string_view{"a\0b", 3}));
}

} // namespace
} // namespace varnowb
