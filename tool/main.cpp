#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "base/file_calls.h"
#include "base/run_time_error.h"
#include "tool/command_line.h"

#ifdef _WIN32
#include <windows.h>

#include <shellapi.h>

#include <fcntl.h>
#include <io.h>

#include <memory>

#include "win32/strings.h"
#else
#include <unistd.h>
#endif

namespace {

#ifdef _WIN32

struct LocalFreer {
    void operator()(wchar_t** memory) const { LocalFree(memory); }
};

// The arguments without the program's name, as UTF-8: the narrow ones have lost every letter that the user's code page
// lacks.
std::vector<std::string> utf8Arguments(int, char**) {
    int count = 0;
    const std::unique_ptr<wchar_t*, LocalFreer> values(CommandLineToArgvW(GetCommandLineW(), &count));
    std::vector<std::string> arguments;
    for (int i = 1; values && i < count; ++i)
        arguments.push_back(varno::win32::narrow(values.get()[i]));
    return arguments;
}

// For as long as it lives, what is read from the standard input and written to the standard output passes byte for byte,
// and a console takes it for UTF-8.
class Utf8Streams {
  public:
    Utf8Streams() {
        _setmode(_fileno(stdin), _O_BINARY);
        _setmode(_fileno(stdout), _O_BINARY);
        SetConsoleOutputCP(CP_UTF8);
    }
    ~Utf8Streams() {
        std::cout.flush();
        std::cerr.flush();
        if (codePageBefore_ != 0) SetConsoleOutputCP(codePageBefore_);
    }
    Utf8Streams(const Utf8Streams&) = delete;
    Utf8Streams& operator=(const Utf8Streams&) = delete;

  private:
    const UINT codePageBefore_ = GetConsoleOutputCP();
};

bool errorsAreWatched() {
    return _isatty(_fileno(stderr)) != 0;
}

#else

std::vector<std::string> utf8Arguments(int count, char** values) {
    return count > 0 ? std::vector<std::string>(values + 1, values + count) : std::vector<std::string>();
}

bool errorsAreWatched() {
    return ::isatty(STDERR_FILENO) != 0;
}

// What is read and written passes as it is.
struct Utf8Streams {};

#endif

} // namespace

int main(int argc, char** argv) {
    using namespace varno;
    try {
        [[maybe_unused]] const Utf8Streams streams{};
        const int code =
            tool::runTool(utf8Arguments(argc, argv), {systemFileCalls(), std::cin, std::cout, std::cerr,
                                                      tool::systemEngines(), errorsAreWatched()});
        // Output that did not arrive (a full disk, a closed pipe) is not a success.
        if (!std::cout.flush()) throw RunTimeError(errDeviceIo);
        return code;
    } catch (const RunTimeError& error) {
        return tool::tellRunTimeError(error, std::cerr);
    } catch (const std::exception& error) {
        std::cerr << "varnotool: " << error.what() << '\n';
        return 1;
    }
}
