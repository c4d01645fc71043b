#pragma once

#include <cstdint>
#include <string>

namespace varno {

/// Starts a process and waits until it has ended.
class ProcessStarter {
  public:
    virtual ~ProcessStarter() = default;
    /// Runs a command line (UTF-8) in the current directory and with the environment of the program, and
    /// gives the exit code. Nothing tells a process that could not be started; its value is then 0xFFFFFFFF.
    virtual std::uint32_t ExecCmd(const std::string& commandLine) = 0;
};

/// Windows' own, by CreateProcessA: the text is converted to the ANSI code page, and a character that it lacks makes
/// the start fail, as a missing program does.
ProcessStarter& systemProcesses();

} // namespace varno
