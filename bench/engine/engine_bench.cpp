// The sample engine's calculation by number of spans (every pattern of variable load, 2^n), and the writing
// of the longest moment curve file.
#include "engine/envelope.h"
#include "engine/moment_file.h"

#include <benchmark/benchmark.h>

namespace {

struct Example {
    varno::engine::Beam beam;
    varno::engine::DesignLoads loads;
    std::vector<double> upl;
};

Example example(std::size_t spans) {
    Example e;
    e.beam.konsv = 1.2;
    e.beam.konsh = 0.8;
    for (std::size_t i = 0; i < spans; ++i) {
        e.beam.spv.push_back(4.5 + 0.1 * static_cast<double>(i));
        e.loads.permanent.push_back(3);
        e.loads.variable.push_back(2.5);
    }
    e.loads.lines = {{0.5, 5}, {2, 10}, {3, 10}, {4, 12}, {5, 8}};
    e.upl.assign(spans + 1, 0.1);
    e.upl.front() = e.upl.back() = 0;
    return e;
}

void allPatterns(benchmark::State& state) {
    const auto e = example(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(varno::engine::envelope(e.beam, e.loads, e.upl));
}
BENCHMARK(allPatterns)->DenseRange(1, 10)->Unit(benchmark::kMicrosecond);

void momentFileOfTenSpans(benchmark::State& state) {
    const auto e = example(10);
    const auto result = varno::engine::envelope(e.beam, e.loads, e.upl);
    for (auto _ : state)
        benchmark::DoNotOptimize(varno::engine::momentFile(result));
}
BENCHMARK(momentFileOfTenSpans)->Unit(benchmark::kMicrosecond);

} // namespace
