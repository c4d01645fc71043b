#pragma once

#include "base/process_starter.h"

namespace varno::win32 {

/// Starts a process with CreateProcessA and waits for it without a time-out. The text is converted to the
/// ANSI code page; a character that it lacks makes the start fail, as a missing program does.
class ProcessRunner : public ProcessStarter {
  public:
    std::uint32_t ExecCmd(const std::string& commandLine) override;
};

} // namespace varno::win32
