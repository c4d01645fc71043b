// The sample calculation engine varnowb. Started without arguments it calculates the case in the current
// folder.
#include "engine/result_text.h"
#include "engine/run.h"

#include <cstdio>
#include <exception>
#include <string_view>

#ifdef _WIN32
#include <string>
#include <windows.h>
#endif

namespace {

#ifdef _WIN32

// A program of the windows subsystem has no console. When it was started from one it borrows that; when its
// output is sent to a file or another program it writes UTF-8 there.
void print(std::string_view utf8) {
    DWORD written = 0;
    const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    const DWORD kind = out != nullptr && out != INVALID_HANDLE_VALUE ? GetFileType(out) : FILE_TYPE_UNKNOWN;
    if (kind == FILE_TYPE_DISK || kind == FILE_TYPE_PIPE) {
        WriteFile(out, utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr);
        return;
    }
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
    const HANDLE console = CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                       OPEN_EXISTING, 0, nullptr);
    if (console == INVALID_HANDLE_VALUE) return;
    // The prompt has already been printed again: start below it.
    std::string text{"\r\n"};
    text += utf8;
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int used = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length);
    WriteConsoleW(console, wide.data(), static_cast<DWORD>(used), &written, nullptr);
    CloseHandle(console);
}

#else

void print(std::string_view utf8) {
    std::fwrite(utf8.data(), 1, utf8.size(), stdout);
}

#endif

} // namespace

int main(int argc, char** argv) {
    if (argc > 1) {
        const std::string_view argument = argv[1];
        print(varnowb::helpText());
        return argument == "--help" || argument == "-h" || argument == "/?" ? varnowb::kCalculated
                                                                            : varnowb::kNoCase;
    }
    try {
        return varnowb::run();
    } catch (const std::exception&) {
        return varnowb::kNotWritten;
    }
}
