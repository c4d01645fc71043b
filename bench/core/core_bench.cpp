// What the program does with whole files: the result text for any number of lines, and a case to and from its bytes.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "base/numbers.h"
#include "model/design_input_file.h"
#include "model/reference_tables.h"
#include "results/result_text.h"

namespace varno {
namespace {

// A line of a result file with one of each small DOS letter.
const Bytes line = "  st\x94"
                   "dmoment p\x86 tv\x86 f\x84lt              -12.34      56.78";

void resultText(benchmark::State& state) {
    for (auto _ : state) {
        RepairedText text;
        for (std::int64_t i = 0; i < state.range(0); ++i)
            text.appendLine(line);
        benchmark::DoNotOptimize(text.bytes().data());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(resultText)->RangeMultiplier(8)->Range(64, 32768)->Complexity(benchmark::oN);

// The rule as it is stated, for comparison: the whole text is repaired after every line.
void resultTextRepairedAsAWhole(benchmark::State& state) {
    for (auto _ : state) {
        Bytes text;
        for (std::int64_t i = 0; i < state.range(0); ++i)
            text = VARNO1::fromOemLetters(text + "\r\n" + line);
        benchmark::DoNotOptimize(text.data());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(resultTextRepairedAsAWhole)->RangeMultiplier(8)->Range(64, 4096)->Complexity(benchmark::oNSquared);

void formatCell(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(formatNumber(12.345f, "##0.000"));
}
BENCHMARK(formatCell);

void parseCell(benchmark::State& state) {
    const std::string cell = "12.345 ";
    for (auto _ : state)
        benchmark::DoNotOptimize(VARNO1::parseNumber(cell));
}
BENCHMARK(parseCell);

// Ten spans, written to the disk and read back.
void writeAndReadCase(benchmark::State& state) {
    const std::string path = (std::filesystem::temp_directory_path() / "varno-bench.IND").string();
    CaseFile ten{{}, "BENCH", "Tio fack"};
    presetDesignCase(ten.designCase);
    ten.designCase.nfack = maxSpans;
    ten.designCase.loadCode = 3;
    for (auto _ : state) {
        File output(systemFileCalls(), path, FileMode::output, 0, 1);
        VARNO1::writeDesignCase(output, ten);
        output.close();
        File input(systemFileCalls(), path, FileMode::input, 0, 1);
        benchmark::DoNotOptimize(VARNO1::readDesignCase(input, ten.designCase));
    }
    std::filesystem::remove(path);
}
BENCHMARK(writeAndReadCase);

} // namespace
} // namespace varno
