#include "results/result_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "base/oem_letters.h"
#include "base/run_time_error.h"

namespace varno {

namespace {

constexpr std::uint8_t noLetter = oemLetters.size();

// Which letter a DOS byte is.
constexpr std::array<std::uint8_t, 256> letterOf = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(noLetter);
    for (std::uint8_t letter = 0; letter < oemLetters.size(); ++letter)
        table[static_cast<unsigned char>(oemLetters[letter].dos)] = letter;
    return table;
}();

// How often a place of the text fits, `fits(byte before it, byte)`. The compiler takes many places at a time, as their count
// needs no more than a byte.
template <typename Fits>
std::size_t countPlaces(std::string_view text, Fits fits) {
    constexpr std::size_t piece = 255;
    std::size_t count = 0;
    for (std::size_t from = 1; from < text.size(); from += piece) {
        const char* const byte = text.data() + from;
        const std::size_t size = std::min(piece, text.size() - from);
        std::uint8_t inPiece = 0;
        for (std::size_t i = 0; i < size; ++i)
            inPiece = static_cast<std::uint8_t>(inPiece + (fits(byte[i - 1], byte[i]) ? 1 : 0));
        count += inPiece;
    }
    return count;
}

// Calls `visit` with the places of line ends and DOS letters. They, and hardly anything else in a result, have neither of the
// bits 0x60. Eight bytes at a time.
template <typename Visit>
void forEachSpecial(std::string_view text, Visit visit) {
    constexpr std::uint64_t each = 0x0101010101010101;
    std::uint64_t word = 0;
    std::size_t place = 0;
    for (; place + sizeof word <= text.size(); place += sizeof word) {
        std::memcpy(&word, text.data() + place, sizeof word);
        for (std::uint64_t found = ~(word | word << 1) & (0x40 * each); found != 0; found &= found - 1)
            visit(place + static_cast<std::size_t>(std::countr_zero(found)) / 8);
    }
    for (; place < text.size(); ++place)
        visit(place);
}

// Of each letter a line repairs one: the line that it stands in, or the next one that has not repaired an earlier. So each is
// settled where it is met, and none is searched for again. Every line of the text is preceded by CR LF.
void repairLetters(Bytes& text) {
    const std::size_t lines = countPlaces(text, [](char, char byte) { return byte == '\n'; });
    char* const bytes = text.data();
    std::size_t line = 0;
    std::array<std::size_t, oemLetters.size()>
        repairing{}; // for each letter the line that repairs the last one so far
    forEachSpecial(text, [&](std::size_t place) {
        const char byte = bytes[place];
        if (byte == '\n') {
            ++line;
        } else if (const std::uint8_t letter = letterOf[static_cast<unsigned char>(byte)];
                   letter != noLetter) {
            repairing[letter] = std::max(line, repairing[letter] + 1);
            if (repairing[letter] <= lines) bytes[place] = oemLetters[letter].windows;
        }
    });
}

bool everyLineEndIsCrLf(std::string_view text) {
    const std::size_t others =
        countPlaces(text, [](char before, char byte) { return (before == '\r') != (byte == '\n'); });
    return others == 0 && !text.starts_with('\n') && !text.ends_with('\r');
}

// The lines of a text, each preceded by CR LF.
Bytes linesOf(Bytes text) {
    if (everyLineEndIsCrLf(text)) {
        if (text.ends_with('\n')) text.resize(text.size() - 2);
        return std::move(text.insert(0, "\r\n"));
    }
    Bytes lines;
    for (SequentialText rest(text); !rest.atEnd();) {
        lines += "\r\n";
        lines += rest.readLine();
    }
    return lines;
}

} // namespace

} // namespace varno

namespace VARNO1 {

namespace {

constexpr int linesPerPage = 70;    // at most
constexpr std::size_t maxPages = 6; // that the page buffer holds
constexpr char endOfPage = '^';     // ends the page after the line that holds it, and is printed

varno::Bytes readPage(varno::File& file) {
    varno::Bytes page;
    bool ended = false;
    for (int lines = 0; lines < linesPerPage && !ended && !file.atEnd(); ++lines) {
        const std::string_view line = file.readLine();
        page += "\r\n";
        page += line;
        ended = line.find(endOfPage) != varno::Bytes::npos;
    }
    varno::repairLetters(page);
    return page;
}

} // namespace

varno::Bytes readResultText(varno::File& file) {
    if (file.atEnd()) return {};
    varno::Bytes text = varno::linesOf(file.takeRest());
    varno::repairLetters(text);
    return text;
}

std::vector<varno::Bytes> readResultPages(varno::File& file) {
    std::vector<varno::Bytes> pages;
    while (!file.atEnd()) {
        varno::Bytes page = readPage(file);
        if (pages.size() == maxPages) throw varno::RunTimeError(varno::errSubscriptOutOfRange);
        pages.push_back(std::move(page));
    }
    return pages;
}

} // namespace VARNO1
