// A case of ten spans from its bytes into the record and back, beside the same with C's sscanf and snprintf.
#include <benchmark/benchmark.h>

#include "base/text.h"
#include "benchmarks/plain_case.h"
#include "benchmarks/ten_spans.h"
#include "tests/support/byte_files.h"

namespace varno::benchmarks {
namespace {

PlainCase plainTenSpans() {
    PlainCase plain;
    readPlainly(fileOf(tenSpans()).c_str(), plain);
    return plain;
}

void readCase(benchmark::State& state) {
    const CaseFile ten = tenSpans();
    const Bytes bytes = fileOf(ten);
    if (plainTenSpans().values.lllast != ten.designCase.lllast)
        state.SkipWithError("the plain reader reads otherwise");
    for (auto _ : state)
        benchmark::DoNotOptimize(VARNO1::readDesignCase(SequentialText(bytes), ten.designCase));
}
BENCHMARK(readCase);

void readCasePlainly(benchmark::State& state) {
    const Bytes bytes = fileOf(tenSpans());
    for (auto _ : state) {
        PlainCase plain;
        readPlainly(bytes.c_str(), plain);
        benchmark::DoNotOptimize(plain);
    }
}
BENCHMARK(readCasePlainly);

void writeCase(benchmark::State& state) {
    const CaseFile ten = tenSpans();
    if (writtenPlainly(plainTenSpans()) != fileOf(ten))
        state.SkipWithError("the plain writer writes otherwise");
    for (auto _ : state)
        benchmark::DoNotOptimize(VARNO1::writtenDesignCase(ten));
}
BENCHMARK(writeCase);

void writeCasePlainly(benchmark::State& state) {
    const PlainCase plain = plainTenSpans();
    for (auto _ : state)
        benchmark::DoNotOptimize(writtenPlainly(plain));
}
BENCHMARK(writeCasePlainly);

} // namespace
} // namespace varno::benchmarks
