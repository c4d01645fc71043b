// The sample calculation engine varnowb. Started without arguments it calculates the case in the current folder.
#include <cstdio>
#include <ctime>
#include <exception>
#include <string>
#include <string_view>

#include "engine/result_text.h"
#include "engine/run.h"

#ifdef _WIN32
#include <windows.h>

#include "win32/strings.h"
#include "win32/unique.h"
#endif

namespace {

#ifdef _WIN32

// A program of the windows subsystem has no console. When it was started from one it borrows that; when its output is
// sent to a file or another program it writes UTF-8 there.
void print(std::string_view utf8) {
    DWORD written = 0;
    const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    const DWORD kind = out != nullptr && out != INVALID_HANDLE_VALUE ? GetFileType(out) : FILE_TYPE_UNKNOWN;
    if (kind == FILE_TYPE_DISK || kind == FILE_TYPE_PIPE) {
        WriteFile(out, utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr);
        return;
    }
    if (!AttachConsole(ATTACH_PARENT_PROCESS)) return;
    const varno::win32::UniqueHandle console(CreateFileW(
        L"CONOUT$", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
    // The prompt has already been printed again: start below it.
    const std::wstring text = L"\r\n" + varno::win32::wide(utf8);
    WriteConsoleW(console.get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

#else

void print(std::string_view utf8) {
    std::fwrite(utf8.data(), 1, utf8.size(), stdout);
}

#endif

std::string now() {
    const std::time_t time = std::time(nullptr);
    char text[32];
    text[std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", std::localtime(&time))] = '\0';
    return text;
}

} // namespace

int main(int argc, char** argv) {
    using namespace varno;
    if (argc > 1) {
        const std::string_view argument = argv[1];
        print(engine::helpText());
        return argument == "--help" || argument == "-h" || argument == "/?" ? engine::calculated
                                                                            : engine::noCase;
    }
    try {
        return engine::run(systemFileCalls(), now());
    } catch (const std::exception&) {
        return engine::notWritten;
    }
}
