#include "results/result_printing.h"

#include <vector>

#include "results/result_text.h"
#include "results/result_viewer.h"

namespace varno {

namespace {

constexpr std::size_t pageNumberColumn = 68; // blanks before it

} // namespace

void ResultPrinting::print(const std::string& path, const std::string* fontName) {
    File file = files_.openFile(path, FileMode::input);
    const BusyPointer busy(window_);
    const std::vector<Bytes> pages = VARNO1::readResultPages(file);
    file.close();
    if (fontName != nullptr) printer_.setFontName(*fontName);
    for (const Bytes& page : pages) {
        printer_.printLine(std::string(pageNumberColumn, ' ') + "sid " + std::to_string(printer_.page()));
        printer_.printLine(decodeWindows1252(page));
        printer_.newPage();
    }
    printer_.endDocument();
}

void ResultPrinting::printResult(const std::string& caseName, const std::string& resultFontName) {
    if (!printerThere(printer_, boxes_)) return;
    showingMissingResult(boxes_, caseName, [&] { print(caseName + ".res", &resultFontName); });
}

void ResultPrinting::printChosen(const DocumentState& document) {
    if (!printerThere(printer_, boxes_) || !dialog_.ask(choosingResult)) return;
    showingMissingResult(boxes_, document.currentFileName,
                         [&] { print(dialog_.path(dialog_.typedName), nullptr); });
}

} // namespace varno
