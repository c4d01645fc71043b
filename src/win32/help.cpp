#include "win32/help.h"

#include <shellapi.h>

#include "win32/late.h"
#include "win32/strings.h"

namespace varno::win32 {

namespace {

// Windows from Vista on has a winhlp32.exe that only tells that it is not there any more, and WinHelp reports success
// all the same. That program is about 10 KB, the viewer some hundred.
constexpr DWORD leastViewerSize = 64 * 1024;

bool hasViewer() {
    wchar_t folder[MAX_PATH] = L"";
    if (GetWindowsDirectoryW(folder, MAX_PATH) == 0) return false;
    WIN32_FILE_ATTRIBUTE_DATA data{};
    const std::wstring path = std::wstring(folder) + L"\\winhlp32.exe";
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == 0) return false;
    return data.nFileSizeHigh > 0 || data.nFileSizeLow >= leastViewerSize;
}

// The path in the letters of the ANSI functions; empty when it has others.
std::string ansiPath(const std::wstring& path) {
    BOOL lost = FALSE;
    const std::string out = ansi(path, WC_NO_BEST_FIT_CHARS, &lost);
    return lost != FALSE ? std::string() : out;
}

std::wstring shortPath(const std::wstring& path) {
    wchar_t out[MAX_PATH] = L"";
    const DWORD length = GetShortPathNameW(path.c_str(), out, MAX_PATH);
    return length == 0 || length >= MAX_PATH ? path : std::wstring(out, length);
}

} // namespace

bool WindowsHelp::exists(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(wide(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::string WindowsHelp::programFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::string program = narrow(path);
    return program.substr(0, program.rfind('\\'));
}

bool WindowsHelp::winHelp(const std::string& file, unsigned context) {
    if (!hasViewer()) return false;
    // The viewer's own interface is ANSI.
    const std::wstring path = wide(file);
    std::string name = ansiPath(path);
    if (name.empty()) name = ansiPath(shortPath(path));
    return !name.empty() && WinHelpA(owner_, name.c_str(), HELP_CONTEXT, context) != 0;
}

void WindowsHelp::quitWinHelp(const std::string& file) {
    WinHelpW(owner_, wide(file).c_str(), HELP_QUIT, 0);
}

bool WindowsHelp::openDocument(const std::string& path) {
    const Late<decltype(&ShellExecuteW)> execute(L"shell32.dll", "ShellExecuteW");
    const auto result = reinterpret_cast<INT_PTR>(
        execute(owner_, L"open", wide(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    return result > 32;
}

} // namespace varno::win32
