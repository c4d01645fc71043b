// A result file as the viewer takes it, beside a plain read and copy of the same bytes, and its pages, beside the same
// with C's streams.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include "results/result_text.h"
#include "tests/support/byte_files.h"

namespace varno::benchmarks {
namespace {

// A line of a result file with many small DOS letters.
constexpr std::string_view line = "  st\x94"
                                  "dmoment p\x86 tv\x86 f\x84lt              -12.34      56.78\r\n";

Bytes linesOf(std::int64_t count) {
    Bytes text;
    for (std::int64_t i = 0; i < count; ++i)
        text += line;
    return text;
}

// A result file on the disk, as long as this lives.
class ResultFile {
  public:
    explicit ResultFile(std::int64_t lines)
        : path_(std::filesystem::temp_directory_path() / "varno-bench.res") {
        const auto output = systemFileCalls().create(path_.string());
        output->write(linesOf(lines));
        output->close();
    }
    ~ResultFile() { std::filesystem::remove(path_); }
    ResultFile(const ResultFile&) = delete;
    ResultFile& operator=(const ResultFile&) = delete;

    std::string path() const { return path_.string(); }

  private:
    std::filesystem::path path_;
};

void readResult(benchmark::State& state) {
    const ResultFile result(state.range(0));
    for (auto _ : state) {
        File file(systemFileCalls(), result.path(), FileMode::input, 0, 1);
        benchmark::DoNotOptimize(VARNO1::readResultText(file));
    }
}
BENCHMARK(readResult)->RangeMultiplier(10)->Range(1000, 1'000'000)->Unit(benchmark::kMicrosecond);

void readAndCopy(benchmark::State& state) {
    const ResultFile result(state.range(0));
    for (auto _ : state) {
        const Bytes read = systemFileCalls().readAll(result.path());
        Bytes copy(read);
        benchmark::DoNotOptimize(copy.data());
    }
}
BENCHMARK(readAndCopy)->RangeMultiplier(10)->Range(1000, 1'000'000)->Unit(benchmark::kMicrosecond);

void splitPages(benchmark::State& state) {
    ByteFiles memory;
    memory.content[""] = linesOf(state.range(0));
    for (auto _ : state) {
        File file(memory, "", FileMode::input, 0, 1);
        benchmark::DoNotOptimize(VARNO1::readResultPages(file));
    }
}
BENCHMARK(splitPages)->DenseRange(70, 420, 70);

void splitPagesPlainly(benchmark::State& state) {
    Bytes bytes = linesOf(state.range(0));
    for (auto _ : state) {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(
            fmemopen(bytes.data(), bytes.size(), "r"), &std::fclose);
        std::vector<Bytes> pages;
        char text[256];
        for (int lines = 0; std::fscanf(stream.get(), "%255[^\r\n]%*2[\r\n]", text) == 1; ++lines) {
            if (lines % 70 == 0) pages.emplace_back();
            pages.back() += "\r\n";
            pages.back() += text;
        }
        benchmark::DoNotOptimize(pages.data());
    }
}
BENCHMARK(splitPagesPlainly)->DenseRange(70, 420, 70);

} // namespace
} // namespace varno::benchmarks
