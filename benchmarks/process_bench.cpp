// Whole processes, from their start to their end: the sample engine on ten spans beside a program that does nothing,
// and varnotool's check of ten thousand files beside cat.
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace varno::benchmarks {
namespace {

namespace fs = std::filesystem;

// A new folder, the current one as long as this lives.
class WorkFolder {
  public:
    WorkFolder()
        : before_(fs::current_path()),
          folder_(fs::temp_directory_path() / ("varno-bench-" + std::to_string(getpid()))) {
        fs::create_directories(folder_);
        fs::current_path(folder_);
    }
    ~WorkFolder() {
        fs::current_path(before_);
        fs::remove_all(folder_);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

  private:
    fs::path before_, folder_;
};

// A program, found on the PATH, with what it writes thrown away.
class Program {
  public:
    explicit Program(std::vector<std::string> words) : words_(std::move(words)) {
        for (std::string& word : words_)
            arguments_.push_back(word.data());
        arguments_.push_back(nullptr);
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    }
    ~Program() { posix_spawn_file_actions_destroy(&actions_); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Its exit code, -1 when it did not come to one.
    int run() {
        pid_t process = 0;
        int status = 0;
        if (posix_spawnp(&process, arguments_[0], &actions_, nullptr, arguments_.data(), environ) != 0)
            return -1;
        if (waitpid(process, &status, 0) != process || !WIFEXITED(status)) return -1;
        return WEXITSTATUS(status);
    }

  private:
    std::vector<std::string> words_;
    std::vector<char*> arguments_;
    posix_spawn_file_actions_t actions_{};
};

void measure(benchmark::State& state, std::vector<std::string> words) {
    Program program(std::move(words));
    for (auto _ : state) {
        if (program.run() != 0) state.SkipWithError("the program failed");
    }
}

void engineProcess(benchmark::State& state) {
    const WorkFolder folder;
    fs::copy_file(SAMPLES_PATH "/TIOFACK.IND", "~indata~.tmp");
    measure(state, {VARNOWB_PATH});
    if (!fs::exists("TIOFACK.res") || !fs::exists("momk.dat")) state.SkipWithError("files are missing");
}
BENCHMARK(engineProcess)->Unit(benchmark::kMicrosecond)->UseRealTime();

void emptyProcess(benchmark::State& state) {
    measure(state, {"true"});
}
BENCHMARK(emptyProcess)->Unit(benchmark::kMicrosecond)->UseRealTime();

constexpr int files = 10'000;

// The program and the names of that many copies of a case.
std::vector<std::string> overFiles(std::vector<std::string> words) {
    for (int i = 0; i < files; ++i) {
        words.push_back(std::to_string(i) + ".IND");
        fs::copy_file(SAMPLES_PATH "/TIOFACK.IND", words.back());
    }
    return words;
}

void checkFiles(benchmark::State& state) {
    const WorkFolder folder;
    measure(state, overFiles({VARNOTOOL_PATH, "check"}));
}
BENCHMARK(checkFiles)->Unit(benchmark::kMillisecond)->UseRealTime();

void catFiles(benchmark::State& state) {
    const WorkFolder folder;
    measure(state, overFiles({"cat"}));
}
BENCHMARK(catFiles)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace varno::benchmarks
