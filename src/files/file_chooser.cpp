#include "files/file_chooser.h"

#include <algorithm>

namespace varno {

std::string folderOf(const std::string& path) {
    const auto slash = path.rfind('\\');
    if (slash == std::string::npos) return {};
    const bool root = slash > 0 && path[slash - 1] == ':';
    return path.substr(0, root ? slash + 1 : slash);
}

const std::string& FileChooser::directory() {
    if (directory_.empty()) directory_ = folders_.current();
    return directory_;
}

std::string FileChooser::drive() {
    const std::string& path = directory();
    return path.size() >= 2 && path[1] == ':' ? path.substr(0, 2) : std::string();
}

std::vector<FolderRow> FileChooser::folderRows() {
    const std::string& path = directory();
    std::vector<FolderRow> rows;
    // The root keeps its backslash; a network path's root is \\server\share.
    std::size_t rootEnd = path.find('\\');
    if (path.starts_with("\\\\")) {
        const auto share = path.find('\\', 2);
        rootEnd = share == std::string::npos ? share : path.find('\\', share + 1);
    }
    std::size_t at = rootEnd == std::string::npos ? path.size() : rootEnd;
    const std::string root = path.substr(0, at) + "\\";
    rows.push_back({root, root, 0, true});
    int depth = 1;
    while (at < path.size()) {
        const std::size_t begin = at + 1;
        at = std::min(path.find('\\', begin), path.size());
        if (at > begin) rows.push_back({path.substr(begin, at - begin), path.substr(0, at), depth++, true});
    }
    for (const std::string& name : folders_.subfolders(path))
        rows.push_back({name, pathOf(name), depth, false});
    return rows;
}

std::string FileChooser::pathOf(const std::string& name) {
    const std::string& path = directory();
    return path.ends_with('\\') ? path + name : path + "\\" + name;
}

void FileChooser::move(const std::function<void()>& step) {
    try {
        step();
    } catch (...) {
        view_.refreshLists();
        moved();
        throw;
    }
    view_.refreshLists();
    moved();
}

} // namespace varno
