#pragma once

#include "window_figures.h"

namespace varno::benchmarks {

/// The program's start and its memory at rest beside those of an empty window, in turn.
void measureStart(WindowFigures& figures);
/// An edit in span 1 of ten that is carried to all others, from the key that ends it until both pictures are painted.
void measureEdits(WindowFigures& figures);
/// A result of 100 000 lines: opened, and turned page by page.
void measureLongResult(WindowFigures& figures);

} // namespace varno::benchmarks
