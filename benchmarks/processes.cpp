#include "benchmarks/processes.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varno::benchmarks {

namespace fs = std::filesystem;

WorkFolder::WorkFolder()
    : before_(fs::current_path()),
      folder_(fs::temp_directory_path() / ("varno-bench-" + std::to_string(getpid()))) {
    fs::create_directories(folder_);
    fs::current_path(folder_);
}

WorkFolder::~WorkFolder() {
    fs::current_path(before_);
    fs::remove_all(folder_);
}

Program::Program(std::vector<std::string> words) : words_(std::move(words)) {
    for (std::string& word : words_)
        arguments_.push_back(word.data());
    arguments_.push_back(nullptr);
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
}

Program::~Program() {
    posix_spawn_file_actions_destroy(&actions_);
}

int Program::run() {
    pid_t process = 0;
    int status = 0;
    if (posix_spawnp(&process, arguments_[0], &actions_, nullptr, arguments_.data(), environ) != 0) return -1;
    if (waitpid(process, &status, 0) != process || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}

void measure(benchmark::State& state, std::vector<std::string> words) {
    Program program(std::move(words));
    for (auto _ : state) {
        if (program.run() != 0) state.SkipWithError("the program failed");
    }
}

} // namespace varno::benchmarks
