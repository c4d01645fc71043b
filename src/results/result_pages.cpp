#include "results/result_pages.h"

#include "base/run_time_error.h"
#include "results/result_text.h"

namespace VARNO1 {

namespace {

varno::Bytes readPage(varno::File& file) {
    varno::RepairedText page;
    bool ended = false;
    for (int lines = 0; lines < varno::linesPerPage && !ended && !file.atEnd(); ++lines) {
        const varno::Bytes line = file.readLine();
        page.appendLine(line);
        ended = line.find(varno::endOfPageSign) != varno::Bytes::npos;
    }
    return page.bytes();
}

} // namespace

std::vector<varno::Bytes> readResultPages(varno::File& file) {
    std::vector<varno::Bytes> pages;
    while (!file.atEnd()) {
        varno::Bytes page = readPage(file);
        if (pages.size() == varno::maxResultPages) throw varno::RunTimeError(varno::errSubscriptOutOfRange);
        pages.push_back(std::move(page));
    }
    return pages;
}

} // namespace VARNO1
