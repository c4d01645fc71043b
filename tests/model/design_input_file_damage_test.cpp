#include <gtest/gtest.h>

#include "model/design_input_file.h"
#include "support/case_files.h"
#include "support/memory_files.h"

// Files that no writer of the program made: hand-edited, cut off, damaged, or with a title that the format
// cannot carry.
namespace varno {

namespace {

using testing::errorOf;
using testing::linesOf;
using testing::readCase;
using testing::sampleCase;
using testing::sampleFile;
using testing::sampleFileWith;
using testing::textOf;
using testing::writtenCase;

int errorOfReading(const Bytes& text) {
    return errorOf([&] { readCase(text); });
}

TEST(DamagedInputFile, EndWidthsReadAsZero) {
    const DesignCase read = readCase(sampleFileWith(8, "0.200 0.150 0.250 0.200 ")).designCase;
    EXPECT_EQ(read.upl(0), 0.0f);
    EXPECT_EQ(read.upl(1), 0.15f);
    EXPECT_EQ(read.upl(2), 0.25f);
    EXPECT_EQ(read.upl(3), 0.0f);
}

TEST(DamagedInputFile, TooFewLinesRaiseError62) {
    std::vector<Bytes> lines = linesOf(sampleFile());
    while (!lines.empty()) {
        lines.pop_back();
        EXPECT_EQ(errorOfReading(textOf(lines)), errInputPastEnd) << lines.size() << " lines";
    }
    EXPECT_EQ(errorOfReading(""), errInputPastEnd);
}

TEST(DamagedInputFile, AFileThatIsNotThereRaisesError52) {
    File none;
    EXPECT_EQ(errorOf([&] { VARNO1::readDesignCase(none, {}); }), errBadFileNameOrNumber);
    EXPECT_EQ(errorOf([&] { VARNO1::writeDesignCase(none, {}); }), errBadFileNameOrNumber);
}

TEST(DamagedInputFile, IndexesOutsideTheArraysRaiseError9) {
    EXPECT_EQ(errorOfReading(sampleFileWith(3, std::to_string(maxLoadCode + 1))), errSubscriptOutOfRange);
    EXPECT_EQ(errorOfReading(sampleFileWith(3, "-1")), errSubscriptOutOfRange);
    EXPECT_EQ(errorOfReading(sampleFileWith(5, "16")), errSubscriptOutOfRange);
    EXPECT_EQ(errorOfReading(sampleFileWith(5, "-1")), errSubscriptOutOfRange);
    EXPECT_EQ(errorOfReading(sampleFileWith(9, "10")), errSubscriptOutOfRange);
    EXPECT_EQ(errorOfReading(sampleFileWith(9, "-1")), errSubscriptOutOfRange);
}

TEST(DamagedInputFile, IndexesOutsideTheArraysAreNotWritten) {
    const auto errorOfWriting = [](auto change) {
        CaseFile written = sampleCase();
        change(written.designCase);
        return errorOf([&] { writtenCase(written); });
    };
    EXPECT_EQ(errorOfWriting([](DesignCase& c) { c.loadCode = maxLoadCode + 1; }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOfWriting([](DesignCase& c) { c.lokt = 10; }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOfWriting([](DesignCase& c) { c.nfack = 16; }), errSubscriptOutOfRange);
}

TEST(DamagedInputFile, FifteenSpansFitTheArrays) {
    CaseFile written = sampleCase();
    written.designCase.nfack = 15;
    for (int span = 1; span <= 15; ++span)
        written.designCase.spv(span) = static_cast<float>(span) + 0.5f;
    written.designCase.upl(15) = 0;
    const Bytes text = writtenCase(written);
    EXPECT_EQ(linesOf(text)[5].size(), 105u);
    EXPECT_EQ(readCase(text), written);
}

TEST(DamagedInputFile, NumbersOutOfRangeRaiseError6) {
    for (const int line : {3, 4, 5, 9, 11, 16, 20, 27, 32}) {
        EXPECT_EQ(errorOfReading(sampleFileWith(line, "32768")), errOverflow) << line;
        EXPECT_EQ(errorOfReading(sampleFileWith(line, "-1e300")), errOverflow) << line;
    }
    EXPECT_EQ(errorOfReading(sampleFileWith(14, "3.5E+38")), errOverflow);
    EXPECT_EQ(errorOfReading(sampleFileWith(14, "1E+400")), errOverflow);
    EXPECT_EQ(errorOfReading(sampleFileWith(6, "1E+39  6.000  6.000  ")), errOverflow);
    EXPECT_EQ(errorOfReading(sampleFileWith(10, "1E+400 0.890  1.500  0.700  0.500  0.300  ")), errOverflow);
    EXPECT_EQ(errorOfReading(sampleFileWith(33, "1E91.000  1.000  ")), errOverflow);
    EXPECT_EQ(errorOfReading(sampleFileWith(33, "1  1E+39  1.000  ")), errOverflow);
    EXPECT_EQ(errorOfReading(sampleFileWith(14, "3.4E+38")), 0);
    EXPECT_EQ(errorOfReading(sampleFileWith(10, "1E+300 0.890  1.500  0.700  0.500  0.300  ")), 0);
}

TEST(DamagedInputFile, WhatIsNoNumberReadsAsZero) {
    EXPECT_EQ(readCase(sampleFileWith(16, "abc")).designCase.btg, 0);
    EXPECT_EQ(readCase(sampleFileWith(16, "")).designCase.btg, 0);
    EXPECT_EQ(readCase(sampleFileWith(14, "-")).designCase.konsv, 0.0f);
    const DesignCase read = readCase(sampleFileWith(6, "abc    7.000  *******")).designCase;
    EXPECT_EQ(read.spv(1), 0.0f);
    EXPECT_EQ(read.spv(2), 7.0f);
    EXPECT_EQ(read.spv(3), 0.0f);
}

TEST(DamagedInputFile, WholeNumbersAreRoundedToEven) {
    EXPECT_EQ(readCase(sampleFileWith(20, "22.5")).designCase.ktack, 22);
    EXPECT_EQ(readCase(sampleFileWith(20, "23.5")).designCase.ktack, 24);
    EXPECT_EQ(readCase(sampleFileWith(20, "  7.6 mm")).designCase.ktack, 8);
}

TEST(DamagedInputFile, ShortColumnLinesLeaveZeros) {
    const DesignCase read = readCase(sampleFileWith(6, "6.000  12.5")).designCase;
    EXPECT_EQ(read.spv(1), 6.0f);
    EXPECT_EQ(read.spv(2), 12.5f);
    EXPECT_EQ(read.spv(3), 0.0f);
    EXPECT_EQ(readCase(sampleFileWith(33, "2")).designCase.llfnr(1), 2);
    EXPECT_EQ(readCase(sampleFileWith(33, "2")).designCase.avst(1), 0.0f);
}

// Leading blanks are skipped before the cells are counted, so a line that was indented by hand moves its
// numbers into the cells to the left.
TEST(DamagedInputFile, LeadingBlanksShiftAColumnLine) {
    const DesignCase read = readCase(sampleFileWith(6, "  6.000  12.500 0.250  ")).designCase;
    EXPECT_EQ(read, sampleCase().designCase);
}

TEST(DamagedInputFile, ACommaInACellEndsTheLine) {
    // "6,000  12.500 0.250" is two fields, "6" and "000  12.500 0.250": everything behind moves by a line.
    const CaseFile read = readCase(sampleFileWith(6, "6,000  12.500 0.250  "));
    EXPECT_EQ(read.designCase.spv(1), 6.0f);
    EXPECT_EQ(read.designCase.spv(2), 0.0f);
    EXPECT_EQ(read.designCase.ptjl(1), 12.0f);  // "000  12"
    EXPECT_EQ(read.designCase.ptjl(2), 0.5f);   // ".500 0."
    EXPECT_EQ(read.designCase.ptjl(3), 250.0f); // "250  "
    EXPECT_EQ(read.designCase.upl(1), 0.2f);    // the thicknesses, in the cells of the supports
}

TEST(DamagedInputFile, ACommaInTheTitleShiftsEveryLaterValue) {
    CaseFile written = sampleCase();
    written.title = "Kontor, plan 2";
    const Bytes text = writtenCase(written);
    EXPECT_EQ(linesOf(text)[1], "Kontor, plan 2");
    const CaseFile read = readCase(text);
    EXPECT_EQ(read.title, "Kontor");
    EXPECT_EQ(read.designCase.loadCode, 0);       // "plan 2"
    EXPECT_EQ(read.designCase.safetyClass(0), 3); // the rule set
    EXPECT_EQ(read.designCase.nfack, 2);          // the class
    EXPECT_EQ(read.designCase.spv(1), 3.0f);      // the span count
    EXPECT_EQ(read.designCase.ptjl(2), 12.5f);    // the span lengths
    EXPECT_NE(read, written);
}

TEST(DamagedInputFile, AQuotedTitleMayHoldAComma) {
    const CaseFile read = readCase(sampleFileWith(2, "\" Kontor, plan 2\""));
    EXPECT_EQ(read.title, " Kontor, plan 2");
    EXPECT_EQ(read.designCase, sampleCase().designCase);
    EXPECT_EQ(readCase(sampleFileWith(20, "\"22\"")), sampleCase());
}

TEST(DamagedInputFile, AnEmptyTitleStaysEmpty) {
    CaseFile written = sampleCase();
    written.title = "";
    written.name = "";
    EXPECT_EQ(readCase(writtenCase(written)), written);
}

} // namespace

} // namespace varno
