#pragma once

#include <cstddef>

namespace varno::benchmarks {

/// Calls of operator new since the program began.
std::size_t allocations();

} // namespace varno::benchmarks
