// The rooms of src/ in their order: a file includes what stands in its own room or below it, never what stands above.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace varno {
namespace {

namespace fs = std::filesystem;

// From the bottom to the top; what stands on one level does not see each other.
const std::vector<std::vector<std::string_view>> levels{
    {"base"},  {"drawing"}, {"model"},   {"controls"}, {"win32"},
    {"help"},  {"files"},   {"results"}, {"input"},    {"lineloads", "diagram"},
    {"shell"},
};

std::optional<std::size_t> levelOf(std::string_view room) {
    for (std::size_t level = 0; level < levels.size(); ++level) {
        if (std::ranges::find(levels[level], room) != levels[level].end()) return level;
    }
    return std::nullopt;
}

std::string roomOf(const std::string& path) {
    const auto slash = path.find('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

bool allowed(const std::string& from, const std::string& to) {
    const auto own = levelOf(from);
    const auto other = levelOf(to);
    return own && other && (from == to || *other < *own);
}

struct Include {
    std::string file;
    std::string included;
};

constexpr const char* own = R"re("([^"]+)")re";
constexpr const char* ofTheSystem = R"re(<([^>]+)>)re";

std::vector<Include> includesUnder(const fs::path& root, const std::string& name) {
    const std::regex line(R"re(^\s*#\s*include\s*)re" + name);
    std::vector<Include> found;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const auto ending = entry.path().extension();
        if (ending != ".h" && ending != ".cpp") continue;
        std::ifstream in(entry.path());
        std::smatch match;
        for (std::string text; std::getline(in, text);) {
            if (std::regex_search(text, match, line))
                found.push_back({fs::relative(entry.path(), root).generic_string(), match[1]});
        }
    }
    return found;
}

TEST(Rooms, EveryFolderHasItsPlace) {
    for (const auto& entry : fs::directory_iterator(VARNO_ROOMS)) {
        if (!entry.is_directory()) continue;
        EXPECT_TRUE(levelOf(entry.path().filename().string())) << entry.path().filename();
    }
}

TEST(Rooms, IncludesRunDownwards) {
    const auto includes = includesUnder(VARNO_ROOMS, own);
    ASSERT_GT(includes.size(), 300U);
    for (const Include& include : includes) {
        const std::string from = roomOf(include.file);
        if (from.empty()) continue; // main.cpp stands above all rooms
        EXPECT_TRUE(allowed(from, roomOf(include.included)))
            << include.file << " includes " << include.included;
    }
}

// They bring the library's locales with them, which nearly double the program.
TEST(Rooms, NoneUsesStreams) {
    const auto includes = includesUnder(VARNO_ROOMS, ofTheSystem);
    ASSERT_GT(includes.size(), 300U);
    for (const Include& include : includes) {
        for (const std::string_view stream : {"sstream", "iostream", "fstream", "iomanip", "locale", "regex"})
            EXPECT_NE(include.included, stream) << include.file;
    }
}

TEST(Rooms, TheOrderTellsUpFromDown) {
    EXPECT_TRUE(allowed("input", "model"));
    EXPECT_TRUE(allowed("input", "input"));
    EXPECT_FALSE(allowed("model", "input"));
    EXPECT_FALSE(allowed("lineloads", "diagram"));
    EXPECT_FALSE(allowed("base", "attic"));
}

} // namespace
} // namespace varno
