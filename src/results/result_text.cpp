#include "results/result_text.h"

#include <algorithm>

#include "base/oem_letters.h"
#include "base/run_time_error.h"

namespace varno {

void RepairedText::appendLine(std::string_view line) {
    text_ += "\r\n";
    text_ += line;
    for (std::size_t letter = 0; letter < oemLetters.size(); ++letter) {
        const std::size_t at = std::min(text_.find(oemLetters[letter].dos, searched_[letter]), text_.size());
        if (at < text_.size()) text_[at] = oemLetters[letter].windows;
        searched_[letter] = at;
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
    return std::move(page).bytes();
}

} // namespace

varno::Bytes readResultText(varno::File& file) {
    varno::RepairedText text;
    while (!file.atEnd())
        text.appendLine(file.readLine());
    return std::move(text).bytes();
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
