#include "model/case_check.h"

#include <gtest/gtest.h>

#include "model/reference_tables.h"
#include "support/case_files.h"

namespace varno {
namespace {

using testing::sampleCase;
using testing::sampleFile;
using testing::sampleFileWith;
using testing::writtenCase;
using Kind = FileFault::Kind;

SavedCheck saved(const CaseFile& caseFile) {
    return checkSaved(caseFile, writtenCase(caseFile));
}

SavedCheck savedWithTitle(const std::string& title) {
    CaseFile caseFile = sampleCase();
    caseFile.title = title;
    return saved(caseFile);
}

TEST(SavedCheck, WhatFitsComesBack) {
    const SavedCheck check = saved(sampleCase());
    EXPECT_TRUE(check.lost.empty());
    EXPECT_FALSE(check.shifted);
}

TEST(SavedCheck, EverySpanCountComesBack) {
    for (int spans = 1; spans <= maxSpans; ++spans) {
        CaseFile caseFile = sampleCase();
        presetDesignCase(caseFile.designCase);
        caseFile.designCase.nfack = static_cast<std::int16_t>(spans);
        caseFile.designCase.upl(spans) = 0;
        for (std::int16_t ruleSet = 0; ruleSet <= maxLoadCode; ++ruleSet) {
            caseFile.designCase.loadCode = ruleSet;
            EXPECT_TRUE(saved(caseFile).lost.empty()) << spans << " " << ruleSet;
        }
    }
}

TEST(SavedCheck, EveryNumberTypedInAPatternComesBack) {
    CaseFile caseFile = sampleCase();
    for (int thousandths = 0; thousandths < 100000; thousandths += 61) {
        caseFile.designCase.spv(1) = static_cast<float>(thousandths / 1000.0);
        caseFile.designCase.psi0(caseFile.designCase.loadCode, caseFile.designCase.lokt) =
            thousandths / 1000.0;
        caseFile.designCase.konsv = static_cast<float>(thousandths / 1000.0);
        EXPECT_TRUE(saved(caseFile).lost.empty()) << thousandths;
    }
}

struct TitleCase {
    const char* title;
    const char* read;
    bool shifted;
};

class SavedTitle : public ::testing::TestWithParam<TitleCase> {};

TEST_P(SavedTitle, IsComparedWithWhatTheReaderGives) {
    const SavedCheck check = savedWithTitle(GetParam().title);
    ASSERT_EQ(check.lost.size(), 1u);
    EXPECT_EQ(check.lost.front(), (LostValue{{2, 0}, GetParam().title, GetParam().read}));
    EXPECT_EQ(check.shifted, GetParam().shifted);
}

INSTANTIATE_TEST_SUITE_P(
    Titles, SavedTitle,
    ::testing::Values(TitleCase{"Hus, 4 plan", "Hus", true}, TitleCase{"Hus 4 plan,", "Hus 4 plan", true},
                      TitleCase{"Hus, nio", "Hus", true},
                      TitleCase{"Hus,9", "Hus", true}, // a rule set that raises error 9
                      TitleCase{"  Hus", "Hus", false}, TitleCase{"\"Hus\"", "Hus", false},
                      TitleCase{"\"Hus\" 4", "Hus", true}, TitleCase{"Łódź", "?ód?", false},
                      TitleCase{"Plan ”A”", "Plan öA”", false}, TitleCase{"Plan „A", "Plan äA", false}));

TEST(SavedCheck, QuotationWithoutItsEndTakesInTheFile) {
    const SavedCheck check = savedWithTitle("\"Hus");
    ASSERT_EQ(check.lost.size(), 1u);
    EXPECT_EQ(check.lost.front().place, (CasePlace{2, 0}));
    EXPECT_TRUE(check.shifted);
}

TEST(SavedCheck, TitlesThatComeBackAreNotTold) {
    for (const char* title :
         {"", "Hus 4  plan ", "Bärlägg å ö Å Ä Ö ÅÄÖ åäö", "5 \"tum\"", "Plan A – B’s", "ö ”"})
        EXPECT_TRUE(savedWithTitle(title).lost.empty()) << title;
}

TEST(SavedCheck, NameIsComparedToo) {
    CaseFile caseFile = sampleCase();
    caseFile.name = "HUS,1";
    const SavedCheck check = saved(caseFile);
    ASSERT_EQ(check.lost.size(), 2u);
    EXPECT_EQ(check.lost[0], (LostValue{{1, 0}, "HUS,1", "HUS"}));
    EXPECT_EQ(check.lost[1], (LostValue{{2, 0}, caseFile.title, "1"}));
    EXPECT_TRUE(check.shifted);
}

TEST(SavedCheck, CutNumberNamesItsCell) {
    CaseFile caseFile = sampleCase();
    caseFile.designCase.ptjl(2) = 12345678;
    caseFile.designCase.upl(1) = 123.456f;
    caseFile.designCase.lllast(5) = -12345.6f;
    caseFile.designCase.llfnr(2) = -123;
    const SavedCheck check = saved(caseFile);
    ASSERT_EQ(check.lost.size(), 4u);
    EXPECT_EQ(check.lost[0], (LostValue{{7, 2}, "12345678", "1234567"}));
    EXPECT_EQ(check.lost[1], (LostValue{{8, 2}, "123.456", "123.45"}));
    EXPECT_EQ(check.lost[2], (LostValue{{34, 1}, "-123", "-12"}));
    EXPECT_EQ(check.lost[3], (LostValue{{37, 3}, "-12345.6", "-12345"}));
}

TEST(SavedCheck, DecimalsBeyondTheCellAreTold) {
    CaseFile caseFile = sampleCase();
    caseFile.designCase.spv(1) = 5.1234f;
    caseFile.designCase.psi1(caseFile.designCase.loadCode, caseFile.designCase.lokt) = 0.33333;
    caseFile.designCase.konsv = 1.23456f; // a line of its own, in general form
    const SavedCheck check = saved(caseFile);
    ASSERT_EQ(check.lost.size(), 2u);
    EXPECT_EQ(check.lost[0], (LostValue{{6, 1}, "5.1234", "5.123"}));
    EXPECT_EQ(check.lost[1], (LostValue{{10, 5}, "0.33333", "0.333"}));
}

TEST(SavedCheck, EndSupportIsReadAsZero) {
    CaseFile caseFile = sampleCase();
    caseFile.designCase.upl(0) = 0.2f;
    const SavedCheck check = saved(caseFile);
    ASSERT_EQ(check.lost.size(), 1u);
    EXPECT_EQ(check.lost.front(), (LostValue{{8, 1}, "0.2", "0"}));
}

TEST(SavedCheck, CommaInTheTitleIsNotToldAgainForEveryLine) {
    CaseFile caseFile = sampleCase();
    caseFile.title = "Hus, 4 plan";
    caseFile.designCase.spv(2) = 12345678;
    const SavedCheck check = saved(caseFile);
    ASSERT_EQ(check.lost.size(), 2u);
    EXPECT_EQ(check.lost[1].place, (CasePlace{6, 2}));
}

// Any file

std::vector<FileFault> withLine(int number, const Bytes& line) {
    return checkFile(sampleFileWith(number, line));
}

void expectOne(const std::vector<FileFault>& faults, Kind kind, CasePlace place, const std::string& found) {
    ASSERT_EQ(faults.size(), 1u);
    EXPECT_EQ(faults.front().kind, kind);
    EXPECT_EQ(faults.front().place, place);
    EXPECT_EQ(faults.front().found, found);
}

TEST(FileCheck, WhatTheWriterWritesIsRight) {
    EXPECT_TRUE(checkFile(sampleFile()).empty());
    CaseFile empty = sampleCase();
    empty.designCase = DesignCase();
    empty.designCase.nfack = 1;
    EXPECT_TRUE(checkFile(writtenCase(empty)).empty()) << "rule set 0 has no factors";
    CaseFile cut = sampleCase();
    cut.designCase.ptjl(2) = 12345678;
    EXPECT_TRUE(checkFile(writtenCase(cut)).empty());
}

TEST(FileCheck, LineEndsOfOtherSystemsAreRight) {
    for (const std::string end : {"\n", "\r"})
        EXPECT_TRUE(checkFile(testing::textOf(testing::linesOf(sampleFile()), end)).empty());
    const Bytes whole = sampleFile();
    EXPECT_TRUE(checkFile(whole.substr(0, whole.size() - 2)).empty()) << "without the last one";
}

TEST(FileCheck, EmptyFile) {
    const auto faults = checkFile("");
    expectOne(faults, Kind::empty, {1, 0}, "");
    EXPECT_TRUE(isNoCase(faults));
}

TEST(FileCheck, LinesAreCounted) {
    auto lines = testing::linesOf(sampleFile());
    lines.pop_back();
    auto faults = checkFile(testing::textOf(lines));
    expectOne(faults, Kind::tooFewLines, {36, 0}, "");
    EXPECT_EQ(faults.front().number, 36);
    EXPECT_FALSE(isNoCase(faults));
    faults = checkFile(sampleFile() + "\r\n");
    expectOne(faults, Kind::tooManyLines, {38, 0}, "");
    EXPECT_EQ(faults.front().number, 38);
}

TEST(FileCheck, OneValueALine) {
    expectOne(withLine(2, "Hus, 4 plan"), Kind::severalValues, {2, 0}, "Hus, 4 plan");
    expectOne(withLine(2, "Hus,"), Kind::severalValues, {2, 0}, "Hus,");
    expectOne(withLine(16, "2,5"), Kind::severalValues, {16, 0}, "2,5");
    expectOne(withLine(14, "1,5"), Kind::severalValues, {14, 0}, "1,5");
    expectOne(withLine(2, "\"Hus\" 4"), Kind::severalValues, {2, 0}, "\"Hus\" 4");
    EXPECT_TRUE(withLine(2, "\"Hus, 4 plan\"").empty()) << "a quotation may hold a comma";
    EXPECT_TRUE(withLine(2, "").empty());
}

TEST(FileCheck, QuotationWithoutItsEnd) {
    expectOne(withLine(2, "  \"Hus"), Kind::openQuote, {2, 0}, "  \"Hus");
}

TEST(FileCheck, WholeNumbers) {
    expectOne(withLine(20, ""), Kind::notANumber, {20, 0}, "");
    expectOne(withLine(20, "tjugo"), Kind::notANumber, {20, 0}, "tjugo");
    expectOne(withLine(20, "20mm"), Kind::notANumber, {20, 0}, "20mm");
    expectOne(withLine(20, "20.5"), Kind::notWhole, {20, 0}, "20.5");
    expectOne(withLine(20, "40000"), Kind::outOfRange, {20, 0}, "40000");
    const std::string beyond = std::to_string(maxLoadCode + 1);
    expectOne(withLine(3, beyond), Kind::outOfRange, {3, 0}, beyond);
    expectOne(withLine(9, "-1"), Kind::outOfRange, {9, 0}, "-1");
    EXPECT_TRUE(withLine(20, " 20 ").empty());
    EXPECT_TRUE(withLine(20, "-20").empty());
    EXPECT_TRUE(withLine(20, "2E1").empty());
    const auto faults = withLine(5, "11");
    expectOne(faults, Kind::outOfRange, {5, 0}, "11");
    EXPECT_EQ(faults.front().first, 1);
    EXPECT_EQ(faults.front().last, 10);
}

TEST(FileCheck, Cells) {
    // The sample has three spans.
    EXPECT_TRUE(withLine(6, "6.000  12.500 0.250").empty()) << "blanks at the end may be missing";
    expectOne(withLine(6, "6.000  12.500 "), Kind::cellMissing, {6, 3}, "6.000  12.500 ");
    expectOne(withLine(6, "6.000         0.250"), Kind::notANumber, {6, 2}, "");
    expectOne(withLine(6, "6.000  tolv   0.250"), Kind::notANumber, {6, 2}, "tolv");
    expectOne(withLine(6, " 6.000 12.500 0.250"), Kind::blanksAhead, {6, 0}, " 6.000 12.500 0.250");
    EXPECT_TRUE(withLine(6, "6.000  12.500 0.250  4.000  ").empty()) << "cells of spans that were removed";
    expectOne(withLine(35, "2"), Kind::cellMissing, {35, 2}, "2");
    expectOne(withLine(35, "2.51.000  2.000  "), Kind::notWhole, {35, 1}, "2.5");
}

TEST(FileCheck, SomethingElseIsNoCase) {
    EXPECT_TRUE(isNoCase(checkFile("[inställningar]\r\nfärg=1\r\nspråk=sv\r\n")));
    EXPECT_TRUE(isNoCase(checkFile(Bytes(100000, '\0'))));
    Bytes text;
    for (int i = 0; i < 1000; ++i)
        text += "En rad av ett brev\n";
    EXPECT_TRUE(isNoCase(checkFile(text)));
    EXPECT_FALSE(isNoCase(checkFile(sampleFileWith(6, "x"))));
}

TEST(FileCheck, TakesAnyBytes) {
    const Bytes whole = sampleFile();
    for (std::size_t i = 0; i < whole.size(); ++i) {
        for (const char c : {'\0', ',', '"', '\r', ' ', '\xFF', '9'}) {
            Bytes damaged = whole;
            damaged[i] = c;
            for (const FileFault& fault : checkFile(damaged))
                EXPECT_GE(fault.place.line, 1);
        }
    }
}

} // namespace
} // namespace varno
