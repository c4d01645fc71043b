#pragma once

#include "engine/case_reader.h"

namespace varno::engine {

/// Total length of the slab with its cantilevers, m.
double totalLength(const DesignCase& c);

/// Position of a line load from the slab's left end, m. Its span number must be 1 to `nfack`.
double lineLoadPosition(const DesignCase& c, int load);

/// \throws CaseError when the case has no meaning as a continuous beam: a span that is not positive, a negative
/// cantilever, support width or partial factor, a support as wide as the span to its right, a line load in no span or
/// outside the slab. Negative loads are allowed.
void checkCase(const DesignCase& c);

} // namespace varno::engine
