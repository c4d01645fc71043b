#include "shell/rescue_window.h"

#include <shlobj.h>

#include <array>

#include "win32/late.h"
#include "win32/strings.h"
#include "win32/unique.h"

namespace varno {

namespace {

using win32::narrow;
using win32::wide;

struct FileLock : RescueLocks::Lock {
    explicit FileLock(HANDLE file) : file_(file) {}
    win32::UniqueHandle file_;
};

std::wstring localFolder() {
    // The variable first: it is what a user or an administrator can set.
    std::array<wchar_t, MAX_PATH> text{};
    const DWORD length =
        GetEnvironmentVariableW(L"LOCALAPPDATA", text.data(), static_cast<DWORD>(text.size()));
    if (length > 0 && length < text.size()) return text.data();
    const win32::Late<decltype(&SHGetFolderPathW)> folder(L"shell32.dll", "SHGetFolderPathW");
    if (folder(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, text.data()) == S_OK)
        return text.data();
    return {};
}

} // namespace

std::unique_ptr<RescueLocks::Lock> WindowsRescueLocks::take(const std::string& path) {
    const HANDLE file = CreateFileW(wide(path + ".las").c_str(), GENERIC_WRITE | DELETE, 0, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    return std::make_unique<FileLock>(file);
}

std::chrono::seconds WindowsRescueClock::running() {
    return std::chrono::seconds(GetTickCount64() / 1000);
}

std::string WindowsRescueClock::dateAndTime() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return win32::dateAndTime(now);
}

std::string rescueFolder() {
    const std::wstring local = localFolder();
    if (local.empty()) return {};
    const std::wstring folder = local + L"\\Varno";
    if (!CreateDirectoryW(folder.c_str(), nullptr) && GetLastError() != ERROR_ALREADY_EXISTS) return {};
    return narrow(folder);
}

std::string rescueInstance() {
    FILETIME started{};
    FILETIME ignored{};
    GetProcessTimes(GetCurrentProcess(), &started, &ignored, &ignored, &ignored);
    const std::uint64_t time = std::uint64_t{started.dwHighDateTime} << 32 | started.dwLowDateTime;
    return std::to_string(GetCurrentProcessId()) + "-" + std::to_string(time);
}

RescueWindow::RescueWindow(win32::WindowHost& host, Rescue& rescue) : Window(host), rescue_(rescue) {
    create(L"VarnoRescue", "", WS_POPUP, WS_EX_TOOLWINDOW, nullptr, nullptr, {0, 0, 0, 0});
    constexpr auto interval = std::chrono::milliseconds(Rescue::lookInterval);
    SetTimer(handle(), 1, static_cast<UINT>(interval.count()), nullptr);
}

LRESULT RescueWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER) {
        rescue_.look();
        return 0;
    }
    if (message == WM_ENDSESSION && wParam != 0) rescue_.sessionEnds();
    return defaultProc(message, wParam, lParam);
}

} // namespace varno
