#pragma once

#include <stdexcept>

#include "base/text.h"
#include "model/design_case.h"

// The design input file as an engine reads it: the lines and cells of model/design_input_file.h, but nothing is taken
// for a zero. A line is a line, whatever commas it holds, and a number that the calculation needs or that the file
// always has must be there and be a number and nothing else. Only what may rightly be empty or left over is read with
// tolerance: ksi and psi (a rule set may have none), and the line loads beyond `nllast`.

namespace varno::engine {

/// The case makes no sense. The text is one Swedish line in UTF-8 that names the field and its value.
class CaseError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct CaseOnFile {
    Bytes name, title; ///< as they stand
    DesignCase values;
};

/// \throws CaseError for a file that is too short, a number that cannot be read, and a count or the number of a table
/// outside its range. Whether the values make sense is for checkCase.
CaseOnFile readCase(const Bytes& bytes);

/// Total length of the slab with its cantilevers, m.
double totalLength(const DesignCase& c);

/// Position of a line load from the slab's left end, m. Its span number must be 1 to `nfack`.
double lineLoadPosition(const DesignCase& c, int load);

/// \throws CaseError when the case has no meaning as a continuous beam: a span that is not positive, a negative
/// cantilever, support width or partial factor, a support as wide as the span to its right, a line load in no span or
/// outside the slab. Negative loads are allowed.
void checkCase(const DesignCase& c);

} // namespace varno::engine
