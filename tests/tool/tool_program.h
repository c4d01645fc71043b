#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <sys/wait.h>

#include "support/temporary_folder.h"

namespace varno::testing {

/// The real varnotool, driven through a shell as a user would.
class ToolProgram : public ::testing::Test {
  protected:
    /// Runs a script in the folder, where $VARNOTOOL and $VARNOWB are the programs. Gives its exit code.
    int shell(const std::string& script) {
        folder.write("script", script);
        const std::string command =
            "cd '" + folder.path(".") + "' && VARNOTOOL='" VARNOTOOL "' VARNOWB='" VARNOWB "' bash ./script";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    /// Runs varnotool; the arguments go through the shell.
    int run(const std::string& arguments) { return shell("\"$VARNOTOOL\" " + arguments + " >out 2>err"); }
    std::string quoted(const std::string& name) const { return "'" + folder.path(name) + "'"; }

    TemporaryFolder folder;
};

} // namespace varno::testing
