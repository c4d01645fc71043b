#pragma once

#include "engine/case_reader.h"
#include "engine/pages.h"

namespace varnowb {

// What the 37 lines of the design input file say, as people read it. The numbers of lists and options are
// shown with the text of their row.
void addInput(Pages& pages, const DesignInput& c);

} // namespace varnowb
