#include <windows.h>

#include <shellapi.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <iostream>
#include <memory>

#include "tool/console.h"
#include "win32/strings.h"

namespace varno::tool {

namespace {

struct LocalFreer {
    void operator()(wchar_t** memory) const { LocalFree(memory); }
};

} // namespace

// The narrow arguments have lost every letter that the user's code page lacks.
std::vector<std::string> utf8Arguments(int, char**) {
    int count = 0;
    const std::unique_ptr<wchar_t*, LocalFreer> values(CommandLineToArgvW(GetCommandLineW(), &count));
    std::vector<std::string> arguments;
    for (int i = 1; values && i < count; ++i)
        arguments.push_back(win32::narrow(values.get()[i]));
    return arguments;
}

Utf8Output::Utf8Output() : codePageBefore_(GetConsoleOutputCP()) {
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
}

Utf8Output::~Utf8Output() {
    std::cout.flush();
    std::cerr.flush();
    if (codePageBefore_ != 0) SetConsoleOutputCP(codePageBefore_);
}

} // namespace varno::tool
