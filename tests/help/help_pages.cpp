#include "help/help_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <utility>

#include "base/text.h"
#include "support/temporary_folder.h"

namespace varno::testing {

namespace {

std::filesystem::path pathOf(const char* utf8) {
    return reinterpret_cast<const char8_t*>(utf8);
}

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

std::string withoutTags(const std::string& page) {
    std::string text;
    bool inTag = false;
    for (const char c : page) {
        if (c == '<') inTag = true;
        if (!inTag) text += c;
        if (c == '>') inTag = false;
    }
    return text;
}

} // namespace

std::filesystem::path sourceFolder() {
    return pathOf(VARNO_SOURCE);
}
std::filesystem::path builtHelp() {
    return pathOf(VARNO_HELP_BUILT);
}

std::vector<std::filesystem::path> filesOf(const std::filesystem::path& folder, std::string_view ending) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().filename().string().ends_with(ending)) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    EXPECT_FALSE(files.empty()) << folder << ending;
    return files;
}

std::string helpSource() {
    std::string text;
    for (const auto& file : filesOf(sourceFolder() / "help" / "text", ".but"))
        text += contentOf(file) + "\n";
    return replaced(text, "\r\n", "\n");
}

const std::string& helpPage() {
    static const std::string page = contentOf(builtHelp() / "html" / "index.html");
    return page;
}

const std::string& readText() {
    static const std::string text = [] {
        std::string plain = withoutTags(helpPage());
        for (const auto& [entity, letter] :
             {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&nbsp;", " "}, {"&amp;", "&"}})
            plain = replaced(plain, entity, letter);
        return joined(plain);
    }();
    return text;
}

std::vector<std::string> between(std::string_view text, std::string_view before, std::string_view after) {
    std::vector<std::string> found;
    for (auto at = text.find(before); at != std::string_view::npos; at = text.find(before, at)) {
        at += before.size();
        const auto end = text.find(after, at);
        if (end == std::string_view::npos) break;
        found.emplace_back(text.substr(at, end - at));
    }
    return found;
}

std::size_t occurrences(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

void expectExplained(std::string_view text) {
    const std::string wanted = trimBlanks(joined(text));
    EXPECT_NE(readText().find(wanted), std::string::npos) << wanted;
}

bool isExplained(std::string_view message) {
    // What is different each time, the end of a line, and the words around a run-time error's number, which stand in a
    // table of the help: the number and field of a file's line, a quoted value, the name of a file, a number.
    static const std::regex varying(
        R"re(Rad \d+ \(.*\):?|"[^"]*"|\S*[^\s.]\.[A-Za-z]\S*|Run-time error '|': |[-+]?\d[\d.,:]*|[\r\n]+)re");
    // A run-time error says itself what happened and what to do; its number leads to the help.
    const auto number = message.rfind("Run-time error '");
    const std::string text(number == std::string_view::npos ? message : message.substr(number));
    const std::sregex_token_iterator parts(text.begin(), text.end(), varying, -1);
    return std::all_of(parts, std::sregex_token_iterator(), [](const std::string& part) {
        return readText().find(trimBlanks(joined(part))) != std::string::npos;
    });
}

std::string joined(std::string_view text) {
    std::string out;
    for (const char c : text) {
        const bool blank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
        if (!blank) {
            out += c;
        } else if (!out.empty() && out.back() != ' ') {
            out += ' ';
        }
    }
    return out;
}

} // namespace varno::testing
