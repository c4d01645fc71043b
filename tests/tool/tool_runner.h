#pragma once

#include <gtest/gtest.h>

#include <sstream>

#include "support/case_files.h"
#include "support/memory_files.h"
#include "tool/command_line.h"
#include "tool/fake_engines.h"

namespace varno::testing {

/// varnotool on a disk in memory.
class ToolRunner : public ::testing::Test {
  protected:
    int run(const std::vector<std::string>& arguments, const Bytes& standardInput = "") {
        std::istringstream in(standardInput);
        out.str("");
        err.str("");
        return tool::runTool(arguments, {files, in, out, err, engines});
    }
    /// Puts the sample case, changed, on the disk.
    template <typename Change>
    void put(const std::string& path, Change change) {
        CaseFile caseFile = sampleCase();
        change(caseFile.designCase);
        files.content[path] = writtenCase(caseFile);
    }

    MemoryFiles files;
    std::ostringstream out;
    std::ostringstream err;
    FakeEngines engines;
};

} // namespace varno::testing
