#include "shell/recent_cases.h"

#include "base/file.h"
#include "base/run_time_error.h"
#include "base/text.h"

namespace varno {

void RecentCases::start(const std::string& folder) {
    if (!folder.empty()) file_ = folder + "\\senaste.txt";
}

std::vector<std::string> RecentCases::list() {
    std::vector<std::string> paths;
    if (file_.empty()) return paths;
    try {
        File file(calls_, file_, FileMode::input, 0, 1);
        while (!file.atEnd() && paths.size() < most) {
            std::string path(file.readLine());
            if (!path.empty()) paths.push_back(std::move(path));
        }
    } catch (const RunTimeError&) {
        // Nothing was opened yet, or the file is another program's just now.
    }
    return paths;
}

void RecentCases::add(const std::string& path) {
    std::vector<std::string> paths = list();
    std::erase_if(paths, [&](const std::string& other) { return equalIgnoringCase(other, path); });
    paths.insert(paths.begin(), path);
    if (paths.size() > most) paths.resize(most);
    keep(paths);
}

void RecentCases::dropMissing(const std::string& path) {
    if (calls_.exists(path)) return;
    std::vector<std::string> paths = list();
    if (std::erase(paths, path) > 0) keep(paths);
}

void RecentCases::keep(const std::vector<std::string>& paths) {
    if (file_.empty()) return;
    try {
        File file(calls_, file_, FileMode::output, 0, 1);
        for (const std::string& path : paths)
            file.printLine(path);
        file.close();
    } catch (const RunTimeError&) {
        // The disk is full, or another program writes it: the list stays as it was.
    }
}

std::vector<std::string> recentCaptions(const std::vector<std::string>& paths) {
    std::vector<std::string> captions;
    for (const std::string& path : paths) {
        std::string caption = "&" + std::to_string(captions.size() + 1) + "  ";
        for (const char letter : path) {
            // A single one would be taken for the mark of the next letter.
            if (letter == '&') caption += '&';
            caption += letter;
        }
        captions.push_back(std::move(caption));
    }
    return captions;
}

} // namespace varno
