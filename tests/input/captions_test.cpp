// What the form says stands once in the program: whoever changes a caption changes one line.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>

#include "input/field_table.h"
#include "input/form_layout.h"

namespace varno {
namespace {

namespace fs = std::filesystem;

// The text literals of a source; comments and letters between single marks are passed over.
void countLiterals(const std::string& source, std::map<std::string, int>& found) {
    for (std::size_t at = 0; at < source.size(); ++at) {
        if (source.compare(at, 2, "//") == 0) {
            at = std::min(source.find('\n', at), source.size());
        } else if (source[at] == '"' || source.compare(at, 3, "'\"'") == 0) {
            if (source[at] == '\'') {
                at += 2;
                continue;
            }
            const auto start = at + 1;
            for (at = start; at < source.size() && source[at] != '"'; ++at) {
                if (source[at] == '\\') ++at;
            }
            ++found[source.substr(start, at - start)];
        }
    }
}

std::map<std::string, int> literals() {
    std::map<std::string, int> found;
    for (const char* folder : {"/src", "/tool"}) {
        for (const auto& entry : fs::recursive_directory_iterator(std::string(VARNO_SOURCES) + folder)) {
            if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
            std::ifstream in(entry.path(), std::ios::binary);
            countLiterals({std::istreambuf_iterator<char>(in), {}}, found);
        }
    }
    return found;
}

bool hasLetter(const std::string& text) {
    return std::ranges::any_of(
        text, [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0 || (c & 0x80) != 0; });
}

TEST(Captions, StandOnceInTheProgram) {
    // Everything that the form is made of, what its options are exchanged for, and what a screen reader says.
    std::set<std::string> texts;
    for (const ControlSpec& spec : inputFormLayout())
        texts.insert(spec.text);
    for (const ChoiceField& row : choiceFields)
        texts.insert(row.options.begin(), row.options.end());
    for (const int fireClass : {1, 2})
        texts.insert(fireOptions(fireClass).begin(), fireOptions(fireClass).end());
    // A unit is no caption.
    for (const TextField& row : textFields)
        texts.erase(std::string(row.unit));
    std::erase_if(texts, [](const std::string& text) { return !hasLetter(text); });
    EXPECT_GT(texts.size(), 70u);

    const auto found = literals();
    for (const std::string& text : texts) {
        const auto count = found.find(text);
        EXPECT_EQ(count == found.end() ? 0 : count->second, 1) << '"' << text << '"';
    }
}

} // namespace
} // namespace varno
