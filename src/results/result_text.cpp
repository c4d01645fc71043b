#include "results/result_text.h"

#include "base/oem_letters.h"
#include "base/run_time_error.h"

namespace varno {

void RepairedText::appendLine(std::string_view line) {
    text_ += "\r\n";
    const std::size_t start = text_.size();
    text_ += line;
    for (std::size_t letter = 0; letter < oemLetters.size(); ++letter) {
        Places& places = places_[letter];
        for (auto at = text_.find(oemLetters[letter].dos, start); at != Bytes::npos;
             at = text_.find(oemLetters[letter].dos, at + 1)) {
            places.found.push_back(at);
        }
        if (places.repaired < places.found.size()) {
            text_[places.found[places.repaired++]] = oemLetters[letter].windows;
        }
    }
}

} // namespace varno

namespace VARNO1 {

namespace {

constexpr int linesPerPage = 70;    // at most
constexpr std::size_t maxPages = 6; // that the page buffer holds
constexpr char endOfPage = '^';     // ends the page after the line that holds it, and is printed

varno::Bytes readPage(varno::File& file) {
    varno::RepairedText page;
    bool ended = false;
    for (int lines = 0; lines < linesPerPage && !ended && !file.atEnd(); ++lines) {
        const varno::Bytes line = file.readLine();
        page.appendLine(line);
        ended = line.find(endOfPage) != varno::Bytes::npos;
    }
    return page.bytes();
}

} // namespace

varno::Bytes readResultText(varno::File& file) {
    varno::RepairedText text;
    while (!file.atEnd())
        text.appendLine(file.readLine());
    return text.bytes();
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
