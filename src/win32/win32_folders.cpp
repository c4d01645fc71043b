// The drives and folders of Windows.
#include <windows.h>

#include <shlwapi.h>

#include <algorithm>

#include "base/folders.h"
#include "base/run_time_error.h"
#include "win32/late.h"
#include "win32/strings.h"

namespace varno {

namespace {

using win32::narrow;
using win32::wide;

// "X:\folder", without a backslash at the end except for a root.
std::string tidy(std::string path) {
    while (path.size() > 3 && path.ends_with('\\'))
        path.pop_back();
    return path;
}

std::string fullPath(const std::string& path) {
    const std::wstring text = wide(path);
    const DWORD length = GetFullPathNameW(text.c_str(), 0, nullptr, nullptr);
    std::wstring full(length, L'\0');
    full.resize(GetFullPathNameW(text.c_str(), length, full.data(), nullptr));
    return tidy(narrow(full));
}

bool isFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(wide(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The entries of a folder that `wanted` takes, sorted as the user's Windows sorts names.
template <typename Wanted>
std::vector<std::string> entries(const std::string& path, Wanted wanted) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW(wide(path + (path.ends_with('\\') ? "*" : "\\*")).c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            if (wanted(data)) names.emplace_back(data.cFileName);
        } while (FindNextFileW(search, &data));
        FindClose(search);
    }
    std::ranges::sort(names, [](const std::wstring& a, const std::wstring& b) {
        return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, a.c_str(), -1, b.c_str(), -1) ==
               CSTR_LESS_THAN;
    });
    std::vector<std::string> out;
    for (const std::wstring& name : names)
        out.push_back(narrow(name));
    return out;
}

bool hidden(const WIN32_FIND_DATAW& data) {
    return (data.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

class WindowsFolders : public Folders {
    std::string current() override {
        std::wstring path(GetCurrentDirectoryW(0, nullptr), L'\0');
        path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
        return tidy(narrow(path));
    }

    std::string currentOf(const std::string& drive) override {
        // "X:" alone names the drive's own current directory; one that is gone is replaced by the root.
        const bool known = std::ranges::any_of(
            drives(), [&](const std::string& other) { return equalIgnoringCase(other, drive); });
        if (!known) throw RunTimeError(errDeviceUnavailable);
        std::string path = fullPath(drive);
        if (isFolder(path)) return path;
        std::string root = upperCase(drive) + "\\";
        if (!isFolder(root)) throw RunTimeError(errDeviceUnavailable);
        return root;
    }

    std::string resolve(const std::string& base, const std::string& path) override {
        const bool absolute = path.starts_with("\\\\") || (path.size() > 1 && path[1] == ':');
        const std::string start = absolute ? "" : path.starts_with('\\') ? base.substr(0, 2) : base + "\\";
        std::string full = fullPath(start + path);
        if (!isFolder(full)) throw RunTimeError(errPathNotFound);
        return full;
    }

    std::vector<std::string> drives() override {
        std::vector<std::string> out;
        const DWORD present = GetLogicalDrives();
        for (int letter = 0; letter < 26; ++letter) {
            if ((present >> letter) & 1u)
                out.push_back(std::string(1, static_cast<char>('A' + letter)) + ":");
        }
        return out;
    }

    std::vector<std::string> subfolders(const std::string& path) override {
        return entries(path, [](const WIN32_FIND_DATAW& data) {
            const std::wstring name = data.cFileName;
            return (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && name != L"." && name != L".." &&
                   !hidden(data);
        });
    }

    std::vector<std::string> files(const std::string& path, const std::string& patterns) override {
        const std::wstring specs = wide(patterns);
        const win32::Late<decltype(&PathMatchSpecW)> matches(L"shlwapi.dll", "PathMatchSpecW");
        return entries(path, [&](const WIN32_FIND_DATAW& data) {
            return (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && !hidden(data) &&
                   matches(data.cFileName, specs.c_str()) != FALSE;
        });
    }
};

} // namespace

Folders& systemFolders() {
    static WindowsFolders folders;
    return folders;
}

} // namespace varno
