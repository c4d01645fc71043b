#include "tool/commands.h"

#include <ostream>

#include "model/reference_tables.h"
#include "results/result_text.h"
#include "tool/case_json.h"
#include "tool/case_report.h"

namespace varno::tool {

MessageAnswer ConsoleBoxes::show(const std::string& text, int style, const std::string& title) {
    err_ << title << (title.empty() ? "" : ": ") << text << '\n';
    return style == msgYesNo ? MessageAnswer::no : MessageAnswer::cancel;
}

CaseFile loadCase(FileOpener& opener, const std::string& path) {
    DesignCase presets;
    presetDesignCase(presets);
    File file = opener.openFile(path, FileMode::input);
    return VARNO1::readDesignCase(file, presets);
}

void printJson(FileOpener& opener, const std::string& path, std::ostream& out) {
    out << caseJson(loadCase(opener, path));
}

void rewriteCase(FileOpener& opener, const std::string& from, const std::string& to) {
    const CaseFile loaded = loadCase(opener, from);
    File file = opener.openFile(to, FileMode::output);
    VARNO1::writeDesignCase(file, loaded);
    file.close();
}

void printResult(FileOpener& opener, const std::string& path, std::ostream& out) {
    File file = opener.openFile(path, FileMode::input);
    out << decodeWindows1252(VARNO1::readResultText(file));
}

void printReport(FileOpener& opener, const std::string& path, std::ostream& out) {
    out << caseReport(loadCase(opener, path));
}

} // namespace varno::tool
