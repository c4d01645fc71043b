#pragma once

#include <array>
#include <string>

#include "model/design_case.h"

// The design input file as one would read and write it with C's sscanf and snprintf, for comparison: the same lines
// and cells, the first of each letter swapped, no check of anything.

namespace varno::benchmarks {

struct PlainCase {
    DesignCase values;
    std::array<char, 256> name{}, title{}; ///< Windows-1252
};

void readPlainly(const char* bytes, PlainCase& read);

std::string writtenPlainly(const PlainCase& plain);

} // namespace varno::benchmarks
