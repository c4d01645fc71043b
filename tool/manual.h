#pragma once

#include <string>

// What is made of the table of commands beside the command line itself.

namespace varno::tool {

/// The manual page varnotool(1), for man.
std::string manualPage();

/// The completion of commands, options and file names, for bash.
std::string bashCompletion();

} // namespace varno::tool
