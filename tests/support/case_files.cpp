#include "support/case_files.h"

#include <gtest/gtest.h>

#include "model/reference_tables.h"
#include "support/memory_files.h"

namespace varno::testing {

namespace {

void fillSpan(DesignCase& designCase, int span, float length, float thickness, float permanent,
              float variable) {
    designCase.spv(span) = length;
    designCase.ptjl(span) = thickness;
    designCase.plast(span) = permanent;
    designCase.flast(span) = variable;
}

void fillLineLoad(DesignCase& designCase, int index, std::int16_t span, float distance, float load) {
    designCase.llfnr(index) = span;
    designCase.avst(index) = distance;
    designCase.lllast(index) = load;
}

} // namespace

Bytes writtenCase(const CaseFile& caseFile) {
    MemoryFiles files;
    File file(files, "CASE.IND", FileMode::output, 0, 1);
    VARNO1::writeDesignCase(file, caseFile);
    file.close();
    return files.content.at("CASE.IND");
}

CaseFile readCase(const Bytes& bytes) {
    MemoryFiles files;
    files.content["CASE.IND"] = bytes;
    File file(files, "CASE.IND", FileMode::input, 0, 1);
    DesignCase presets;
    presetDesignCase(presets);
    return VARNO1::readDesignCase(file, presets);
}

CaseFile sampleCase() {
    CaseFile result{.designCase = {}, .name = "NAMNLÖS", .title = "Bärlägg för Ångström"};
    DesignCase& c = result.designCase;
    presetDesignCase(c);
    c.loadCode = 3;
    c.safetyClass(3) = 2;
    c.nfack = 3;
    fillSpan(c, 1, 6.0f, 0.17f, 0.5f, 2.5f);
    fillSpan(c, 2, 12.5f, 0.2f, 1.0f, 3.0f);
    fillSpan(c, 3, 0.25f, 0.175f, -1.5f, 4.0f);
    c.upl(1) = 0.1f;
    c.upl(2) = 0.25f;
    c.upl(3) = 0;
    c.lokt = 2;
    c.lastkomb = 3;
    c.konsv = 1.2f;
    c.konsh = 0;
    c.btg = 2;
    c.aok = 1;
    c.dok = 4;
    c.kavko = -1;
    c.ktack = 22;
    c.auk = 3;
    c.duk = 5;
    c.duarm = 42;
    c.brandk = 1;
    c.brandb = 2;
    c.kutak = 1;
    c.reservedValue = -7;
    c.overhojning = 20;
    c.initiell = 400;
    c.tillkommande = 300;
    c.brukskomb = 2;
    c.nllast = 2;
    fillLineLoad(c, 1, 1, 2.5f, 10.0f);
    fillLineLoad(c, 2, 3, 0.125f, 7.75f);
    fillLineLoad(c, 3, 2, 1.0f, -5.0f);
    return result;
}

Bytes sampleFile() {
    return "NAMNL\x99S\r\n"
           "B\x84rl\xE4gg f\x94r \x8Fngstr\xF6m\r\n"
           "3\r\n"
           "2\r\n"
           "3\r\n"
           "6.000  12.500 0.250  \r\n"
           "0.170  0.200  0.175  \r\n"
           "0.000 0.100 0.250 0.000 \r\n"
           "2\r\n"
           "1.350  0.890  1.500  0.700  0.500  0.300  \r\n"
           "3\r\n"
           "0.500  1.000  -1.500 \r\n"
           "2.500  3.000  4.000  \r\n"
           "1.2\r\n"
           "0\r\n"
           "2\r\n"
           "1\r\n"
           "4\r\n"
           "-1\r\n"
           "22\r\n"
           "3\r\n"
           "5\r\n"
           "42\r\n"
           "1\r\n"
           "2\r\n"
           "1\r\n"
           "-7\r\n"
           "20\r\n"
           "400\r\n"
           "300\r\n"
           "2\r\n"
           "2\r\n"
           "1  2.500  10.000 \r\n"
           "3  0.125  7.750  \r\n"
           "2  1.000  -5.000 \r\n"
           "0  0.000  0.000  \r\n"
           "0  0.000  0.000  \r\n";
}

std::vector<Bytes> linesOf(const Bytes& text) {
    std::vector<Bytes> lines;
    std::size_t from = 0;
    while (from < text.size()) {
        const std::size_t end = text.find("\r\n", from);
        if (end == Bytes::npos) {
            ADD_FAILURE() << "the last line has no CR LF";
            break;
        }
        lines.push_back(text.substr(from, end - from));
        EXPECT_EQ(lines.back().find_first_of("\r\n"), Bytes::npos) << "a line end that is not CR LF";
        from = end + 2;
    }
    return lines;
}

Bytes textOf(const std::vector<Bytes>& lines, const std::string& lineEnd) {
    Bytes text;
    for (const Bytes& line : lines)
        text += line + lineEnd;
    return text;
}

Bytes sampleFileWith(int number, const Bytes& line) {
    std::vector<Bytes> lines = linesOf(sampleFile());
    lines.at(static_cast<std::size_t>(number - 1)) = line;
    return textOf(lines);
}

} // namespace varno::testing
