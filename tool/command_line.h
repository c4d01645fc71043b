#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "base/file_calls.h"
#include "base/run_time_error.h"

namespace varno::tool {

/// Runs varnotool with these arguments (UTF-8, without the program's name). The exit code: 0 done, 1 a
/// run-time error (told on `err`), 2 wrong usage (explained on `err`).
int runTool(const std::vector<std::string>& arguments, FileCalls& calls, std::ostream& out,
            std::ostream& err);

/// Prints "run-time error N: text", on the next line the file that it is about, and gives the exit code that goes with it.
int tellRunTimeError(const RunTimeError& error, std::ostream& err);

} // namespace varno::tool
