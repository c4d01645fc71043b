#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace varno::testing {

/// The project's own files.
std::filesystem::path sourceFolder();
/// What the build made of the help: Varno.HLP, html/.
std::filesystem::path builtHelp();

/// The files of a folder and those below it whose names end so, sorted.
std::vector<std::filesystem::path> filesOf(const std::filesystem::path& folder, std::string_view ending);

/// The whole help source.
std::string helpSource();
/// The HTML twin.
const std::string& helpPage();
/// Its text as a reader sees it: no tags, and one blank between words.
const std::string& readText();

/// What stands between each `before` and the next `after`, in order.
std::vector<std::string> between(std::string_view text, std::string_view before, std::string_view after);
std::size_t occurrences(std::string_view text, std::string_view part);
/// That the help says it word for word.
void expectExplained(std::string_view text);
/// The same of a message box, line by line, apart from file names, numbers and quoted values in it.
bool isExplained(std::string_view message);
/// The text with one blank for every run of white space.
std::string joined(std::string_view text);

} // namespace varno::testing
