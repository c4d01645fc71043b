// What an edit draws anew: ten spans, ten line loads, into the canvases that the windows paint from.
#include <benchmark/benchmark.h>

#include "benchmarks/allocations.h"
#include "benchmarks/ten_spans.h"
#include "input/sketch_picture.h"

namespace varno::benchmarks {
namespace {

void fullRefresh(benchmark::State& state) {
    const CaseFile ten = tenSpans();
    SketchPicture picture;
    SlabSketch sketch(ten.designCase, picture.loadPicture, picture.slabStrip, picture);
    sketch.fullRefresh();
    const std::size_t before = allocations();
    for (auto _ : state)
        sketch.fullRefresh();
    state.counters["allocations"] = static_cast<double>(allocations() - before);
}
BENCHMARK(fullRefresh);

} // namespace
} // namespace varno::benchmarks
