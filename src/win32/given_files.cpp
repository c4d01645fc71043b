#include "win32/given_files.h"

#include <shlobj.h>

#include "win32/late.h"
#include "win32/strings.h"

namespace varno::win32 {

namespace {

constexpr const wchar_t* library = L"shell32.dll";

} // namespace

std::string fullPath(const std::string& path) {
    const std::wstring text = wide(path);
    std::wstring full(GetFullPathNameW(text.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(text.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full.empty() ? path : narrow(full);
}

std::string pathOnDisk(const std::string& path) {
    const std::string full = fullPath(path);
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(wide(full).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return full;
    FindClose(search);
    return full.substr(0, full.rfind('\\') + 1) + narrow(found.cFileName);
}

CommandLine commandLine(const wchar_t* arguments) {
    CommandLine line;
    if (*arguments == L'\0') return line;
    int count = 0;
    const Late<decltype(&CommandLineToArgvW)> split(library, "CommandLineToArgvW");
    LPWSTR* const words = split(GetCommandLineW(), &count);
    // The first is the program.
    int i = 1;
    if (words != nullptr && count > 2 &&
        CompareStringOrdinal(words[1], -1, L"/work", -1, TRUE) == CSTR_EQUAL) {
        line.folder = fullPath(narrow(words[2]));
        i = 3;
    }
    for (; words != nullptr && i < count; ++i)
        line.files.push_back(fullPath(narrow(words[i])));
    LocalFree(words);
    return line;
}

std::vector<std::string> filesDropped(HDROP drop) {
    std::vector<std::string> files;
    const Late<decltype(&DragQueryFileW)> query(library, "DragQueryFileW");
    const UINT count = query(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(query(drop, i, nullptr, 0) + 1, L'\0');
        path.resize(query(drop, i, path.data(), static_cast<UINT>(path.size())));
        files.push_back(narrow(path));
    }
    Late<decltype(&DragFinish)>(library, "DragFinish")(drop);
    return files;
}

void tellRecentDocument(const std::string& path) {
    Late<decltype(&SHAddToRecentDocs)>(library, "SHAddToRecentDocs")(SHARD_PATHW, wide(path).c_str());
}

} // namespace varno::win32
