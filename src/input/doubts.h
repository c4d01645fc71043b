#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/field.h"
#include "model/design_case.h"

namespace varno {

/// What an engineer would look at twice, as the form tells it.
struct Doubt {
    std::optional<Control> box; ///< none for a number of a line load, which stands in a window of its own
    std::string text;
    bool operator==(const Doubt&) const = default;
};

/// In the order of the spans, the line loads last; see `implausible`.
std::vector<Doubt> doubtsOf(const DesignCase& designCase);

/// All of them in one line: "Se över: ...".
std::string doubtsInOneLine(const std::vector<Doubt>& doubts);

} // namespace varno
