#include "benchmarks/allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t calls = 0;

} // namespace

std::size_t varno::benchmarks::allocations() {
    return calls;
}

// The library's other forms of new and delete end in these.
void* operator new(std::size_t size) {
    ++calls;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
