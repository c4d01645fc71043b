#pragma once

#include "engine/envelope.h"

#include <string>

namespace varno::engine {

/// The moment curve file: the number of spans n, then for the upper and after it for the lower curve, for each span,
/// the spacing dx of its points in m and its 21 moments in kNm/m. That makes 1 + 44 n items, separated by commas and
/// line ends (CR LF), each with a decimal point.
std::string momentFile(const Envelope& result);

} // namespace varno::engine
