#pragma once

#include "engine/envelope.h"

namespace varno::engine::test {

/// The envelope the long way round: every one of the 2^n patterns is evaluated, each with its own support moments; these
/// are put together from those of the n + 1 load cases.
Envelope enumerated(const Beam& beam, const DesignLoads& loads, const std::vector<double>& upl);

} // namespace varno::engine::test
