// The moment curve file of 1 to 15 spans: its largest moment and all of its numbers, beside the same with C's sscanf.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>

#include "diagram/curve_values.h"
#include "diagram/moment_diagram.h"
#include "engine/moment_file.h"
#include "input/sketch_picture.h"
#include "tests/support/byte_files.h"

namespace varno::benchmarks {
namespace {

Bytes momentsOf(std::int64_t spans) {
    const auto count = static_cast<std::size_t>(spans);
    return engine::momentFile(
        engine::envelope({1, 1, std::vector<double>(count, 5.25)},
                         {std::vector<double>(count, 3), std::vector<double>(count, 2.5), {}},
                         std::vector<double>(count + 1, 0.1)));
}

void readMoments(benchmark::State& state) {
    ByteFiles memory;
    memory.content[""] = momentsOf(state.range(0));
    for (auto _ : state) {
        File file(memory, "", FileMode::input, 0, 1);
        benchmark::DoNotOptimize(readCurveValues(file));
    }
}
BENCHMARK(readMoments)->DenseRange(1, 10, 3);

// Only the maximum pass of the diagram: neither record nor sketch is looked at.
void largestMoment(benchmark::State& state) {
    ByteFiles memory;
    memory.content[""] = momentsOf(state.range(0));
    DesignCase designCase;
    SketchPicture picture;
    const SlabSketch sketch(designCase, picture.loadPicture, picture.slabStrip, picture);
    MomentDiagram diagram(designCase, sketch);
    for (auto _ : state) {
        File file(memory, "", FileMode::input, 0, 1);
        diagram.measure(file);
        benchmark::DoNotOptimize(diagram.momentMax());
    }
}
BENCHMARK(largestMoment)->DenseRange(1, 10, 3);

// Calls `visit` with every number behind the first. Items stand between commas and line ends; sscanf measures the whole
// text that it is given, so it is given an item.
template <typename Visit>
void forEachPlainly(const Bytes& bytes, Visit visit) {
    const char* next = bytes.c_str();
    for (bool first = true; *next != '\0'; first = false) {
        char item[32];
        const std::size_t length = std::strcspn(next, ",\r\n");
        std::memcpy(item, next, length);
        item[length] = '\0';
        float number = 0;
        std::sscanf(item, "%f", &number);
        if (!first) visit(number);
        next += length;
        next += *next == ',' ? 1 : 2;
    }
}

void readMomentsPlainly(benchmark::State& state) {
    const Bytes bytes = momentsOf(state.range(0));
    for (auto _ : state) {
        std::vector<float> numbers;
        forEachPlainly(bytes, [&](float number) { numbers.push_back(number); });
        benchmark::DoNotOptimize(numbers.data());
    }
}
BENCHMARK(readMomentsPlainly)->DenseRange(1, 10, 3);

void largestMomentPlainly(benchmark::State& state) {
    const Bytes bytes = momentsOf(state.range(0));
    for (auto _ : state) {
        float largest = 0;
        int place = 0; // in its span: the spacing and 21 moments
        forEachPlainly(bytes, [&](float number) {
            if (place++ % (lastMoment + 2) != 0) largest = std::max(largest, std::fabs(number));
        });
        benchmark::DoNotOptimize(largest);
    }
}
BENCHMARK(largestMomentPlainly)->DenseRange(1, 10, 3);

} // namespace
} // namespace varno::benchmarks
