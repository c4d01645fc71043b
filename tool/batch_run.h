#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "base/open_file.h"
#include "tool/case_folder.h"
#include "tool/engine_host.h"
#include "tool/progress.h"

namespace varno::tool {

/// How the cases are calculated.
struct BatchOptions {
    std::vector<std::string> engine; ///< program and arguments
    std::filesystem::path folder;    ///< in which every case gets its own
    int jobs = 1;                    ///< at once
    Milliseconds timeout{0};         ///< for one case, 0: as long as it takes
};

struct BatchSummary {
    struct Failure {
        std::string file;
        std::string reason; ///< a Swedish sentence
    };
    int calculated = 0;
    int there = 0; ///< the same input had been calculated before
    std::vector<Failure> failures;
    bool interrupted = false;
};

/// Calculates many cases without a window, by the contract of "Kör...": the engine is started without arguments of its
/// own in a folder that holds the case as "~indata~.tmp". What it ends with is not looked at: a case is calculated when
/// the result file and the moment curves are there and the engine was not ended from outside.
class BatchRun {
  public:
    BatchRun(FileOpener& opener, EngineHost& host, BatchOptions options, Progress& progress)
        : opener_(opener), host_(host), options_(std::move(options)), progress_(progress) {}

    /// \throws InputError when the engine cannot be started, filesystem_error when a folder cannot be made. No engine is
    /// left running and no half result then.
    BatchSummary run(const std::vector<std::string>& files);

  private:
    struct Job {
        std::string file;
        CaseFolder folder;
        Milliseconds until;
    };

    void begin(const std::string& file);
    int start(const CaseFolder& folder);
    void takeEnded();
    void judge(Job& job, const EngineHost::Ended& ended);
    void endLate();
    void endAll();
    std::optional<Milliseconds> longestWait() const;
    void fail(const std::string& file, const std::string& reason);

    FileOpener& opener_;
    EngineHost& host_;
    const BatchOptions options_;
    Progress& progress_;
    std::map<int, Job> jobs_;
    BatchSummary summary_;
};

/// What a case's folder is called: the name of its file without the extension.
std::string folderNameOf(const std::string& file);

/// The words of a command line; quotation marks keep words with blanks together. A word that names a file as seen from
/// here names it from everywhere.
std::vector<std::string> engineWords(const std::string& commandLine);

} // namespace varno::tool
