#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "base/file_calls.h"
#include "base/run_time_error.h"
#include "tool/engine_host.h"

namespace varno::tool {

/// What varnotool runs on.
struct Machine {
    FileCalls& files;
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    EngineHost& engines;
    bool terminal = false; ///< `err` is one
};

/// Runs varnotool with these arguments (UTF-8, without the program's name) and gives its exit code (`ExitCode`).
int runTool(const std::vector<std::string>& arguments, const Machine& machine);

/// Says what happened, what to do and, on the last line, "run-time error N: text", and gives the exit code that goes
/// with it.
int tellRunTimeError(const RunTimeError& error, std::ostream& err);

} // namespace varno::tool
