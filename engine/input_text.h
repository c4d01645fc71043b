#pragma once

#include "engine/pages.h"
#include "model/design_case.h"

namespace varno::engine {

/// What the 37 lines of the design input file say, as people read it. The numbers of lists and options are shown with
/// the text of their row.
void addInput(Pages& pages, const DesignCase& c);

} // namespace varno::engine
