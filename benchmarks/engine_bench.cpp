// The sample engine's calculation by number of spans, and the text of the longest moment curve file.
#include <benchmark/benchmark.h>

#include "engine/envelope.h"
#include "engine/moment_file.h"

namespace varno::benchmarks {
namespace {

struct Example {
    engine::Beam beam{1.2, 0.8, {}};
    engine::DesignLoads loads;
    std::vector<double> upl;
};

Example example(std::size_t spans) {
    Example e;
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

void calculate(benchmark::State& state) {
    const auto e = example(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(engine::envelope(e.beam, e.loads, e.upl));
}
BENCHMARK(calculate)->Arg(1)->Arg(5)->Arg(10)->Arg(15)->Unit(benchmark::kMicrosecond);

void momentFileOfTenSpans(benchmark::State& state) {
    const auto e = example(10);
    const auto result = engine::envelope(e.beam, e.loads, e.upl);
    for (auto _ : state)
        benchmark::DoNotOptimize(engine::momentFile(result));
}
BENCHMARK(momentFileOfTenSpans)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace varno::benchmarks
