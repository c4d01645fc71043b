#pragma once

#include "model/design_input_file.h"

namespace varno::benchmarks {

/// A case of the largest size that the form offers, every cell of its file filled.
CaseFile tenSpans();

/// Its file.
Bytes fileOf(const CaseFile& caseFile);

} // namespace varno::benchmarks
