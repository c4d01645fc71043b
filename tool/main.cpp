#include <exception>
#include <iostream>

#include "base/file_calls.h"
#include "base/run_time_error.h"
#include "tool/command_line.h"
#include "tool/console.h"

int main(int argc, char** argv) {
    using namespace varno;
    try {
        const tool::Utf8Output output;
        const int code =
            tool::runTool(tool::utf8Arguments(argc, argv), systemFileCalls(), std::cout, std::cerr);
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
