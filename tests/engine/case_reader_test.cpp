#include "engine/case_reader.h"

#include "tests/engine/support.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>

namespace varno::engine {
namespace {

using test::CaseFile;

test::CaseValues threeSpans() {
    test::CaseValues v;
    v.spv = {5.5, 12.25, 6};
    v.ptjl = {0.17, 0.2, 0.15};
    v.upl = {0, 0.25, 0.1, 0};
    v.plast = {3.5, 4, 4.5};
    v.flast = {2, 2.5, 3};
    v.konsv = 1.2;
    v.konsh = 0.8;
    v.lambdaG = 1.35;
    v.lambdaQ = 1.5;
    v.nllast = 2;
    v.loads = {{1, 2.5, 12.5}, {3, 1, -1234.5}, {9, 1, 7}};
    return v;
}

using Singles = std::vector<float>;

Singles spans(const SpanArray& values) {
    return {values(1), values(2), values(3)};
}
Singles supports(const SpanArray& values) {
    return {values(0), values(1), values(2), values(3)};
}

// The complaint about a file, or "" when there is none.
std::string complaint(const std::string& bytes) {
    try {
        checkCase(readCase(bytes).values);
    } catch (const CaseError& error) {
        return error.what();
    }
    return {};
}

TEST(EngineCaseReader, TakesEveryValueFromItsColumns) {
    const auto [name, title, c] = readCase(test::caseFile(threeSpans()).text());
    EXPECT_EQ(name, "HUS1");
    EXPECT_EQ(title, "Bjalklag over plan 2");
    EXPECT_EQ(c.loadCode, 1);
    EXPECT_EQ(c.safetyClass(1), 2);
    EXPECT_EQ(c.nfack, 3);
    EXPECT_EQ(spans(c.spv), (Singles{5.5f, 12.25f, 6}));
    EXPECT_EQ(spans(c.ptjl), (Singles{0.17f, 0.2f, 0.15f}));
    EXPECT_EQ(supports(c.upl), (Singles{0, 0.25f, 0.1f, 0}));
    EXPECT_EQ(c.lokt, 1);
    EXPECT_EQ(c.lambdaG(1), 1.35);
    EXPECT_EQ(c.ksi(1), 0.89);
    EXPECT_EQ(c.lambdaQ(1), 1.5);
    EXPECT_EQ(c.psi0(1, 1), 0.7);
    EXPECT_EQ(c.psi1(1, 1), 0.5);
    EXPECT_EQ(c.psi2(1, 1), 0.3);
    EXPECT_EQ(c.lastkomb, 3);
    EXPECT_EQ(spans(c.plast), (Singles{3.5f, 4, 4.5f}));
    EXPECT_EQ(spans(c.flast), (Singles{2, 2.5f, 3}));
    EXPECT_EQ(c.konsv, 1.2f);
    EXPECT_EQ(c.konsh, 0.8f);
    const int whole[] = {c.btg,         c.aok,      c.dok,          c.kavko,    c.ktack, c.auk,
                         c.duk,         c.duarm,    c.brandk,       c.brandb,   c.kutak, c.reservedValue,
                         c.overhojning, c.initiell, c.tillkommande, c.brukskomb};
    const int expected[] = {3, 2, 2, 1, 20, 2, 3, 42, 1, 2, 1, 77, 20, 400, 300, 1};
    for (std::size_t i = 0; i < std::size(whole); ++i)
        EXPECT_EQ(whole[i], expected[i]) << "line " << 16 + i;
    EXPECT_EQ(c.nllast, 2);
    EXPECT_EQ(c.llfnr(1), 1);
    EXPECT_EQ(c.avst(1), 2.5f);
    EXPECT_EQ(c.lllast(1), 12.5f);
    EXPECT_EQ(c.lllast(2), -1234.5f);
    EXPECT_EQ(c.llfnr(3), 9);
}

TEST(EngineCaseReader, FullCellsHaveNoBlankBetweenThem) {
    auto file = test::caseFile(threeSpans());
    file.line(6) = "12345.6123.4561234567";
    file.line(8) = "0.000 12.3451.250 0.000 ";
    file.line(33) = "1231234.56-99.999";
    file.line(32) = "0";
    file.line(10) = "1.234562.345673.456784.567895.678906.78901";
    const DesignCase c = readCase(file.text()).values;
    EXPECT_EQ(spans(c.spv), (Singles{12345.6f, 123.456f, 1234567}));
    EXPECT_EQ(supports(c.upl), (Singles{0, 12.345f, 1.25f, 0}));
    EXPECT_EQ(c.lambdaG(1), 1.23456);
    EXPECT_EQ(c.ksi(1), 2.34567);
    EXPECT_EQ(c.lambdaQ(1), 3.45678);
    EXPECT_EQ(c.psi0(1, 1), 4.56789);
    EXPECT_EQ(c.psi1(1, 1), 5.6789);
    EXPECT_EQ(c.psi2(1, 1), 6.78901);
    EXPECT_EQ(c.llfnr(1), 123);
    EXPECT_EQ(c.avst(1), 1234.56f);
    EXPECT_EQ(c.lllast(1), -99.999f);
}

TEST(EngineCaseReader, LinesMayEndInAnyWay) {
    const auto file = test::caseFile(threeSpans());
    for (const char* end : {"\r\n", "\n", "\r"}) {
        const DesignCase c = readCase(file.text(end)).values;
        EXPECT_EQ(c.nfack, 3);
        EXPECT_EQ(c.llfnr(2), 3);
    }
    auto unended = file.text();
    unended.resize(unended.size() - 2);
    EXPECT_EQ(complaint(unended), "");
    EXPECT_EQ(complaint(file.text() + "more\r\n\x1A"), "");
}

TEST(EngineCaseReader, TrailingBlanksMayBeCutAndCommasTaken) {
    auto file = test::caseFile(threeSpans());
    for (auto& line : file.lines)
        line.resize(line.find_last_not_of(' ') + 1);
    EXPECT_EQ(readCase(file.text()).values.spv(3), 6);
    file.line(6) = "  5,500   6.0  6.00";
    EXPECT_EQ(spans(readCase(file.text()).values.spv), (Singles{5.5f, 6, 6}));
}

TEST(EngineCaseReader, ANumberMayBeWrittenInAnyForm) {
    const std::pair<const char*, float> good[] = {{".25", 0.25f}, {"12.", 12},          {"+3", 3},
                                                  {"1d2", 100},   {"1.5E-05", 1.5e-5f}, {" -0.000", 0},
                                                  {"1E+2", 100},  {"1234567", 1234567}};
    for (const auto& [text, value] : good) {
        auto file = test::caseFile(threeSpans());
        file.line(14) = text;
        EXPECT_EQ(readCase(file.text()).values.konsv, value) << text;
    }
    for (const char* text : {"-32768", " 32767 ", "3.000"}) {
        auto file = test::caseFile(threeSpans());
        file.line(16) = text;
        EXPECT_EQ(readCase(file.text()).values.btg, std::stoi(text)) << text;
    }
}

TEST(EngineCaseReader, EndSupportsHaveNoWidth) {
    auto file = test::caseFile(threeSpans());
    file.line(8) = "0.200 0.250 0.100 0.300 ";
    EXPECT_EQ(supports(readCase(file.text()).values.upl), (Singles{0, 0.25f, 0.1f, 0}));
}

TEST(EngineCaseReader, OnlyUsedLineLoadsNeedBeReadable) {
    auto file = test::caseFile(threeSpans());
    file.line(35) = "";
    file.line(36) = "what?";
    const DesignCase c = readCase(file.text()).values;
    EXPECT_EQ(c.lllast(2), -1234.5f);
    EXPECT_EQ(c.lllast(3), 0);
    EXPECT_EQ(c.llfnr(4), 0);
    EXPECT_EQ(complaint(file.text()), "");
}

TEST(EngineCaseReader, ARuleSetMayHaveNoKsiAndPsi) {
    auto file = test::caseFile(threeSpans());
    file.line(10) = "1.350         1.500  ";
    const DesignCase c = readCase(file.text()).values;
    EXPECT_FALSE(c.ksi(1));
    EXPECT_FALSE(c.psi2(1, 1));
    EXPECT_EQ(c.lambdaQ(1), 1.5);
}

// After "FEL. " it must fit the page, and hold each Swedish letter once.
void expectGoodLine(const std::string& text) {
    EXPECT_LE(characterCount(text), 73U) << text;
    const Bytes bytes = encodeWindows1252(text);
    for (const char letter : {'\xC5', '\xC4', '\xD6', '\xE5', '\xE4', '\xF6'})
        EXPECT_LE(std::count(bytes.begin(), bytes.end(), letter), 1) << text;
}

TEST(EngineCaseReader, EvenTheLongestComplaintFitsTheLine) {
    const auto ten = [](const char* cell) {
        std::string row;
        for (int i = 0; i < 10; ++i)
            row += cell;
        return row;
    };
    auto v = test::equalSpans(10, 5, 1, 1);
    v.nllast = 5;
    v.loads.assign(5, {10, 1, 1});
    const std::pair<int, std::string> table[] = {{6, ten("-9e-200")},
                                                 {6, ten("12345-7")},
                                                 {8, "0.000 " + ten("999999")},
                                                 {8, "0.000 " + ten("-99999")},
                                                 {14, "-1.234567E+300"},
                                                 {15, "-1.234567E+300"},
                                                 {10, ten("-9e-300")},
                                                 {10, "1      1      -999999"},
                                                 {37, "10 -9999991.000"},
                                                 {37, "10 9e+2001.000"},
                                                 {37, "-32768.000"},
                                                 {37, "999-999999-99999"},
                                                 {27, std::string(90, 'x')},
                                                 {32, "-32768"},
                                                 {5, "-32768"}};
    for (const auto& [line, text] : table) {
        auto file = test::caseFile(v);
        file.line(line) = text;
        const auto said = complaint(file.text());
        EXPECT_NE(said, "") << line << ": " << text;
        expectGoodLine(said);
    }
}

struct Nonsense {
    int line;
    const char* text;
    const char* complaint;
};

TEST(EngineCaseReader, SaysWhatMakesNoSense) {
    const Nonsense table[] = {
        {3, "", "Rad 3: loadCode = \"\" är inte ett heltal."},
        {3, "7", "Rad 3: lastregler loadCode = 7 ska vara 0 till 6."},
        {9, "10", "Rad 9: lastkategori lokt = 10 ska vara 0 till 9."},
        {5, "0", "Rad 5: antal fack nfack = 0 ska vara 1 till 10."},
        {5, "11", "Rad 5: antal fack nfack = 11 ska vara 1 till 10."},
        {5, "tre", "Rad 5: nfack = \"tre\" är inte ett heltal."},
        {5, "4", "Rad 6: spv(4) = \"\" är inte ett tal."},
        {6, "5.500  0.000  6.000  ", "Rad 6: spännvidd spv(2) = 0.000 m ska vara positiv."},
        {6, "-5.500 1.000  6.000  ", "Rad 6: spännvidd spv(1) = -5.500 m ska vara positiv."},
        {6, "5.5 5.51.000  6.000  ", "Rad 6: spv(1) = \"5.5 5.5\" är inte ett tal."},
        {6, "inf    1.000  6.000  ", "Rad 6: spv(1) = \"inf    \" är inte ett tal."},
        {7, "0.170", "Rad 7: ptjl(2) = \"\" är inte ett tal."},
        {8, "0.000 -0.100", "Rad 8: upl(2) = \"\" är inte ett tal."},
        {8, "0.000 -0.1000.100 0.000", "Rad 8: upplagsbredd upl(1) = -0.100 m ska inte vara negativ."},
        {8, "0.000 0.100 6.000 0.000", "Rad 8: upplagsbredd upl(2) = 6.000 m ska vara mindre än spv(3)."},
        {10, "-1.000 1.000  1.500  ", "Rad 10: partialkoefficient lambdaG = -1.000 ska inte vara negativ."},
        {10, "1.000  1.000  -1.5   ", "Rad 10: partialkoefficient lambdaQ = -1.500 ska inte vara negativ."},
        {10, "", "Rad 10: lambdaG = \"\" är inte ett tal."},
        {12, "3.000  4.000  4,,0   ", "Rad 12: plast(3) = \"4,,0   \" är inte ett tal."},
        {12, "3.000  4.000  1 2    ", "Rad 12: plast(3) = \"1 2    \" är inte ett tal."},
        {12, "3.000  4.000  1.2.3  ", "Rad 12: plast(3) = \"1.2.3  \" är inte ett tal."},
        {12, "3.000  4.000  nan    ", "Rad 12: plast(3) = \"nan    \" är inte ett tal."},
        {12, "3.000  4.000  +-1    ", "Rad 12: plast(3) = \"+-1    \" är inte ett tal."},
        {12, "3.000  4.000  0x10   ", "Rad 12: plast(3) = \"0x10   \" är inte ett tal."},
        {12, "3.000  4.000  1e     ", "Rad 12: plast(3) = \"1e     \" är inte ett tal."},
        {12, "3.000  4.000  .      ", "Rad 12: plast(3) = \".      \" är inte ett tal."},
        {13, "2.000  2.000  1e999  ", "Rad 13: flast(3) = \"1e999  \" är inte ett tal."},
        {14, "-0.5", "Rad 14: konsol till vänster konsv = -0.500 m ska inte vara negativ."},
        {15, "-0.5", "Rad 15: konsol till höger konsh = -0.500 m ska inte vara negativ."},
        {14, "1.0 m och en hel del till om detta",
         "Rad 14: konsv = \"1.0 m och en hel del...\" är inte ett tal."},
        {16, "2.5", "Rad 16: btg = \"2.5\" är inte ett heltal."},
        {16, "40000", "Rad 16: btg = \"40000\" är inte ett heltal."},
        {31, "1^\xE4\x84", "Rad 31: brukskomb = \"1???\" är inte ett heltal."},
        {32, "6", "Rad 32: antal linjelaster nllast = 6 ska vara 0 till 5."},
        {32, "-1", "Rad 32: antal linjelaster nllast = -1 ska vara 0 till 5."},
        {33, "0  1.000  1.000  ", "Rad 33: linjelastens fack llfnr(1) = 0 ska vara 1 till 3."},
        {34, "4  1.000  1.000  ", "Rad 34: linjelastens fack llfnr(2) = 4 ska vara 1 till 3."},
        {34, "3  6.802  1.000  ", "Rad 34: linjelastens avst(2) = 6.802 m hamnar utanför plattan."},
        {33, "1  -1.201 1.000  ", "Rad 33: linjelastens avst(1) = -1.201 m hamnar utanför plattan."},
        {33, "1  1.000", "Rad 33: lllast(1) = \"\" är inte ett tal."},
    };
    for (const auto& row : table) {
        auto file = test::caseFile(threeSpans());
        file.line(row.line) = row.text;
        EXPECT_EQ(complaint(file.text()), row.complaint) << "line " << row.line << ": " << row.text;
        expectGoodLine(row.complaint);
    }
}

TEST(EngineCaseReader, ALineLoadMayStandInAnotherSpanOrOnACantilever) {
    for (const char* text :
         {"1  -1.200 1.000  ", "3  6.800  1.000  ", "1  20.000 1.000  ", "2  -6.000 -3.500 "}) {
        auto file = test::caseFile(threeSpans());
        file.line(33) = text;
        EXPECT_EQ(complaint(file.text()), "") << text;
    }
    DesignCase c = readCase(test::caseFile(threeSpans()).text()).values;
    c.llfnr(1) = 2;
    c.avst(1) = 1.5f;
    EXPECT_NEAR(lineLoadPosition(c, 1), 1.2 + 5.5 + 1.5, 1e-6);
    EXPECT_NEAR(totalLength(c), 1.2 + 5.5 + 12.25 + 6 + 0.8, 1e-6);
}

TEST(EngineCaseReader, NegativeLoadsAreAllowed) {
    auto v = threeSpans();
    v.plast = {-3, -2, -1};
    v.flast = {-3, 0, 2};
    EXPECT_EQ(complaint(test::caseFile(v).text()), "");
}

TEST(EngineCaseReader, AFileCutShortNamesTheMissingLine) {
    auto file = test::caseFile(threeSpans());
    for (std::size_t count = 36; count > 0; --count) {
        file.lines.resize(count);
        EXPECT_EQ(complaint(file.text()),
                  "Indatafilen är avkortad: rad " + std::to_string(count + 1) + " av 37 saknas.");
    }
}

} // namespace
} // namespace varno::engine
