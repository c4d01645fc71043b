// varno_kill_saves [TIMES]: starts varno_save_loop, ends it at a random moment within 9 ms of its saving, and looks at
// what stands under the name of the case. Prints the figures; a case that is missing or not whole is a failure.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "save_loop.h"
#include "win32/unique.h"

namespace {

namespace fs = std::filesystem;
using varno::win32::UniqueHandle;

constexpr DWORD patience = 20'000;
constexpr int longestMicroseconds = 9'000;

struct Figures {
    int whole = 0;
    int missing = 0;
    int partial = 0;
    int ownEnd = 0; ///< the program ended by itself: a save failed
    int leftBehind = 0;
};

// Sleep knows nothing shorter than its tick.
void waitMicroseconds(long long microseconds) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER begin;
    LARGE_INTEGER now;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    do {
        QueryPerformanceCounter(&now);
    } while ((now.QuadPart - begin.QuadPart) * 1'000'000 / frequency.QuadPart < microseconds);
}

UniqueHandle readyEventOf(const PROCESS_INFORMATION& process) {
    // The event is there when the program has come so far as to make it.
    for (DWORD waited = 0; waited < patience; waited += 5) {
        const std::wstring name = varno::kill::readyEvent(process.dwProcessId);
        if (const HANDLE event = OpenEventW(SYNCHRONIZE, FALSE, name.c_str())) return UniqueHandle(event);
        Sleep(5);
    }
    return nullptr;
}

// False when the program ended before it was ended.
bool killOneSave(const fs::path& loop, const fs::path& file, int microseconds) {
    std::wstring line = L"\"" + loop.wstring() + L"\" \"" + file.wstring() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return false;
    const UniqueHandle handle(process.hProcess);
    const UniqueHandle thread(process.hThread);
    const UniqueHandle ready = readyEventOf(process);
    const bool saving = ready && WaitForSingleObject(ready.get(), patience) == WAIT_OBJECT_0;
    waitMicroseconds(microseconds);
    const bool running = WaitForSingleObject(handle.get(), 0) == WAIT_TIMEOUT;
    TerminateProcess(handle.get(), 99);
    WaitForSingleObject(handle.get(), patience);
    return saving && running;
}

varno::Bytes contentOf(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void look(const fs::path& folder, const fs::path& file, Figures& figures) {
    if (!fs::exists(file)) {
        ++figures.missing;
    } else if (const auto bytes = contentOf(file);
               bytes == varno::kill::wholeCase(false) || bytes == varno::kill::wholeCase(true)) {
        ++figures.whole;
    } else {
        ++figures.partial;
    }
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path() == file) continue;
        ++figures.leftBehind;
        fs::remove(entry.path());
    }
}

fs::path programFolder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

} // namespace

int main(int count, char** arguments) {
    const int times = count > 1 ? std::atoi(arguments[1]) : 200;
    const fs::path folder =
        fs::temp_directory_path() / ("varno-kill-" + std::to_string(GetCurrentProcessId()));
    fs::create_directory(folder);
    const fs::path file = folder / "FALL.IND";
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<int> moment(0, longestMicroseconds);

    Figures figures;
    for (int i = 0; i < times; ++i) {
        if (!killOneSave(programFolder() / "varno_save_loop.exe", file, moment(random))) ++figures.ownEnd;
        look(folder, file, figures);
    }
    fs::remove_all(folder);
    std::printf(
        "FIGURE: %d saves killed: %d cases whole, %d missing, %d not whole; %d drafts left beside them; %d "
        "saves failed\n",
        times, figures.whole, figures.missing, figures.partial, figures.leftBehind, figures.ownEnd);
    return times > 0 && figures.whole == times && figures.ownEnd == 0 ? 0 : 1;
}
