#pragma once

#include <string>

namespace varno {

/// What showing help needs of the system. Paths are UTF-8.
class HelpSystem {
  public:
    virtual ~HelpSystem() = default;
    virtual bool exists(const std::string& path) = 0;
    /// The folder of the running program, without a backslash at the end.
    virtual std::string programFolder() = 0;
    /// Shows a topic of a .HLP file; false where Windows has no viewer for it.
    virtual bool winHelp(const std::string& file, unsigned context) = 0;
    /// Closes the viewer that `winHelp` opened, unless another program uses it.
    virtual void quitWinHelp(const std::string& file) = 0;
    /// Opens a file in the program that the user has for it; false when there is none.
    virtual bool openDocument(const std::string& path) = 0;
};

} // namespace varno
