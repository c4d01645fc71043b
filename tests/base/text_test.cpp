#include "base/text.h"

#include <gtest/gtest.h>

namespace varno {

namespace {

TEST(Windows1252, EveryByteSurvivesARoundTrip) {
    for (int byte = 0; byte < 256; ++byte) {
        const Bytes one(1, static_cast<char>(byte));
        const std::string utf8 = decodeWindows1252(one);
        EXPECT_FALSE(utf8.empty()) << byte;
        EXPECT_EQ(encodeWindows1252(utf8), one) << byte;
    }
}

TEST(Windows1252, DecodesItsCharacters) {
    EXPECT_EQ(decodeWindows1252("plain"), "plain");
    EXPECT_EQ(decodeWindows1252("\xC5\xC4\xD6\xE5\xE4\xF6\xF8"), "ÅÄÖåäöø");
    EXPECT_EQ(decodeWindows1252("\x80\x84\x8E\x94\x99\x9F\xA0\xFF"), "€„Ž”™Ÿ\u00A0ÿ");
    EXPECT_EQ(decodeWindows1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Windows1252, EncodesWhatItLacksAsAQuestionMark) {
    EXPECT_EQ(encodeWindows1252("kN/m² – ½"), "kN/m\xB2 \x96 \xBD");
    EXPECT_EQ(encodeWindows1252("Łódź"), "?\xF3"
                                         "d?");
    EXPECT_EQ(encodeWindows1252("漢字"), "??");
    EXPECT_EQ(encodeWindows1252("😀!"), "?!");
    EXPECT_EQ(encodeWindows1252("\u0080"), "?"); // byte 128 is the euro sign
}

TEST(Windows1252, EncodesDamagedUtf8AsQuestionMarks) {
    EXPECT_EQ(encodeWindows1252("a\xC3"), "a?"); // cut off
    EXPECT_EQ(encodeWindows1252("\xC3"
                                "a"),
              "?a"); // no continuation
    EXPECT_EQ(encodeWindows1252("\xA4"
                                "a"),
              "?a");                                          // continuation alone
    EXPECT_EQ(encodeWindows1252("\xC0\xAF"), "??");           // longer than needed
    EXPECT_EQ(encodeWindows1252("\xE0\x80\xAF"), "???");      // longer than needed
    EXPECT_EQ(encodeWindows1252("\xED\xA0\x80"), "???");      // a surrogate
    EXPECT_EQ(encodeWindows1252("\xF4\x90\x80\x80"), "????"); // beyond U+10FFFF
    EXPECT_EQ(encodeWindows1252("\xFF"), "?");
}

TEST(Utf16, GoesThereAndBack) {
    const std::string text = "Spännvidd, Łódź, 漢字, 😀";
    EXPECT_EQ(utf8FromUtf16(utf16FromUtf8(text)), text);
    EXPECT_EQ(utf16FromUtf8("ä😀"), u"ä\xD83D\xDE00");
    EXPECT_EQ(utf16FromUtf8("\U0010FFFF"), u"\xDBFF\xDFFF");
}

TEST(Utf16, MarksDamagedSequences) {
    EXPECT_EQ(utf16FromUtf8("a\xC3"), u"a\xFFFD");
    EXPECT_EQ(utf8FromUtf16(u"\xD83D"), "\uFFFD");
    EXPECT_EQ(utf8FromUtf16(u"\xD83D!"), "\uFFFD!");
    EXPECT_EQ(utf8FromUtf16(u"\xDE00\xD83D"), "\uFFFD\uFFFD");
}

TEST(UpperCase, KnowsTheLettersOfWindows1252) {
    EXPECT_EQ(upperCase("hus1.ind"), "HUS1.IND");
    EXPECT_EQ(upperCase("åäöéüøþÿšœž"), "ÅÄÖÉÜØÞŸŠŒŽ");
    EXPECT_EQ(upperCase("ÅÄÖ 12 ß µ ƒ ÷ ×"), "ÅÄÖ 12 ß µ ƒ ÷ ×");
}

TEST(EqualIgnoringCase, ComparesLettersOfEitherCase) {
    EXPECT_TRUE(equalIgnoringCase("Å.Ind", "å.IND"));
    EXPECT_FALSE(equalIgnoringCase("a.IND", "å.IND"));
    EXPECT_FALSE(equalIgnoringCase("A", "A "));
}

TEST(TrimBlanks, TakesBlanksOffBothEnds) {
    EXPECT_EQ(trimBlanks("  kalk  x "), "kalk  x");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(""), "");
    EXPECT_EQ(trimBlanks("\tkalk"), "\tkalk");
}

Bytes windows(const char* utf8) {
    return encodeWindows1252(utf8);
}

TEST(OemLetters, ConvertOnlyTheFirstOfEachLetter) {
    EXPECT_EQ(VARNO1::toOemLetters(windows("ÅÄÖåäö")), "\x8F\x8E\x99\x86\x84\x94");
    EXPECT_EQ(VARNO1::toOemLetters(windows("Bärlägg")), "B\x84rl\xE4gg");
    EXPECT_EQ(VARNO1::toOemLetters(windows("ÅÅÅ ÄÄ ÖÖ åå ää öö")),
              "\x8F\xC5\xC5 \x8E\xC4 \x99\xD6 \x86\xE5 \x84\xE4 \x94\xF6");
    EXPECT_EQ(VARNO1::toOemLetters("no letters at all"), "no letters at all");
    EXPECT_EQ(VARNO1::toOemLetters(""), "");
    EXPECT_EQ(VARNO1::toOemLetters(windows("éüø")), windows("éüø"));
}

TEST(OemLetters, ConvertBackOnlyTheFirstOfEachCode) {
    EXPECT_EQ(VARNO1::fromOemLetters("\x8F\x8E\x99\x86\x84\x94"), windows("ÅÄÖåäö"));
    EXPECT_EQ(VARNO1::fromOemLetters("\x84\x84\x94\x94"), "\xE4\x84\xF6\x94");
    EXPECT_EQ(VARNO1::fromOemLetters("B\x84rl\xE4gg"), windows("Bärlägg"));
}

TEST(OemLetters, AreRestoredByReading) {
    for (const char* text : {"Bärlägg", "Ångström åt Öster ÅÄÖ åäö ÅÄÖ åäö", "Övning", "Kontor 1"}) {
        EXPECT_EQ(VARNO1::fromOemLetters(VARNO1::toOemLetters(windows(text))), windows(text)) << text;
    }
}

// A quotation mark „ (byte 132) before the first "ä" is taken for it when the text is read again: the two
// share a code, and nothing in the file tells them apart.
TEST(OemLetters, AreMixedUpWithCharactersOfTheSameCode) {
    EXPECT_EQ(VARNO1::fromOemLetters(VARNO1::toOemLetters(windows("„ä"))), windows("ä„"));
}

} // namespace

} // namespace varno
