#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>
#include <spawn.h>
#include <string>
#include <vector>

namespace varno::benchmarks {

/// A new folder, the current one as long as this lives.
class WorkFolder {
  public:
    WorkFolder();
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

  private:
    std::filesystem::path before_, folder_;
};

/// A program, found on the PATH, with what it writes thrown away.
class Program {
  public:
    explicit Program(std::vector<std::string> words);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Its exit code, -1 when it did not come to one.
    int run();

  private:
    std::vector<std::string> words_;
    std::vector<char*> arguments_;
    posix_spawn_file_actions_t actions_{};
};

/// Runs a program from its start to its end. One that ends with anything but 0 is an error.
void measure(benchmark::State& state, std::vector<std::string> words);

} // namespace varno::benchmarks
