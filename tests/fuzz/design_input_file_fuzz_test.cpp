#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <random>
#include <string_view>

#include "support/case_files.h"
#include "support/memory_files.h"

// Files damaged at random, always the same ones: whatever stands in them, reading ends in a case or in one of
// the reader's run-time errors, and what it made of them survives being written and read again.
namespace varno {

namespace {

using Random = std::mt19937;

std::size_t below(Random& random, std::size_t limit) {
    return limit == 0 ? 0 : random() % limit;
}

// What a careless hand, a broken disk or another program puts into such a file.
constexpr std::string_view pieces[] = {
    ",",        "\"",     "\r\n",   "\n",        "\r",    " ",       "\t",       "-",       "+",
    ".",        "0",      "9",      "1E39",      "1E400", "-1E-400", "32767",    "32768",   "-32769",
    "1D5",      "nan",    "inf",    "7",         "10",    "15",      "16",       "-1",      "65536",
    "\x84",     "\x8E",   "\xE4",   "\xC5\xC5",  "\x9E",  "\x81",    "\xFF",     "\x1A",    "0.0005",
    "-0.0004",  "999999", "0.5",    "1.5",       "2.5",   "1,5",     "1234.567", "\"a,b\"", "\"\r\n\"",
    "        ", "1 2 3",  "-32768", "99999.996",
};

void damage(Bytes& text, Random& random) {
    const std::size_t place = below(random, text.size() + 1);
    switch (below(random, 6)) {
    case 0: // another byte
        if (place < text.size()) text[place] = static_cast<char>(below(random, 256));
        break;
    case 1: // a piece put in
        text.insert(place, pieces[below(random, std::size(pieces))]);
        break;
    case 2: { // a piece put over what is there
        const std::string_view piece = pieces[below(random, std::size(pieces))];
        text.replace(place, std::min(piece.size(), text.size() - place), piece);
        break;
    }
    case 3: // something lost
        text.erase(place, below(random, 12));
        break;
    case 4: // something twice
        text.insert(place, text.substr(below(random, text.size() + 1), below(random, 30)));
        break;
    default: // cut off, now and then
        if (below(random, 8) == 0) text.resize(place);
        break;
    }
}

// A whole line exchanged for a piece or two: a damage that keeps the lines apart reaches every field.
void exchangeLine(Bytes& text, Random& random) {
    std::vector<Bytes> lines;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find("\r\n", from), text.size());
        lines.push_back(text.substr(from, end - from));
        from = end + 2;
    }
    if (lines.empty()) return;
    Bytes& line = lines[below(random, lines.size())];
    line = pieces[below(random, std::size(pieces))];
    if (below(random, 2) == 0) line += pieces[below(random, std::size(pieces))];
    text = testing::textOf(lines);
}

Bytes damagedFile(Random& random) {
    Bytes text = testing::sampleFile();
    const std::size_t times = 1 + below(random, 4);
    for (std::size_t i = 0; i < times; ++i) {
        if (below(random, 3) == 0) {
            exchangeLine(text, random);
        } else {
            damage(text, random);
        }
    }
    return text;
}

// Nothing in case on a run-time error that belongs to the reader; fails the test on any other.
std::optional<CaseFile> readOrFail(const Bytes& text) {
    try {
        return testing::readCase(text);
    } catch (const RunTimeError& error) {
        const std::array known{errOverflow, errSubscriptOutOfRange, errInputPastEnd};
        EXPECT_NE(std::find(known.begin(), known.end(), error.number()), known.end()) << error.message();
        return std::nullopt;
    }
}

// Whether the format can carry a text: it is written without quotes, and a byte that is a DOS code is taken
// for its letter when it is read again.
bool carried(const std::string& utf8) {
    const Bytes bytes = encodeWindows1252(utf8);
    return bytes.find_first_of(",\r\n\x84\x86\x8E\x8F\x94\x99") == Bytes::npos && !bytes.starts_with(' ') &&
           !bytes.starts_with('"');
}

// The values that have a line of their own are not cut and must come back at once.
void expectSameOwnLines(const DesignCase& a, const DesignCase& b) {
    for (const CaseLine& line : caseLines) {
        const auto number = &line - caseLines.data() + 1;
        if (const auto* integer = std::get_if<IntegerLine>(&line)) {
            EXPECT_EQ(a.*integer->field, b.*integer->field) << "line " << number;
        } else if (const auto* real = std::get_if<RealLine>(&line)) {
            EXPECT_EQ(a.*real->field, b.*real->field) << "line " << number;
        }
    }
    EXPECT_EQ(a.safetyClass, b.safetyClass);
}

void expectStable(const CaseFile& first) {
    const Bytes written = testing::writtenCase(first);
    const std::optional<CaseFile> second = readOrFail(written);
    ASSERT_TRUE(second) << "the program cannot read what it wrote";
    EXPECT_EQ(second->name, first.name);
    EXPECT_EQ(second->title, first.title);
    expectSameOwnLines(first.designCase, second->designCase);
    // Numbers wider than their cells were cut once; from now on nothing changes any more.
    EXPECT_EQ(testing::writtenCase(*second), written);
}

TEST(FuzzDesignInputFile, DamagedFilesAreReadOrRefused) {
    int read = 0;
    int stable = 0;
    constexpr int seeds = 12000;
    for (unsigned seed = 0; seed < seeds; ++seed) {
        Random random(seed);
        const Bytes text = damagedFile(random);
        const std::optional<CaseFile> caseFile = readOrFail(text);
        if (!caseFile) continue;
        ++read;
        if (!carried(caseFile->name) || !carried(caseFile->title)) continue;
        ++stable;
        expectStable(*caseFile);
        if (HasFailure()) FAIL() << "seed " << seed << ":\n" << text;
    }
    // The damage is neither so small that nothing is refused nor so large that nothing is left to compare.
    EXPECT_GT(seeds - read, seeds / 10);
    EXPECT_GT(stable, seeds / 4);
}

TEST(FuzzDesignInputFile, NoiseIsReadOrRefused) {
    for (unsigned seed = 0; seed < 5000; ++seed) {
        Random random(seed);
        Bytes text;
        for (std::size_t size = below(random, 400); text.size() < size;) {
            if (below(random, 3) == 0) {
                text += static_cast<char>(below(random, 256));
            } else {
                text += pieces[below(random, std::size(pieces))];
            }
        }
        const std::optional<CaseFile> caseFile = readOrFail(text);
        if (caseFile && carried(caseFile->name) && carried(caseFile->title)) expectStable(*caseFile);
        if (::testing::Test::HasFailure()) FAIL() << "seed " << seed << ":\n" << text;
    }
}

} // namespace

} // namespace varno
