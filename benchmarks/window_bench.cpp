// Measures the real program in real windows, started on the screen that this runs on:
//
//     varno_window_bench FILTER FILE     what is measured has FILTER in its name; the figures go to FILE
#include "window_bench.h"

#include <cstdio>
#include <exception>

int main(int count, char** words) {
    if (count != 3) return 2;
    try {
        varno::benchmarks::WindowFigures figures(words[1]);
        varno::benchmarks::measureStart(figures);
        varno::benchmarks::measureEdits(figures);
        varno::benchmarks::measureLongResult(figures);
        figures.save(words[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
