#include "driver/prints.h"

#include <windows.h>

#include <cstdlib>
#include <utility>

#include "driver/scene.h"
#include "driver/wait.h"
#include "win32/strings.h"

namespace varno::gui {

namespace {

constexpr double pixelsPerPoint = 2;

std::string printsFolder() {
    wchar_t text[MAX_PATH] = L"";
    if (GetEnvironmentVariableW(L"VARNO_TEST_PRINTS", text, MAX_PATH) == 0) {
        throw GuiError("there is no test printer: VARNO_TEST_PRINTS is not set");
    }
    return win32::narrow(text);
}

std::vector<std::string> pieces(const std::string& text, const std::string& end) {
    std::vector<std::string> all;
    std::size_t begin = 0;
    for (auto at = text.find(end); at != std::string::npos; at = text.find(end, begin)) {
        all.push_back(text.substr(begin, at - begin));
        begin = at + end.size();
    }
    return all;
}

// Two letters may share a glyph, so that the font cannot tell which of them was printed.
std::string withPlainLetters(std::string text) {
    const std::pair<std::string, std::string> twins[] = {{"\u00AD", "-"}, {"\u037E", ";"}};
    for (const auto& [twin, plain] : twins) {
        for (auto at = text.find(twin); at != std::string::npos; at = text.find(twin))
            text.replace(at, twin.size(), plain);
    }
    return text;
}

std::vector<std::string> linesOfPage(const std::string& text) {
    std::vector<std::string> lines;
    for (std::string line : pieces(withPlainLetters(text), "\n")) {
        line.erase(line.find_last_not_of(" \r") + 1);
        if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

// The number that an attribute of a tag holds.
double attribute(const std::string& tag, const std::string& name) {
    const auto at = tag.find(" " + name + "=\"");
    if (at == std::string::npos) throw GuiError("a word's box has no " + name + ": " + tag);
    return std::strtod(tag.c_str() + at + name.size() + 3, nullptr);
}

// <word xMin="12.0" yMin="12.9" xMax="61.2" yMax="23.2">text</word>
std::vector<PrintedWord> wordsOf(const std::string& boxes) {
    std::vector<PrintedWord> words;
    for (const std::string& word : pieces(boxes, "</word>")) {
        const std::string tag = word.substr(word.rfind("<word "));
        words.push_back({withPlainLetters(tag.substr(tag.find('>') + 1)), attribute(tag, "xMin"),
                         attribute(tag, "yMin"), attribute(tag, "xMax"), attribute(tag, "yMax")});
    }
    return words;
}

Print readPrint(const std::string& folder) {
    Print print{
        folder + "\\print.pdf", readFile(folder + "\\print.ps"), readFile(folder + "\\fonts.txt"), {}};
    const auto texts = pieces(readFile(folder + "\\text.txt"), "\f");
    for (const std::string& boxes : pieces(readFile(folder + "\\words.html"), "</page>")) {
        const std::size_t number = print.pages.size() + 1;
        PaperPicture picture(folder + "\\page-" + std::to_string(number) + ".ppm");
        // A page on its side is told as an upright one with a note to turn it; the picture has it turned.
        const double width = picture.width() / pixelsPerPoint;
        const double height = picture.height() / pixelsPerPoint;
        print.pages.push_back(
            {width, height, linesOfPage(texts.at(number - 1)), wordsOf(boxes), std::move(picture)});
    }
    return print;
}

} // namespace

Prints::Prints() : folder_(printsFolder()) {
    while (fileExists(folder_ + "\\" + std::to_string(last_ + 1)))
        ++last_;
}

Print Prints::next() {
    const std::string folder = folder_ + "\\" + std::to_string(last_ + 1);
    if (!waitUntil([&] { return fileExists(folder); })) throw GuiError("nothing comes out of the printer");
    ++last_;
    return readPrint(folder);
}

} // namespace varno::gui
