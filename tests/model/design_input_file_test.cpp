#include "model/design_input_file.h"

#include <gtest/gtest.h>

#include "model/reference_tables.h"
#include "support/case_files.h"
#include "support/comma_locale.h"
#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;
using testing::linesOf;
using testing::readCase;
using testing::sampleCase;
using testing::sampleFile;
using testing::writtenCase;

Bytes line(const Bytes& text, int number) {
    const auto lines = linesOf(text);
    EXPECT_EQ(lines.size(), 37u);
    return lines.at(static_cast<std::size_t>(number - 1));
}

CaseFile caseOfSpans(int spans) {
    CaseFile result = sampleCase();
    presetDesignCase(result.designCase);
    result.designCase.nfack = static_cast<std::int16_t>(spans);
    result.designCase.upl(spans) = 0;
    return result;
}

TEST(DesignInputFile, IsWrittenByteForByte) {
    EXPECT_EQ(writtenCase(sampleCase()), sampleFile());
}

TEST(DesignInputFile, IsReadFieldByField) {
    EXPECT_EQ(readCase(sampleFile()), sampleCase());
}

TEST(DesignInputFile, IsTheSameUnderACommaLocale) {
    const testing::CommaLocale locale;
    RecordProperty("cLocale", locale.cLocale.empty() ? "none installed" : locale.cLocale);
    EXPECT_EQ(writtenCase(sampleCase()), sampleFile());
    EXPECT_EQ(readCase(sampleFile()), sampleCase());
}

TEST(DesignInputFile, IsReadWhateverEndsItsLines) {
    const auto lines = linesOf(sampleFile());
    EXPECT_EQ(readCase(testing::textOf(lines, "\n")), sampleCase());
    EXPECT_EQ(readCase(testing::textOf(lines, "\r")), sampleCase());
    const Bytes text = sampleFile();
    EXPECT_EQ(readCase(text.substr(0, text.size() - 2)), sampleCase()); // no end on the last line
    EXPECT_EQ(readCase(text + "a line too many\r\n"), sampleCase());
}

TEST(DesignInputFile, HasLinesOfTheLengthOfItsSpans) {
    for (const int spans : {1, 2, 10}) {
        const Bytes text = writtenCase(caseOfSpans(spans));
        const auto n = static_cast<std::size_t>(spans);
        for (const int number : {6, 7, 12, 13})
            EXPECT_EQ(line(text, number).size(), 7 * n) << spans << " spans, line " << number;
        EXPECT_EQ(line(text, 8).size(), 6 * (n + 1)) << spans;
        EXPECT_EQ(line(text, 10).size(), 42u);
        for (int number = 33; number <= 37; ++number)
            EXPECT_EQ(line(text, number).size(), 17u);
        EXPECT_EQ(readCase(text), caseOfSpans(spans));
    }
    EXPECT_EQ(line(writtenCase(caseOfSpans(1)), 6), "5.500  ");
    EXPECT_EQ(line(writtenCase(caseOfSpans(1)), 8), "0.000 0.000 ");
    EXPECT_EQ(line(writtenCase(caseOfSpans(10)), 6).size(), 70u);
    EXPECT_EQ(line(writtenCase(caseOfSpans(10)), 8).size(), 66u);
}

// What one value becomes in a cell and when it is read again.
struct InCell {
    float value;
    const char* cell;
    float readBack;
};

TEST(DesignInputFile, WritesSpanCells) {
    const InCell rows[] = {
        {0.25f, "0.250  ", 0.25f},
        {6, "6.000  ", 6},
        {-1.5f, "-1.500 ", -1.5f},
        {0, "0.000  ", 0},
        {0.1755f, "0.176  ", 0.176f},
        {-0.0004f, "0.000  ", 0},
        {999.999f, "999.999", 999.999f},
        // Wider than the cell: cut on the right
        {1234.567f, "1234.56", 1234.56f},
        {-123.456f, "-123.45", -123.45f},
        {1234567, "1234567", 1234567},
        {12345678, "1234567", 1234567},
        {1e30f, "1000000", 1000000},
    };
    for (const InCell& row : rows) {
        CaseFile written = caseOfSpans(2);
        written.designCase.spv(1) = row.value;
        const Bytes text = writtenCase(written);
        EXPECT_EQ(line(text, 6), row.cell + std::string("5.500  ")) << row.value;
        EXPECT_EQ(readCase(text).designCase.spv(1), row.readBack) << row.value;
        EXPECT_EQ(readCase(text).designCase.spv(2), 5.5f) << row.value;
    }
}

TEST(DesignInputFile, WritesSupportCells) {
    const InCell rows[] = {
        {0.25f, "0.250 ", 0.25f}, {12, "12.000", 12},         {123.456f, "123.45", 123.45f},
        {-1.5f, "-1.500", -1.5f}, {-12.5f, "-12.50", -12.5f},
    };
    for (const InCell& row : rows) {
        CaseFile written = caseOfSpans(2);
        written.designCase.upl(1) = row.value;
        const Bytes text = writtenCase(written);
        EXPECT_EQ(line(text, 8), "0.000 " + std::string(row.cell) + "0.000 ") << row.value;
        EXPECT_EQ(readCase(text).designCase.upl(1), row.readBack) << row.value;
    }
}

TEST(DesignInputFile, WritesLineLoadRowsWhateverIsInUse) {
    CaseFile written = sampleCase();
    written.designCase.nllast = 2;
    written.designCase.llfnr(4) = 1234;
    written.designCase.avst(4) = 1234.567f;
    written.designCase.lllast(4) = -0.5f;
    written.designCase.llfnr(5) = -12;
    const Bytes text = writtenCase(written);
    EXPECT_EQ(line(text, 32), "2");
    EXPECT_EQ(line(text, 35), "2  1.000  -5.000 ");
    EXPECT_EQ(line(text, 36), "1231234.56-0.500 ");
    EXPECT_EQ(line(text, 37), "-120.000  0.000  ");
    const DesignCase read = readCase(text).designCase;
    EXPECT_EQ(read.llfnr(4), 123);
    EXPECT_EQ(read.avst(4), 1234.56f);
    EXPECT_EQ(read.lllast(4), -0.5f);
    EXPECT_EQ(read.llfnr(5), -12);
}

TEST(DesignInputFile, WritesTheFactorsOfTheCurrentRuleSetAndCategory) {
    CaseFile written = sampleCase();
    written.designCase.loadCode = 5;
    written.designCase.safetyClass(5) = 3;
    written.designCase.lokt = 9;
    const Bytes text = writtenCase(written);
    EXPECT_EQ(line(text, 3), "5");
    EXPECT_EQ(line(text, 4), "3");
    EXPECT_EQ(line(text, 9), "9");
    EXPECT_EQ(line(text, 10), "1.200  1.000  1.500  0.600  0.600  0.500  ");

    written.designCase.loadCode = 0;
    EXPECT_EQ(line(writtenCase(written), 10), std::string(42, ' '));
}

TEST(DesignInputFile, OverwritesOnlyTheFactorsOfItsOwn) {
    const Bytes text = testing::sampleFileWith(10, "1.111  0.222  1.333  0.444  0.555  0.666  ");
    const DesignCase read = readCase(text).designCase;
    DesignCase expected = sampleCase().designCase;
    expected.lambdaG(3) = 1.111;
    expected.ksi(3) = 0.222;
    expected.lambdaQ(3) = 1.333;
    expected.psi0(3, 2) = 0.444;
    expected.psi1(3, 2) = 0.555;
    expected.psi2(3, 2) = 0.666;
    EXPECT_EQ(read, expected);
}

TEST(DesignInputFile, WritesCantileversInGeneralForm) {
    const struct {
        float value;
        const char* text;
    } rows[] = {{0, "0"},         {1.2f, "1.2"},       {-0.75f, "-0.75"},          {1.23456f, "1.23456"},
                {1e-5f, "1E-05"}, {2.5e8f, "2.5E+08"}, {16777216, "1.6777216E+07"}};
    for (const auto& row : rows) {
        CaseFile written = sampleCase();
        written.designCase.konsv = row.value;
        written.designCase.konsh = -row.value;
        const Bytes text = writtenCase(written);
        EXPECT_EQ(line(text, 14), row.text);
        const DesignCase read = readCase(text).designCase;
        EXPECT_EQ(read.konsv, row.value);
        EXPECT_EQ(read.konsh, -row.value);
    }
}

TEST(DesignInputFile, KeepsIntegersOfAnySize) {
    for (const std::int16_t value : {std::int16_t{0}, std::int16_t{32767}, std::int16_t{-32768}}) {
        CaseFile written = sampleCase();
        written.designCase.reservedValue = value;
        written.designCase.overhojning = value;
        const Bytes text = writtenCase(written);
        EXPECT_EQ(line(text, 27), std::to_string(value));
        EXPECT_EQ(readCase(text), written);
    }
}

TEST(DesignInputFile, ConvertsTheFirstOfEachLetterInTitleAndName) {
    CaseFile written = sampleCase();
    written.title = "Bärlägg";
    written.name = "ÅÅÄÄÖÖ";
    const Bytes text = writtenCase(written);
    EXPECT_EQ(line(text, 1), "\x8F\xC5\x8E\xC4\x99\xD6");
    EXPECT_EQ(line(text, 2), "B\x84rl\xE4gg");
    EXPECT_EQ(readCase(text), written);
}

TEST(DesignInputFile, WritesWhatTheCodePageLacksAsAQuestionMark) {
    CaseFile written = sampleCase();
    written.title = "Łódź – 5 €";
    EXPECT_EQ(line(writtenCase(written), 2), "?\xF3"
                                             "d? \x96 5 \x80");
}

TEST(DesignInputFile, ReadsTheNameInUpperCase) {
    EXPECT_EQ(readCase(testing::sampleFileWith(1, "h\x86rd\xF6 hus")).name, "HÅRDÖ HUS");
    EXPECT_EQ(readCase(testing::sampleFileWith(2, "h\x86rd\xF6 hus")).title, "hårdö hus");
}

TEST(DesignInputFile, KeepsElementsBeyondTheSpansInMemory) {
    DesignCase designCase = sampleCase().designCase;
    designCase.spv(4) = 7.25f;
    designCase.upl(4) = 0.35f;
    testing::MemoryFiles files;
    files.content["A.IND"] = sampleFile();
    File file(files, "A.IND", FileMode::input, 0, 1);
    const CaseFile read = VARNO1::readDesignCase(file, designCase);
    EXPECT_EQ(read.designCase.spv(4), 7.25f);
    EXPECT_EQ(read.designCase.upl(4), 0.35f);
    EXPECT_EQ(writtenCase(read), sampleFile());
}

} // namespace

} // namespace varno
