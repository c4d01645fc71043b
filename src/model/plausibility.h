#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/design_case.h"

// What an engineer would look at twice. None of it is an error: the form takes any number, and so does the file. It is
// told beside the case and never stands in the way.

namespace varno {

/// What is told, and of which value.
struct Finding {
    enum class Kind {
        spanLength,    ///< a span of no length
        supportWidth,  ///< an inner support of no width
        permanentLoad, ///< a span that carries none: where a span is added, it is forgotten
        variableLoad,  ///< not what the load category prescribes
        cantilever,    ///< longer than the span beside it
        lineLoadSpan,  ///< stands in a span that the slab does not have
        lineLoadPlace, ///< stands beside its span
    };
    Kind kind;
    /// The value's name in the record, which the form's table and the columns of the line loads bear, too, and the
    /// number of its span, support or line load, 0 for a cantilever.
    std::string_view field;
    int index;
    std::string text; ///< one Swedish sentence that says which span, support or line load

    bool operator==(const Finding&) const = default;
};

/// For scripts: "spanLength".
std::string_view nameOf(Finding::Kind kind);

/// Everything that there is to tell, span by span, then the line loads, then the free ones. Never throws, whatever the record holds.
std::vector<Finding> implausible(const DesignCase& designCase);

} // namespace varno
