// Whole processes, from their start to their end: the sample engine on ten spans beside a program that does nothing,
// and varnotool's check of ten thousand files beside cat.
#include "benchmarks/processes.h"

namespace varno::benchmarks {
namespace {

namespace fs = std::filesystem;

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
